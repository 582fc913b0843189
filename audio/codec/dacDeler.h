// What a sample is divided by on its way to the width of a DAC.
#pragma once

// 2 to the power `bitShift`, which is 16 minus the width of the DAC. The shift counts modulo 32,
// and 31 gives the lowest signed value, as the bits have it: every shift has a divisor that is not
// 0.
constexpr int dacDeler(unsigned long long bitShift) {
  constexpr unsigned long long masker = 31;
  return static_cast<int>(1U << (bitShift & masker));
}
