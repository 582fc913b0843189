// A second ADPCM coder, to hold the first against: written from the published definition of IMA
// ADPCM, slowly and by other means. It shares nothing with the coder under test, the tables
// included.
#pragma once

#include <vector>

#include "tests/steun/bytes.h"

// One direction of the coder.
struct AdpcmStand {
  int index = 0;         // 0 to 88
  int voorspelling = 0;  // -32768 to 32767
};

// Encodes one sample of 16 bits to a code of 0 to 15.
int modelCode(AdpcmStand& stand, int sample);

// Decodes one code of 0 to 15.
int modelSample(AdpcmStand& stand, int code);

// Encodes 16-bit samples as the tool does: the low byte of each with its sign, divided by `deler`
// toward zero, two codes a byte with the earlier one in the low half; an odd last sample is left
// out.
Bytes modelBytes(AdpcmStand& stand, std::vector<int> const& samples, int deler);

// The samples of packed codes, from this state on.
std::vector<int> modelSamples(AdpcmStand& stand, Bytes const& codes);

// The bytes of an array: the nine of the header, for a start from prediction 0 and index 0, before
// the codes, or nine zeros behind them.
Bytes modelBeeld(Bytes const& codes, int rate, bool metHeader);
