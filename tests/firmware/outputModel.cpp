#include "tests/firmware/outputModel.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// A sample of `bits` bits within its range.
int within(int sample, unsigned bits) {
  int const half = power(bits) / 2;
  return std::min(half - 1, std::max(-half, sample));
}

}  // namespace

std::vector<std::int16_t> const& allSamples() {
  static std::vector<std::int16_t> const all = [] {
    std::vector<std::int16_t> samples(65536);
    std::iota(samples.begin(), samples.end() - 1, std::int16_t{-32768});
    samples.back() = 32767;
    return samples;
  }();
  return all;
}

int power(unsigned bits) {
  return static_cast<int>(std::exp2(bits));
}

unsigned takenBits(unsigned bits) {
  return std::min(16U, std::max(1U, bits));
}

int modelDac(int sample, unsigned bits, unsigned width) {
  int const code = power(bits) / 2 + within(sample, bits);
  return width >= bits ? code * power(width - bits) : code / power(bits - width);
}

int modelGain(int sample, int gain) {
  constexpr double one = 16384;
  // Rounds halves away from zero, and all products are numbers that a double holds.
  double const product = std::round(sample * std::min(2.0, gain / one));
  return static_cast<int>(std::min(32767.0, std::max(-32768.0, product)));
}

std::int64_t modelPwm(int sample, unsigned bits, int top) {
  std::int64_t const code = power(bits) / 2 + within(sample, bits);
  return code * (std::int64_t{top} + 1) / power(bits);
}

int modelI2s(int sample, unsigned bits) {
  return within(sample, bits) * power(16 - bits);
}
