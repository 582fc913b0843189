// The binary images that the ADPCM converter writes.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wxMain.h"

namespace {

class AdpcmBeeld : public testing::Test {
 protected:
  Bytes beeldVan(std::string const& pad, bool metHeader) {
    // The language and the class have no say in it.
    ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalCPP, "K", 0));
    return adpcmBeeld(converter, pad, metHeader, uitvoer);
  }

  TijdelijkeMap map;
  std::string toon = map.pad("toon.wav");
  std::string uitvoer = map.pad("beeld.bin");
};

// The codes of 100, -100, 2 and -1, worked out by hand: 7, 15, 2 and 8.
TEST_F(AdpcmBeeld, vijfFramesMetHeaderZijnElfBytes) {
  schrijfWav(toon, {100, -100, 258, -1, 7});
  EXPECT_EQ(beeldVan(toon, true),
            (Bytes{0x02, 0x00, 0x00, 0x00, 0x40, 0x1F, 0x00, 0x00, 0x00, 0xF7, 0x82}));
}

TEST_F(AdpcmBeeld, vijfFramesZonderHeaderZijnTweeCodesEnNegenNullen) {
  schrijfWav(toon, {100, -100, 258, -1, 7});
  EXPECT_EQ(beeldVan(toon, false), (Bytes{0xF7, 0x82, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(AdpcmBeeld, elkeLengteMetEnZonderHeader) {
  for (int const frames : {0, 1, 2, 3, 513, 100003}) {
    std::vector<int> const samples = golf(static_cast<std::size_t>(frames));
    schrijfWav(toon, samples, {44100, 1, 16, 1});
    AdpcmStand stand;
    Bytes const codes = modelBytes(stand, samples, 1);
    EXPECT_EQ(beeldVan(toon, true), modelBeeld(codes, 44100, true)) << frames;
    EXPECT_EQ(beeldVan(toon, false), modelBeeld(codes, 44100, false)) << frames;
  }
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(AdpcmBeeld, vervangtEenLangerBestand) {
  schrijfWav(toon, {0, 0});
  maakBestand(uitvoer, std::string(100000, 'x'));
  EXPECT_EQ(beeldVan(toon, true), (Bytes{1, 0, 0, 0, 0x40, 0x1F, 0, 0, 0, 0}));
}

TEST_F(AdpcmBeeld, ontbrekendeWavGeeftNegenNullen) {
  for (bool const metHeader : {true, false}) {
    EXPECT_EQ(beeldVan(map.pad("nergens.wav"), metHeader), Bytes(9, 0));
  }
}

TEST_F(AdpcmBeeld, namenMetAccentenEnProcenten) {
  schrijfWav(map.pad("h\xC3\xA9 100%s.wav"), {0, 0});
  uitvoer = map.pad("b\xC3\xA9 %n.bin");
  EXPECT_EQ(beeldVan(map.pad("h\xC3\xA9 100%s.wav"), false), Bytes(10, 0));
}

// The net of every test here fails it on an assertion of the toolkit.
TEST_F(AdpcmBeeld, onschrijfbaarDoelDoetVerderNiets) {
  schrijfWav(toon, golf(100));
  ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
  for (std::string const& doel : {map.pad("nergens/beeld.bin"), map.pad()}) {
    converter.codeerBestand(bestandsnaam(toon), true, wxFileName(wxTekst(doel)));
    EXPECT_EQ(neemLog().size(), 1U) << doel;
  }
  EXPECT_FALSE(std::filesystem::exists(map.pad("nergens")));
}

TEST_F(AdpcmBeeld, volSchijfGeeftGeenAssertie) {
  schrijfWav(toon, golf(4001));
  ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
  converter.codeerBestand(bestandsnaam(toon), true, wxFileName("/dev/full"));
  EXPECT_FALSE(neemLog().empty());
}

}  // namespace
