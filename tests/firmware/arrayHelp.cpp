#include "tests/firmware/arrayHelp.h"

#include <algorithm>

#include "tests/steun/wavMaker.h"

Bytes joined(std::vector<Bytes> const& parts) {
  Bytes all;
  for (Bytes const& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

Bytes cutAt(Bytes bytes, std::size_t size) {
  bytes.resize(std::min(size, bytes.size()));
  return bytes;
}

Bytes withByte(Bytes bytes, std::size_t at, unsigned int value) {
  bytes.at(at) = static_cast<unsigned char>(value);
  return bytes;
}

Bytes noise(std::size_t count) {
  Bytes bytes(count);
  std::vector<std::int16_t> const samples = proefSamples(count);
  std::transform(samples.begin(), samples.end(), bytes.begin(), [](std::int16_t sample) {
    return static_cast<unsigned char>(static_cast<std::uint16_t>(sample) >> 8U);
  });
  return bytes;
}
