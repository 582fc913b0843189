// The generated text as what it is meant for: source that a compiler turns into an array, which
// firmware walks and decodes. The frames are those that speexenc writes for the same samples, and
// they decode to what speexdec makes of its file.
#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>

#include "externals/software/extern/speex/speexAudioPakket.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/externals/software/extern/speex/oggLezer.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/wavLezer.h"

namespace {

struct Geval {
  std::string naam;
  std::string vlaggen;  // the settings as speexenc takes them
  Instelling instelling;
};

void PrintTo(Geval const& geval, std::ostream* uit) {
  *uit << geval.naam;
}

class EncoderCompileer : public EncoderProef, public testing::WithParamInterface<Geval> {
 protected:
  static constexpr std::size_t frames = 30;

  EncoderCompileer() { wav("toon.wav", samples, instelling.rate()); }

  // Runs a command in the test's directory.
  void voer(std::string const& opdracht) const {
    ASSERT_EQ(voerUit("cd '" + map.pad() + "' && " + opdracht), 0) << opdracht;
  }

  // The bytes of the array as the C compiler has them.
  Bytes vertaald() {
    maakBestand(map.pad("toon.c"), inC(instelling, map.pad("toon.wav")));
    maakBestand(map.pad("dump.c"),
                "#include <stdio.h>\n"
                "#include \"toon.c\"\n"
                "int main(void) {\n"
                "  return fwrite(toon, 1, sizeof toon, stdout) != sizeof toon;\n"
                "}\n");
    // Also by itself, as a user has it.
    voer("gcc -std=c99 -Wall -Wextra -Werror -c toon.c");
    voer("gcc -std=c99 -Wall -Wextra -Werror dump.c -o dump && ./dump > toon.bin");
    return leesBytes(map.pad("toon.bin"));
  }

  Instelling instelling = GetParam().instelling;
  std::vector<int> samples = spraak(frames * instelling.frame(), instelling.rate());
};

// The frames that firmware finds from behind the header to the end of the array.
Frames gelopen(SpeexAudioPakket& pakket, std::vector<signed char> const& array) {
  Frames frames;
  std::size_t plaats = 4;
  while (plaats < array.size()) {
    std::size_t const grootte = pakket.geefEncFrameSize();
    signed char const* const frame = pakket.encFrameData(true);
    plaats += 1 + grootte;
    if (plaats > array.size()) {
      ADD_FAILURE() << "the last frame runs past the end of the array";
      return {};
    }
    frames.emplace_back(frame, frame + grootte);
  }
  return frames;
}

TEST_P(EncoderCompileer, FirmwareWalksTheFramesOfSpeexencAndDecodesThemLikeSpeexdec) {
  Bytes const bytes = vertaald();
  std::vector<signed char> const array(bytes.begin(), bytes.end());
  ASSERT_GT(array.size(), 5U);
  SpeexAudioPakket pakket(array.data());
  EXPECT_EQ(pakket.geefSampFreq(), instelling.rate());
  EXPECT_EQ(pakket.geefAantalFrames(), samples.size());
  Frames const gevonden = gelopen(pakket, array);
  ASSERT_EQ(gevonden.size(), frames);

  voer("speexenc " + GetParam().vlaggen + " toon.wav toon.spx 2> /dev/null");
  Frames pakketten = oggPakketten(leesBytes(map.pad("toon.spx")));
  // The head and the comments come first, and a frame of silence last.
  ASSERT_GE(pakketten.size(), 2 + frames);
  pakketten.erase(pakketten.begin(), pakketten.begin() + 2);
  pakketten.resize(frames);
  EXPECT_EQ(gevonden, pakketten);

  voer("speexdec toon.spx terug.wav 2> /dev/null");
  std::optional<GelezenWav> terug = ontleedWav(leesBytes(map.pad("terug.wav")));
  ASSERT_TRUE(terug);
  ASSERT_GE(terug->waarden.size(), samples.size());
  terug->waarden.resize(samples.size());
  EXPECT_EQ(decodeer(gevonden, instelling.band), terug->waarden);
}

std::vector<Geval> gevallen() {
  Instelling smal;
  Instelling breed;
  breed.band = 1;
  Instelling zeerBreed;
  zeerBreed.band = 2;
  zeerBreed.kwaliteit = 10;
  Instelling stil;
  stil.vad = true;
  stil.kwaliteit = 4;
  stil.complexiteit = 1;
  Instelling gemiddeld;
  gemiddeld.soort = 2;
  return {Geval{"Narrowband", "--narrowband --quality 8 --comp 3", smal},
          {"Wideband", "--wideband --quality 8 --comp 3", breed},
          {"UltraWideband", "--ultra-wideband --quality 10 --comp 3", zeerBreed},
          {"VoiceActivity", "--narrowband --quality 4 --comp 1 --vad", stil},
          {"AveragedToOneBit", "--narrowband --quality 8 --comp 3 --abr 1", gemiddeld}};
}

INSTANTIATE_TEST_SUITE_P(Instellingen, EncoderCompileer, testing::ValuesIn(gevallen()),
                         [](testing::TestParamInfo<Geval> const& geval) {
                           return geval.param.naam;
                         });

}  // namespace
