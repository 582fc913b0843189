#include "tests/firmware/readerHelp.h"

#include <algorithm>

std::size_t numberAt(Bytes const& bytes, std::size_t at, std::size_t count) {
  std::size_t number = 0;
  for (std::size_t i = count; i > 0; --i) {
    number = number * 256 + bytes.at(at + i - 1);
  }
  return number;
}

int sampleAt(Bytes const& bytes, std::size_t at) {
  int const number = static_cast<int>(numberAt(bytes, at, 2));
  return number < 32768 ? number : number - 65536;
}

std::vector<int> samplesAt(Bytes const& bytes, std::size_t at, std::size_t count) {
  std::vector<int> samples(count);
  std::generate(samples.begin(), samples.end(), [&bytes, at]() mutable {
    int const sample = sampleAt(bytes, at);
    at += 2;
    return sample;
  });
  return samples;
}
