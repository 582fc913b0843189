// The terminal of Windows. It takes UTF-16, whatever code page it shows.
#pragma once

#include <cstddef>

// What std::cout and std::cerr say goes to it so where they are one.
void leidTerminalsOm();

bool isTerminal(int kanaal);

// Writes the whole characters of this UTF-8, and returns how many bytes these are. Negative, with
// errno, where that fails.
std::ptrdiff_t schrijfNaarTerminal(int kanaal, char const* begin, std::size_t bytes);

// Whether it is one that obeys the sequences of ANSI, which this asks of it.
bool kanTerminalVegen(int kanaal);

// Gives the terminal the mode that it had before the function above changed it, if that was called:
// the terminal outlives the program.
void geefTerminalTerug();
