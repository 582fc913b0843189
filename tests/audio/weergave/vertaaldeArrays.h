// The arrays of a generated text as a compiler has them.
#pragma once

#include <string>
#include <vector>

#include "tests/firmware/texts/program.h"
#include "tests/steun/bytes.h"

// Compiles the text of the program and has it tell the bytes of each of its arrays, in the order of
// the fragments. The test fails where the compiler does not take it. Works in the folder `map`.
std::vector<Bytes> vertaaldeArrays(Program const& program, std::string const& map);
