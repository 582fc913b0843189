// The one function of a fuzz target, which the fuzzing engine calls, and the replaying of what it
// found.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t aantal);
