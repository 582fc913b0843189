// What the values of options have to be, for the library that reads them.
#pragma once

#include <CLI/CLI.hpp>

// The name of a file. Empty is none, and what begins with a hyphen is an option whose turn came too
// early; "-" alone is standard output.
CLI::Validator bestandsNaam();

// A whole number in decimal, without signs: the library itself takes 010 for 8.
CLI::Validator decimaal();
