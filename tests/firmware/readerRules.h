// What holds of the readers over any bytes at all: the fuzz targets demand it of what an engine
// thinks up, the tests of every way in which a good array can be cut off or changed.
#pragma once

#include <cstddef>
#include <cstdint>

#include <vector>

#include "kestrolin_status.h"
#include "tests/steun/bytes.h"

struct Attempt {
  Bytes array;
  bool headerless = false;
  std::uint16_t rate = 8000;  // Hz, where there is no header
  std::size_t room = 1;       // samples a call
};

// With header or without, `array` holding a copy of the attempt's.
template <typename Reader, typename Byte>
kestrolin_status openAsAsked(Attempt const& attempt, Reader& reader, Byte const* array,
                             kestrolin_status (*open)(Reader*, Byte const*, std::size_t),
                             kestrolin_status (*openHeaderless)(Reader*, Byte const*, std::size_t,
                                                                std::uint16_t)) {
  return attempt.headerless ? openHeaderless(&reader, array, attempt.array.size(), attempt.rate)
                            : open(&reader, array, attempt.array.size());
}

// Opens the array and reads it to its end. Returns the rule that does not hold, or null.
using Rules = char const* (*)(Attempt const&);
char const* pcmRules(Attempt const& attempt);
char const* adpcmRules(Attempt const& attempt);
char const* speexRules(Attempt const& attempt);
char const* wavRules(Attempt const& attempt);

// The samples of IMA ADPCM blocks, worked out by the model of the coder and not by the reader; all
// channels in turn.
struct ImaLayout {
  std::size_t channels;
  std::size_t blockSize;  // bytes
};
std::vector<int> imaSamples(Bytes const& data, ImaLayout const& layout);
