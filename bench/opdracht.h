// What a build waits for: kestrolin-cli from start to end.
#pragma once

#include <string>

// Measures in the folder `map`, prints, and returns whether the goal was reached.
bool meetOpdracht(std::string const& map);
