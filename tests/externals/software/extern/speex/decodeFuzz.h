// The one function that the fuzzing engine calls, and that the replaying of its finds calls.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t aantal);
