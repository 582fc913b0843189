// What of the ADPCM converter is heard, and the temporary files that stay behind it.
#include <gtest/gtest.h>
#include <wx/sound.h>

#include <algorithm>
#include <filesystem>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/geluidOpname.h"
#include "tests/steun/krapGeheugen.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavLezer.h"
#include "tests/steun/wxMain.h"

namespace {

using Geluiden = std::vector<OpgenomenGeluid>;

// The toolkit's temporary files come into a directory of the test's own.
class AdpcmSpelen : public testing::Test {
 protected:
  AdpcmSpelen() {
    std::filesystem::create_directory(map.pad("tmp"));
    neemGeluiden();
  }

  // The temporary files, their names without the six characters that the system chooses.
  std::vector<std::string> tijdelijke() const {
    std::vector<std::string> namen;
    for (auto const& bestand : std::filesystem::directory_iterator(map.pad("tmp"))) {
      std::string const naam = bestand.path().filename().string();
      EXPECT_GT(naam.size(), 6U);
      namen.push_back(naam.substr(0, naam.size() - 6));
    }
    std::sort(namen.begin(), namen.end());
    return namen;
  }

  // The content of the one temporary file whose name begins like that.
  Bytes inhoud(std::string const& begin) const {
    for (auto const& bestand : std::filesystem::directory_iterator(map.pad("tmp"))) {
      if (bestand.path().filename().string().rfind(begin, 0) == 0) {
        return leesBytes(bestand.path().string());
      }
    }
    ADD_FAILURE() << "no " << begin;
    return {};
  }

  TijdelijkeMap map;
  ADPCMDesktopConverter converter{ADPCMEncoderOpties(ADPCMTaalC, 0)};

