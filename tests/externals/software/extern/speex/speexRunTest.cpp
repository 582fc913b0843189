// What a whole run of encoding, and of decoding, asks of the Speex libraries.
#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/mstream.h>

#include <algorithm>
#include <numeric>

#include "externals/software/extern/speex/speexDesktop.h"
#include "numeriek/percentage.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/arrayRegels.h"
#include "tests/externals/software/extern/speex/speexOproepen.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

using Regels = std::vector<std::string>;

// The calls of a whole run that are none of encoding or decoding one frame.
Regels buitenDeFrames(std::vector<Oproep> const& oproepen) {
  Regels regels = teksten(oproepen);
  Regels const frameRegels{"speex_encode", "speex_encode_int", "speex_decode", "speex_decode_int"};
  regels.erase(std::remove_if(regels.begin(), regels.end(),
                              [&](std::string const& regel) {
                                return regel.rfind("speex_bits_read_from ", 0) == 0 ||
                                       regel.rfind("speex_bits_write ", 0) == 0 ||
                                       std::count(frameRegels.begin(), frameRegels.end(), regel);
                              }),
               regels.end());
  return regels;
}

class SpeexRun : public testing::TestWithParam<int> {
 protected:
  SpeexRun() {
    WavSoort wav;
    wav.rate = 8000 << GetParam();
    maakWav(map.pad("a.wav"), proefSamples(3200), wav);
    maakWav(map.pad("b.wav"), proefSamples(1920), wav);
  }

  TijdelijkeMap map;
};

INSTANTIATE_TEST_SUITE_P(Banden, SpeexRun, testing::Values(0, 1, 2));

TEST_P(SpeexRun, NeitherPreprocessesNorResetsNorSetsUpAgain) {
  auto const band = static_cast<SpeexBandFormaat>(GetParam());
  SpeexDesktopEncoder encoder({band, 7, 3, SpeexVariableBitrate, 12345, 8, true, true, true},
                              SpeexEncoderOpties());
  wxMemoryOutputStream tekst;
  neemOproepen();
  for (char const* naam : {"a.wav", "b.wav"}) {
    Percentage verhouding;
    EXPECT_EQ(encoder.encode(wxFileName(map.pad(naam)), tekst, true, verhouding), 0);
  }
  std::vector<Oproep> const coderen = neemOproepen();
  EXPECT_EQ(buitenDeFrames(coderen), Regels{});
  // 5120 samples in frames of 160, 320 or 640.
  EXPECT_EQ(metBegin(coderen, "speex_encode").size(), 32U >> static_cast<unsigned>(GetParam()));

  maakBestand(map.pad("tekst.c"), tekstVan(tekst));
  SpeexDesktopDecoder decoder(band, nullptr);
  neemOproepen();
  unsigned long long fragmenten = 0;
  decoder.decode(wxFileName(map.pad("tekst.c")), wxFileName(map.pad("uit.wav")), fragmenten,
                 0x10002);
  std::vector<Oproep> const decoderen = neemOproepen();
  EXPECT_EQ(buitenDeFrames(decoderen), Regels{});
  // The widest band's header is one that cannot be read back.
  EXPECT_EQ(metBegin(decoderen, "speex_decode").empty(), band == SpeexUltraWideband);
}

// The encoder's own frames have 110 bytes at most.
TEST(SpeexLangeFrames, AFrameOf200BytesGoesIntoTheTextAndBack) {
  TijdelijkeMap const map;
  maakWav(map.pad("a.wav"), proefSamples(160));
  SpeexDesktopEncoder encoder({SpeexNarrowband, 7, 3, SpeexFixedBitrate, 0, 0, true, true, true},
                              SpeexEncoderOpties());
  wxMemoryOutputStream uit;
  neemOproepen();
  {
    MetStreek const lang(Streek::lang);
    Percentage verhouding;
    EXPECT_EQ(encoder.encode(wxFileName(map.pad("a.wav")), uit, true, verhouding), 0);
  }
  EXPECT_EQ(teksten(metBegin(neemOproepen(), "speex_bits_write")), Regels{"speex_bits_write 200"});

  std::string const tekst = tekstVan(uit);
  Bytes frame(200);
  std::iota(frame.begin(), frame.end(), static_cast<unsigned char>(0));
  EXPECT_NE(tekst.find("/* Max bytes/encoded frame         : 200 bytes\t\t*/\n"),
            std::string::npos);
  std::string const regels = headerRegel(8000, 160) + frameRegels({frame});
  EXPECT_NE(tekst.find(regels), std::string::npos) << tekst;

  // Of the 160 frames that the header tells of, the first is the one that is there.
  maakBestand(map.pad("tekst.c"), tekst);
  SpeexDesktopDecoder decoder(SpeexNarrowband, nullptr);
  unsigned long long fragmenten = 0;
  decoder.decode(wxFileName(map.pad("tekst.c")), wxFileName(map.pad("uit.wav")), fragmenten,
                 0x10002);
  std::vector<Oproep> const gelezen = metBegin(neemOproepen(), "speex_bits_read_from");
  ASSERT_FALSE(gelezen.empty());
  EXPECT_EQ(gelezen[0].tekst, "speex_bits_read_from 200");
}

}  // namespace
