// What encoding and decoding make of libraries that fail half-way.
#include <gtest/gtest.h>
#include <sndfile.h>
#include <wx/filename.h>

#include "externals/software/extern/speex/speexDesktop.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/sndOproepen.h"
#include "tests/externals/software/extern/speex/speexHulp.h"
#include "tests/externals/software/extern/speex/speexOproepen.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wxMain.h"

namespace {

TEST(SpeexStoring, AnEncodingThatTheLibraryCallsFailedGoesIntoTheText) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), golf(480));
  Codering const eerlijk = codeer(Instelling(), map.pad("toon.wav"));
  MetStreek const leugen(Streek::liegt);
  Codering const gelogen = codeer(Instelling(), map.pad("toon.wav"));
  EXPECT_EQ(gelogen.resultaat, 0);
  EXPECT_EQ(gelogen.verhouding, eerlijk.verhouding);
  EXPECT_TRUE(zelfdeTekst(zonderMoment(gelogen.tekst), zonderMoment(eerlijk.tekst)));
}

// Reads that fail from the one behind the first `aantal` on.
SndStoring naReads(int aantal) {
  SndStoring storing;
  storing.gelukteReads = aantal;
  return storing;
}

TEST(SpeexStoring, AFailedReadEncodesTheBlockBeforeItAgain) {
  TijdelijkeMap const map;
  std::vector<int> const samples = golf(640);
  schrijfWav(map.pad("toon.wav"), samples);
  LosseEncoder los{Instelling()};
  std::vector<int> const eerste(samples.begin(), samples.begin() + 160);
  Frames verwacht;
  for (int frame = 0; frame < 4; ++frame) {
    verwacht.push_back(los.encode(eerste));
  }
  Codering gevonden;
  {
    MetSndStoring const met(naReads(1));
    gevonden = codeer(Instelling(), map.pad("toon.wav"));
  }
  EXPECT_EQ(gevonden.resultaat, 0);
  EXPECT_EQ(framesIn(gevonden.tekst), verwacht);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST(SpeexStoring, AFirstReadThatFailsEncodesSilence) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), golf(160));
  Frames const verwacht{LosseEncoder(Instelling()).encode(std::vector<int>(160, 0))};
  MetSndStoring const met(naReads(0));
  EXPECT_EQ(framesIn(codeer(Instelling(), map.pad("toon.wav")).tekst), verwacht);
}

TEST(SpeexStoring, DecodingEndsWhereTheSizesOfTheWavFileAreFull) {
  TijdelijkeMap const map;
  // 32000 Hz and far more frames than fit, each of them empty.
  constexpr int frames = 430'000;
  std::string tekst = "{0x00,0x7d,0xffff,0xffff,\n";
  for (int frame = 0; frame < frames; ++frame) {
    tekst += "0x0,\n";
  }
  maakBestand(map.pad("in.c"), tekst);
  SpeexDesktopDecoder decoder(SpeexUltraWideband, nullptr);
  unsigned long long fragmenten = 0;
  MetStreek const stom(Streek::zwijgt);
  SndStoring storing;
  storing.schijfLoos = true;
  MetSndStoring const met(storing);
  EXPECT_EQ(decoder.decode(bestandsnaam(map.pad("in.c")), bestandsnaam(map.pad("uit.wav")),
                           fragmenten, SF_FORMAT_WAV | SF_FORMAT_PCM_16),
            0);
  EXPECT_EQ(fragmenten, 1U);
  // 268435456 samples in blocks of 640: 419430, and 256 samples that make no block.
  EXPECT_EQ(MetSndStoring::writes(), 419'430U);
  neemLog();
}

}  // namespace