 private:
  OmgevingsWaarde tijdelijkeMap{"TMPDIR", map.pad("tmp")};
};

// The file is still open when the player reads it, and its header says so: mono, 16 bits, no
// samples yet. After that it holds them all.
TEST_F(AdpcmSpelen, speelWachtEnHoortGeenSamplesEnLaatEenVolledigeWavStaan) {
  Bytes codes{0xF7, 0x82, 0x77, 0x19};
  VelmoraADPCMPakket pakket(codes.size(), Breuk(11025, 1));
  std::copy(codes.begin(), codes.end(), pakket.geefData());
  converter.speel(pakket);
  EXPECT_EQ(neemGeluiden(), (Geluiden{{1, 11025, 16, 0, 0, wxSOUND_SYNC}}));
  EXPECT_EQ(tijdelijke(), (std::vector<std::string>{"tempwav"}));
  std::optional<GelezenWav> const wav = ontleedWav(inhoud("tempwav"));
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.rate, 11025);
  EXPECT_EQ(wav->soort.kanalen, 1);
  EXPECT_EQ(wav->soort.bits, 16);
  AdpcmStand stand;
  EXPECT_EQ(wav->waarden, modelSamples(stand, codes));
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(AdpcmSpelen, speelBegintBijDeStandVanHetPakket) {
  Bytes codes{0x12, 0x9F, 0x77};
  VelmoraADPCMPakket const blok(codes.size(), Breuk(8000, 1));
  std::copy(codes.begin(), codes.end(), blok.geefData());
  converter.speel(VelmoraADPCMPakket(blok, Breuk(8000, 1), -1234, 33));
  std::optional<GelezenWav> const wav = ontleedWav(inhoud("tempwav"));
  ASSERT_TRUE(wav);
  AdpcmStand stand{33, -1234};
  EXPECT_EQ(wav->waarden, modelSamples(stand, codes));
}

TEST_F(AdpcmSpelen, speelKaptDeFrequentieAfOpHeleHertz) {
  // 22050 and two thirds.
  converter.speel(VelmoraADPCMPakket(2, Breuk(66152, 3)));
  EXPECT_EQ(neemGeluiden(), (Geluiden{{1, 22050, 16, 0, 0, wxSOUND_SYNC}}));
}

TEST_F(AdpcmSpelen, elkeKeerSpelenLaatEenBestandAchter) {
  VelmoraADPCMPakket const pakket(2, Breuk(8000, 1));
  converter.speel(pakket);
  converter.speel(pakket);
  EXPECT_EQ(neemGeluiden().size(), 2U);
  EXPECT_EQ(tijdelijke(), (std::vector<std::string>{"tempwav", "tempwav"}));
}

TEST_F(AdpcmSpelen, speelZonderCodesSpeeltEenLegeWav) {
  converter.speel(VelmoraADPCMPakket(0, Breuk(8000, 1)));
  EXPECT_EQ(neemGeluiden(), (Geluiden{{1, 8000, 16, 0, 0, wxSOUND_SYNC}}));
  EXPECT_EQ(inhoud("tempwav").size(), 44U);
}

// The library creates the file with its header, and turns the frequency away after that.
TEST_F(AdpcmSpelen, speelMetFrequentieNulSpeeltEenLegeWav) {
  converter.speel(VelmoraADPCMPakket(2, Breuk(0, 1)));
  EXPECT_EQ(neemGeluiden(), (Geluiden{{1, 0, 16, 0, 0, wxSOUND_SYNC}}));
  EXPECT_EQ(inhoud("tempwav").size(), 44U);
}

// Nobody can make a file there. The net of every test here fails it on an assertion of the toolkit.
TEST_F(AdpcmSpelen, zonderPlaatsVoorTijdelijkeBestandenBlijftHetStil) {
  OmgevingsWaarde const nergens("TMPDIR", "/proc");
  schrijfWav(map.pad("toon.wav"), golf(100));
  converter.speel(VelmoraADPCMPakket(2, Breuk(8000, 1)));
  EXPECT_FALSE(neemLog().empty());
  converter.voerUitZelfTest(bestandsnaam(map.pad("toon.wav")));
  EXPECT_FALSE(neemLog().empty());
  EXPECT_TRUE(neemGeluiden().empty());
}

TEST_F(AdpcmSpelen, speelLaatDeStandVanHetCoderenStaan) {
  schrijfWav(map.pad("toon.wav"), golf(100));
  AdpcmStand stand;
  EXPECT_EQ(codesVan(*adpcmPakket(converter, map.pad("toon.wav"))),
            modelBytes(stand, golf(100), 1));
  converter.speel(VelmoraADPCMPakket(20, Breuk(8000, 1)));
  EXPECT_EQ(codesVan(*adpcmPakket(converter, map.pad("toon.wav"))),
            modelBytes(stand, golf(100), 1));
}

// The frequency makes the image ask for more memory than there is.
TEST_F(AdpcmSpelen, zelfTestVanEenEchtBestandIsBadAllocEnLaatBeideBestandenStaan) {
  schrijfWav(map.pad("toon.wav"), golf(1001));
  {
    KrapGeheugen const ruim(0);
    EXPECT_THROW(converter.voerUitZelfTest(bestandsnaam(map.pad("toon.wav"))), std::bad_alloc);
    EXPECT_EQ(KrapGeheugen::grootste(), 8000ULL * 4294967296ULL + 500);
  }
  EXPECT_TRUE(neemGeluiden().empty());
  EXPECT_EQ(tijdelijke(), (std::vector<std::string>{"adpcm", "tempwav"}));
  AdpcmStand stand;
  EXPECT_EQ(inhoud("adpcm"), modelBeeld(modelBytes(stand, golf(1001), 1), 8000, true));
  EXPECT_EQ(inhoud("tempwav"), Bytes{});
}

// The WAV file of no frequency is closed, with no more than its header.
TEST_F(AdpcmSpelen, zelfTestVanEenOnbruikbaarBestandHeeftEenBeeldVanNegenNullen) {
  converter.voerUitZelfTest(bestandsnaam(map.pad("nergens.wav")));
  EXPECT_EQ(tijdelijke(), (std::vector<std::string>{"adpcm", "tempwav"}));
  EXPECT_EQ(inhoud("adpcm"), Bytes(9, 0));
  std::string const kop = wavBytes({0, 1, 16, 1}, "");
  EXPECT_EQ(inhoud("tempwav"), Bytes(kop.begin(), kop.end()));
  EXPECT_EQ(neemGeluiden(), (Geluiden{{1, 0, 16, 0, 0, wxSOUND_SYNC}}));
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].tekst.utf8_string(), "Could not read the whole of " + map.pad("nergens.wav"));
}

}  // namespace
