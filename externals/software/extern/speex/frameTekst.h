// The text of one encoded frame in a generated Speex array: a line with its size, then its bytes as
// signed numbers, eight to the line.
#pragma once

#include <cstddef>

class RijSchrijver;

// The most signs that a frame takes beside its bytes.
constexpr std::size_t meesteFrameTekens = 64;

// Frame `nummer`, counted from 0, of `aantal` bytes, at most 200. A frame whose size is a multiple
// of eight ends in a line that holds a tab alone. The text is ASCII, with "\n" line ends. Wants a
// writer with the table of decimal bytes.
void schrijfFrame(RijSchrijver& rijen, unsigned long long nummer, unsigned char const* bytes,
                  std::size_t aantal);
