// Arrays for the tests of the readers, put together by hand.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include "kestrolin_status.h"
#include "tests/firmware/readerHelp.h"
#include "tests/steun/bytes.h"

// Rooms for samples that do not divide an array's number of them, up to more than there are.
constexpr std::initializer_list<std::size_t> rooms{1, 2, 3, 7, 64, 1000, 100000};

Bytes joined(std::vector<Bytes> const& parts);
// The first bytes, up to `size` of them.
Bytes cutAt(Bytes bytes, std::size_t size);
// The same bytes but for one.
Bytes withByte(Bytes bytes, std::size_t at, unsigned int value);
// So many bytes of noise, the same at every run.
Bytes noise(std::size_t count);

// What opening answers. Whatever lay in a reader that is refused, it stands at the array then and
// has nothing.
template <typename Reader>
kestrolin_status answerOf(Bytes const& bytes,
                          kestrolin_status (*open)(Reader*, unsigned char const*, std::size_t),
                          std::size_t (*read)(Reader*, std::int16_t*, std::size_t)) {
  ExactCopy const array(bytes);
  Reader reader;
  std::memset(&reader, 0xA5, sizeof reader);
  kestrolin_status const status = open(&reader, array.data(), array.size());
  if (status != KESTROLIN_OK) {
    EXPECT_EQ(reader.next, array.data());
    EXPECT_TRUE(isEmpty(reader, read));
  }
  return status;
}

// All samples, `room` at a time; nothing where the array is refused.
template <typename Reader>
std::optional<std::vector<int>> samplesOf(
    Bytes const& bytes, kestrolin_status (*open)(Reader*, unsigned char const*, std::size_t),
    std::size_t (*read)(Reader*, std::int16_t*, std::size_t), std::size_t room) {
  ExactCopy const array(bytes);
  Reader reader;
  return open(&reader, array.data(), array.size()) == KESTROLIN_OK ? readAll(reader, read, room)
                                                                   : std::nullopt;
}
