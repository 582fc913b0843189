// Other programs that a test calls in: compilers, and sox.
#pragma once

#include <string>

// Runs a line of shell and returns its exit status, 0 where all went well.
int voerUit(std::string const& opdracht);
