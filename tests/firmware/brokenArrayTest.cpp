// Good arrays that were cut off at every place, and changed at every place: whatever comes of it,
// the rules of the readers hold, and no byte outside is touched.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerRules.h"
#include "tests/firmware/speexArray.h"
#include "tests/firmware/wavImage.h"

namespace {

struct Kind {
  std::string name;
  Rules rules;
  Bytes array;
  bool headerless = false;
};

std::ostream& operator<<(std::ostream& out, Kind const& kind) {
  return out << kind.name;
}

std::vector<Kind> kinds() {
  Frames const frames{noise(38), {}, noise(130), noise(6)};
  WavFormat const mono = imaFormat(1, 2);
  WavFormat const stereo = imaFormat(2, 1, 32000);
  return {
      {"Pcm", pcmRules, verwachtBeeld(golf(20), 8000, true)},
      {"PcmHeaderless", pcmRules, verwachtBeeld(golf(20), 8000, false), true},
      {"Adpcm", adpcmRules, modelBeeld(noise(20), 16000, true)},
      {"AdpcmHeaderless", adpcmRules, modelBeeld(noise(20), 16000, false), true},
      {"Speex", speexRules, speexArray(8000, 500, frames)},
      {"SpeexHeaderless", speexRules, speexFrames(frames), true},
      {"WavPcm", wavRules, wavImage(pcmFormat(2), noise(40))},
      {"WavOddChunk", wavRules,
       riff({chunk("LIST", {1, 2, 3}), pcmFormat(1).chunk(), chunk("data", noise(8))})},
      {"WavIma", wavRules, wavImage(mono, imaBlocks(mono, 2))},
      {"WavImaStereo", wavRules, wavImage(stereo, imaBlocks(stereo, 3))},
  };
}

class BrokenArray : public testing::TestWithParam<Kind> {
 protected:
  // The rule that these bytes break, or null.
  static char const* broken(Bytes const& array) {
    return GetParam().rules({array, GetParam().headerless, 8000, 5});
  }
};

INSTANTIATE_TEST_SUITE_P(Kinds, BrokenArray, testing::ValuesIn(kinds()),
                         [](auto const& kind) { return kind.param.name; });

}  // namespace

TEST_P(BrokenArray, KeepsTheRulesAtEveryLength) {
  for (std::size_t size = 0; size <= GetParam().array.size(); ++size) {
    EXPECT_EQ(broken(cutAt(GetParam().array, size)), nullptr) << size;
  }
}

TEST_P(BrokenArray, KeepsTheRulesWithAnyByteChanged) {
  for (std::size_t at = 0; at < GetParam().array.size(); ++at) {
    unsigned const byte = GetParam().array[at];
    for (unsigned const value : {0U, 1U, 0x7FU, 0x80U, 0xC8U, 0xC9U, 0xFFU, byte ^ 0x01U,
                                 byte ^ 0x10U, byte ^ 0x80U, byte ^ 0xFFU, (byte + 1) % 256}) {
      EXPECT_EQ(broken(withByte(GetParam().array, at, value)), nullptr) << at << ": " << value;
    }
  }
}
