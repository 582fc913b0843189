#include "tests/audio/weergave/proefGeluid.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

// Twelve of them, each spread evenly over a width of 1, have a variance of 1 together.
double bijnaNormaal(Toeval& source) {
  constexpr int parts = 12;
  constexpr long long most = 1'000'000'000;
  double sum = 0;
  for (int part = 0; part < parts; ++part) {
    sum += static_cast<double>(source.tussen(-most, most)) / (2.0 * most);
  }
  return sum;
}

}  // namespace

Reeks ruis(std::size_t count, double level, std::uint64_t seed) {
  Toeval source(seed);
  Reeks sound(count);
  std::generate(sound.begin(), sound.end(), [&] { return level * bijnaNormaal(source); });
  return sound;
}

Reeks sinus(int rate, double frequency, double level, double phase) {
  constexpr double full = 32768;
  double const step = 2 * std::acos(-1.0) * frequency / rate;
  Reeks sound(static_cast<std::size_t>(rate));
  std::generate(sound.begin(), sound.end(),
                [&, n = 0]() mutable { return full * level * std::sin(step * n++ + phase); });
  return sound;
}

Reeks maal(Reeks sound, double factor) {
  std::transform(sound.begin(), sound.end(), sound.begin(),
                 [factor](double sample) { return factor * sample; });
  return sound;
}

Reeks plus(Reeks sound, Reeks const& other) {
  std::transform(sound.begin(), sound.end(), other.begin(), sound.begin(), std::plus<>());
  return sound;
}

Reeks achterElkaar(Reeks first, Reeks const& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}
