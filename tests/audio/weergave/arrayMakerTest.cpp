#include "audio/weergave/arrayMaker.h"

#include <gtest/gtest.h>
#include <wx/filename.h>

#include "audio/uitvoer/uitvoerOpties.h"
#include "audio/weergave/doelDecoder.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/steun/bytes.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"
#include "tests/steun/wxMain.h"

namespace {

class ArrayMaker : public testing::Test {
 protected:
  // No name that a compiler would take, and one whose marks are those of a text.
  static constexpr char const* wav = "my sound-{1} \"x\".wav";

  ArrayBytes make(ArraySoort kind, int dacBits = 16, int band = 0) {
    KestrolinConfig settings = eersteInstellingen(UitvoerTaalPython, dacBits);
    settings.speexFormat = band;
    settings.IncludeHeader = false;
    return maakArray(kind, settings, wxFileName(folder.pad(wav)), folder.pad("image"));
  }

  TijdelijkeMap folder;
};

}  // namespace

TEST_F(ArrayMaker, MakesPcm) {
  schrijfWav(folder.pad(wav), {16, -16, 32767});
  EXPECT_EQ(make(ArraySoort::pcm, 12),
            (ArrayBytes{3, 0, 0, 0, 0x40, 0x1F, 1, 0, 0xFF, 0xFF, 0xFF, 0x07}));
}

TEST_F(ArrayMaker, MakesAdpcmByAnEncoderThatHasMadeNothingBefore) {
  std::vector<int> const samples{1, -2, 30, 40, -50, 60};
  schrijfWav(folder.pad(wav), samples);
  AdpcmStand model;
  ArrayBytes const expected = modelBeeld(modelBytes(model, samples, 1), 8000, true);
  EXPECT_EQ(make(ArraySoort::adpcm), expected);
  EXPECT_EQ(make(ArraySoort::adpcm), expected);
}

TEST_F(ArrayMaker, MakesAWavFileAtThePlaceOfItsImage) {
  schrijfWav(folder.pad(wav), {1, -2, 300});
  // A file of this kind is embedded as it is.
  Bytes const file = leesBytes(folder.pad(wav));
  EXPECT_EQ(make(ArraySoort::wav), file);
  EXPECT_EQ(leesBytes(folder.pad("image")), file);
}

TEST_F(ArrayMaker, MakesSpeex) {
  WavSoort wide;
  wide.rate = 16000;
  maakWav(folder.pad(wav), proefSamples(1000), wide);
  ArrayBytes const array = make(ArraySoort::speex, 16, 1);
  DoelGeluid const sound = DoelDecoder().decodeer(ArraySoort::speex, array);
  EXPECT_EQ(sound.status, KESTROLIN_OK);
  EXPECT_EQ(sound.rate, 16000U);
  EXPECT_EQ(sound.samples.size(), 1000U);
}

TEST_F(ArrayMaker, MakesNothingOfAnotherBand) {
  schrijfWav(folder.pad(wav), {1, 2, 3});
  EXPECT_EQ(make(ArraySoort::speex, 16, 1), ArrayBytes());
  EXPECT_EQ(neemLog().size(), 1U);
}

TEST_F(ArrayMaker, MakesNothingThatAReaderTakesOfAMissingFile) {
  for (ArraySoort const kind :
       {ArraySoort::speex, ArraySoort::adpcm, ArraySoort::pcm, ArraySoort::wav}) {
    ArrayBytes const array = make(kind);
    EXPECT_NE(DoelDecoder().decodeer(kind, array).status, KESTROLIN_OK) << static_cast<int>(kind);
  }
  neemLog();
}
