// What the tests and the fuzz targets of the readers share: arrays in heap blocks of their own, and
// the reading of all that a reader has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "tests/steun/bytes.h"

// A copy in a heap block of exactly its size, so that a sanitizer sees each byte that is read
// outside it.
class ExactCopy {
 public:
  explicit ExactCopy(Bytes const& bytes)
      : block(bytes.empty() ? Bytes(1) : Bytes(bytes.begin(), bytes.end())), count(bytes.size()) {}

  // Never null; the end of a block where there are no bytes.
  unsigned char const* data() const { return count == 0 ? end() : block.data(); }
  signed char const* signedData() const { return reinterpret_cast<signed char const*>(data()); }
  unsigned char const* end() const { return block.data() + block.size(); }
  std::size_t size() const { return count; }

 private:
  Bytes block;
  std::size_t count;
};

// All that is left, `room` samples at a time. Nothing where the reader gives other numbers of
// samples than it says, or writes beyond them.
template <typename Reader>
std::optional<std::vector<int>> readAll(Reader& reader,
                                        std::size_t (*read)(Reader*, std::int16_t*, std::size_t),
                                        std::size_t room) {
  constexpr std::int16_t untouched = 0x5A5A;
  std::vector<int> samples;
  while (true) {
    std::vector<std::int16_t> piece(room + 1, untouched);
    std::size_t const left = reader.left;
    std::size_t const got = read(&reader, piece.data(), room);
    if (got != (left < room ? left : room) || reader.left != left - got ||
        piece[got] != untouched) {
      return std::nullopt;
    }
    if (got == 0) {
      return samples;
    }
    samples.insert(samples.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(got));
  }
}

// Whether a reader has nothing left, and writes nothing where it is asked for more.
template <typename Reader>
bool isEmpty(Reader& reader, std::size_t (*read)(Reader*, std::int16_t*, std::size_t)) {
  constexpr std::int16_t untouched = 0x5A5A;
  std::int16_t sample = untouched;
  return reader.left == 0 && read(&reader, &sample, 1) == 0 && read(&reader, &sample, 1) == 0 &&
         sample == untouched && reader.left == 0;
}

// The number of two or four bytes at a place, low byte first.
std::size_t numberAt(Bytes const& bytes, std::size_t at, std::size_t count);
// The 16-bit sample at a place.
int sampleAt(Bytes const& bytes, std::size_t at);
// `count` of them in a row.
std::vector<int> samplesAt(Bytes const& bytes, std::size_t at, std::size_t count);
