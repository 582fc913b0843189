#include "tests/firmware/outputRules.h"

#include <initializer_list>

#include "kestrolin_dac.h"
#include "kestrolin_gain.h"
#include "kestrolin_i2s.h"
#include "kestrolin_pwm.h"
#include "tests/firmware/outputModel.h"
#include "tests/firmware/readerHelp.h"

namespace {

using Samples = std::vector<std::int16_t>;

// What is written, in a block of its own, and where the samples lie; then the two are the same, and
// as the model has it.
template <typename Value, typename Write, typename Model>
bool holds(Samples const& samples, Write write, Model model, std::size_t times = 1) {
  std::vector<Value> apart(samples.size() * times);
  write(apart.data(), samples.data());
  Samples row(samples);
  row.resize(samples.size() * times);
  auto* const written = reinterpret_cast<Value*>(row.data());
  write(written, row.data());
  for (std::size_t i = 0; i < apart.size(); ++i) {
    if (apart.at(i) != model(samples.at(i / times)) || written[i] != apart.at(i)) {
      return false;
    }
  }
  return true;
}

bool dacHolds(Samples const& samples, unsigned bits) {
  unsigned const taken = takenBits(bits);
  for (auto const width : {KESTROLIN_DAC_8, KESTROLIN_DAC_10, KESTROLIN_DAC_12, KESTROLIN_DAC_16}) {
    if (!holds<std::uint16_t>(
            samples,
            [&](std::uint16_t* codes, std::int16_t const* from) {
              kestrolin_dac_codes_from(codes, from, samples.size(), bits, width);
            },
            [&](int sample) { return modelDac(sample, taken, width); }) ||
        !holds<std::uint16_t>(
            samples,
            [&](std::uint16_t* codes, std::int16_t const* from) {
              kestrolin_dac_codes(codes, from, samples.size(), width);
            },
            [&](int sample) { return modelDac(sample, width, width); })) {
      return false;
    }
  }
  return holds<std::uint8_t>(
      samples,
      [&](std::uint8_t* codes, std::int16_t const* from) {
        kestrolin_dac_bytes_from(codes, from, samples.size(), bits);
      },
      [&](int sample) { return modelDac(sample, taken, 8); });
}

bool i2sHolds(Samples const& samples, unsigned bits) {
  auto const model = [&](int sample) { return modelI2s(sample, takenBits(bits)); };
  return holds<std::int16_t>(
             samples,
             [&](std::int16_t* words, std::int16_t const* from) {
               kestrolin_i2s_mono(words, from, samples.size(), bits);
             },
             model, 2) &&
         holds<std::int16_t>(
             samples,
             [&](std::int16_t* words, std::int16_t const* from) {
               kestrolin_i2s_stereo(words, from, samples.size(), bits);
             },
             model);
}

}  // namespace

char const* outputRules(Attempt const& attempt) {
  constexpr std::size_t head = 3;
  if (attempt.array.size() < head) {
    return nullptr;
  }
  unsigned const bits = attempt.array.at(0);
  auto const number = static_cast<std::uint16_t>(numberAt(attempt.array, 1, 2));
  std::vector<int> const given = samplesAt(attempt.array, head, (attempt.array.size() - head) / 2);
  Samples const samples(given.begin(), given.end());
  if (!dacHolds(samples, bits)) {
    return "another code of a DAC";
  }
  if (!i2sHolds(samples, bits)) {
    return "another word of I2S";
  }
  if (!holds<std::uint16_t>(
          samples,
          [&](std::uint16_t* compares, std::int16_t const* from) {
            kestrolin_pwm_compares(compares, from, samples.size(), bits, number);
          },
          [&](int sample) { return modelPwm(sample, takenBits(bits), number); })) {
    return "another compare value";
  }
  return holds<std::int16_t>(
             samples,
             [&](std::int16_t* louder, std::int16_t const* from) {
               kestrolin_gain_samples(louder, from, samples.size(), number);
             },
             [&](int sample) { return modelGain(sample, number); })
             ? nullptr
             : "another product";
}
