// IMA ADPCM in WAV files, as libsndfile and sox write and read it, taken apart and put together by
// the definition of the format. A file is a row of blocks:
//
//   byte  0     1     2     3     4      5
//       +-----+-----+-----+-----+------+------+--
//       | predictor |index|  0  | code | code |
//       | signed 16 |0..88|     | 1, 2 | 3, 4 |
//       +-----+-----+-----+-----+------+------+--
//
// The predictor is sample 0 of the block itself: it has no code. Of the two codes in a byte the
// earlier one has the low half.
#pragma once

#include <string>
#include <vector>

#include "tests/steun/bytes.h"

struct ImaBlok {
  int predictor;
  int index;
  Bytes codes;
};

// The blocks of a mono file; none where it is not one of this format.
std::vector<ImaBlok> leesImaBlokken(std::string const& pad);
// Writes such a file at 8000 Hz. All blocks have a number of codes that is a multiple of eight, and
// the same one.
void schrijfImaBlokken(std::string const& pad, std::vector<ImaBlok> const& blokken);

// The samples by sox, which has a coder of its own. The file `ruw` takes them.
std::vector<int> leesMetSox(std::string const& pad, std::string const& ruw);
