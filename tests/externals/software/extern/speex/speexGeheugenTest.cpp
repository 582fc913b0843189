// What encoder and decoder do where memory runs out.
#include <gtest/gtest.h>
#include <sndfile.h>
#include <wx/filename.h>

#include <filesystem>
#include <iterator>
#include <new>
#include <optional>

#include "externals/software/extern/speex/speexDesktop.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/sndOproepen.h"
#include "tests/externals/software/extern/speex/speexHulp.h"
#include "tests/externals/software/extern/speex/speexOproepen.h"
#include "tests/steun/krapGeheugen.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"
#include "tests/steun/wxMain.h"

namespace {

using Regels = std::vector<std::string>;

std::ptrdiff_t openBestanden() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(SpeexGeheugen, DecodeWithoutMemoryForItsOutputGives2AndLeavesTheCount) {
  TijdelijkeMap const map;
  maakBestand(map.pad("in.c"), "{0x40,0x1f,0x00,0x00,\n};\n");
  SpeexDesktopDecoder decoder(SpeexNarrowband, nullptr);
  wxFileName const in(bestandsnaam(map.pad("in.c")));
  wxFileName const uit(bestandsnaam(map.pad("uit.wav")));
  std::ptrdiff_t const voor = openBestanden();
  unsigned long long fragmenten = 99;
  {
    SndStoring storing;
    storing.krapNaOpen = true;
    MetSndStoring const met(storing);
    EXPECT_EQ(decoder.decode(in, uit, fragmenten, SF_FORMAT_WAV | SF_FORMAT_PCM_16), 2);
    EXPECT_TRUE(KrapGeheugen::isGebleken());
  }
  EXPECT_EQ(fragmenten, 99U);
  EXPECT_EQ(openBestanden(), voor);
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].tekst, "Could not write the whole of " + uit.GetFullPath());
  // The same decoder goes on when there is memory again.
  EXPECT_EQ(decoder.decode(in, uit, fragmenten, SF_FORMAT_WAV | SF_FORMAT_PCM_16), 0);
  EXPECT_EQ(fragmenten, 1U);
  neemLog();
}

// The calls that release something.
Regels vrijgaven(std::vector<Oproep> const& oproepen) {
  Regels regels;
  for (std::string const& regel : teksten(oproepen)) {
    if (regel.find("_destroy") != std::string::npos) {
      regels.push_back(regel);
    }
  }
  return regels;
}

// The allocations until the base stands. They are those of the recording, for the library takes its
// memory elsewhere.
int allocatiesVanDeBasis(SpeexEncodeConfig const& config) {
  neemOproepen();
  KrapGeheugen const ruim(0);
  SpeexEncoder const encoder(config);
  return KrapGeheugen::geteld();
}

TEST(SpeexGeheugen, EncoderThatIsNotFinishedTakesDownWhatStoodAlready) {
  SpeexEncodeConfig const config = Instelling().config();
  SpeexEncoderOpties const opties("EenKlasseMetEenNaamDieNietInDeTekstZelfPast");
  int mislukt = 0;
  bool gelukt = false;
  for (int nummer = allocatiesVanDeBasis(config) + 1; !gelukt; ++nummer) {
    neemOproepen();
    std::optional<SpeexDesktopEncoder> encoder;
    try {
      KrapGeheugen const krap(nummer);
      encoder.emplace(config, opties);
      // Past its last allocation.
      gelukt = true;
    } catch (std::bad_alloc const&) {
      ++mislukt;
    }
    encoder.reset();
    EXPECT_EQ(vrijgaven(neemOproepen()), (Regels{"speex_preprocess_state_destroy",
                                                 "speex_encoder_destroy", "speex_bits_destroy"}))
        << nummer;
  }
  // The class name, and the three tables.
  EXPECT_GE(mislukt, 4);
}

}  // namespace
