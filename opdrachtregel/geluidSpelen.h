// The one function of the module that plays.
#pragma once

#include <cstddef>

// The file of the module, from the folder of the program.
inline constexpr char const* geluidModulePad = "../lib/kestrolin/geluid.so";
inline constexpr char const* geluidFunctie = "kestrolinSpeel";

// Plays samples of 16 bits at `rate` Hz, interleaved where there are several channels, on the
// system's default device. Returns when all was heard: null, or else why it cannot be, in words
// that stay until the next call.
using GeluidFunctie = char const* (*)(short const* samples, std::size_t aantal, int rate,
                                      int kanalen);
