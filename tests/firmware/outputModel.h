// What the operations on decoded samples have to give, worked out in other ways than they do: by
// division and rounding of numbers that are wide enough for all of it.
#pragma once

#include <cstdint>
#include <vector>

// Every sample that there is, from the lowest on.
std::vector<std::int16_t> const& allSamples();

// 2 to the power `bits`.
int power(unsigned bits);

// A number of bits as the operations take it: 1 to 16.
unsigned takenBits(unsigned bits);

// A sample of `bits` bits for a DAC of `width` bits: brought within its range, put around
// mid-scale, and multiplied or divided by the power of two that the widths differ by.
int modelDac(int sample, unsigned bits, unsigned width);

// A sample times a gain in parts of 16384, twice at most.
int modelGain(int sample, int gain);

// The part of the period of `top` + 1 ticks that a sample of `bits` bits stands for.
std::int64_t modelPwm(int sample, unsigned bits, int top);

// A sample of `bits` bits at the high end of 16.
int modelI2s(int sample, unsigned bits);
