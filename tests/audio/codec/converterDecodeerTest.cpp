// The way back, where there is no image to read or no place for the WAV file.

#include <filesystem>

#include "tests/audio/codec/converterSoort.h"
#include "tests/steun/pijp.h"
#include "tests/steun/wxMain.h"

namespace {

template <typename Soort>
class ConverterDecodeer : public ConverterProef<Soort> {
 protected:
  void decodeer(std::string const& bronPad, std::string const& doelPad) {
    this->nieuw(this->opties(1, "K", 8))
        .decodeerBestand(bestandsnaam(bronPad), bestandsnaam(doelPad));
  }
  void verwachtDoelMetRust(std::string const& bronPad) {
    maakBestand(doel, "was hier");
    decodeer(bronPad, doel);
    EXPECT_EQ(leesTekst(doel), "was hier");
  }

  std::string bron = this->map.pad("beeld.bin");
  std::string doel = this->map.pad("uit.wav");
};
TYPED_TEST_SUITE(ConverterDecodeer, ConverterSoorten, SoortNaam);

TYPED_TEST(ConverterDecodeer, ontbrekendeBronLaatHetDoelMetRust) {
  this->verwachtDoelMetRust(this->map.pad("nergens.bin"));
  EXPECT_EQ(neemLog().size(), 1U);
  this->decodeer(this->map.pad("nergens.bin"), this->map.pad("nieuw.wav"));
  EXPECT_FALSE(std::filesystem::exists(this->map.pad("nieuw.wav")));
}

TYPED_TEST(ConverterDecodeer, mapAlsBronLaatHetDoelMetRust) {
  this->verwachtDoelMetRust(this->map.pad());
}

// Nobody writes to it: whoever opened it would wait.
TYPED_TEST(ConverterDecodeer, pijpAlsBronLaatNiemandWachten) {
  if (!maakPijp(this->bron)) {
    GTEST_SKIP() << "no pipes lie in folders here";
  }
  this->verwachtDoelMetRust(this->bron);
}

// It is a file, and its first byte has no memory behind it.
TYPED_TEST(ConverterDecodeer, leesfoutLaatHetDoelMetRust) {
  this->verwachtDoelMetRust("/proc/self/mem");
}

TYPED_TEST(ConverterDecodeer, onschrijfbaarDoelValtNiet) {
  // ADPCM reads an image of whose first eight bytes, its size, all but the count are zero.
  int const rate = std::is_same_v<TypeParam, PcmSoort> ? 8000 : 0;
  std::vector<int> samples = golf(30);
  samples[0] = 0;
  Bytes const beeld = verwachtBeeld(samples, rate, true);
  maakBestand(this->bron, std::string(beeld.begin(), beeld.end()));
  this->decodeer(this->bron, this->map.pad("nergens/uit.wav"));
  EXPECT_FALSE(std::filesystem::exists(this->map.pad("nergens")));
  this->decodeer(this->bron, this->map.pad());
  this->decodeer(this->bron, "/dev/full");
}

}  // namespace
