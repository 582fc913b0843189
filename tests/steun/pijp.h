// A pipe among the files of a folder.
#pragma once

#include <string>

// Makes one of this name. False where the system has no such pipes.
bool maakPijp(std::string const& pad);
