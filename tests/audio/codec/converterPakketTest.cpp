// The options of the converters, and the packets that they make of WAV files.
#include <filesystem>

#include "tests/audio/codec/converterSoort.h"
#include "tests/steun/wxMain.h"

namespace {

template <typename Soort>
class ConverterPakket : public ConverterProef<Soort> {
 protected:
  using Pakket = std::unique_ptr<typename Soort::Pakket>;

  Pakket codeer(std::string const& pad, unsigned long long bitShift = 0) const {
    auto converter = this->nieuw(this->opties(0, "", bitShift));
    return Pakket(converter.codeerBestand(bestandsnaam(pad)));
  }
  // What the packet of toon.wav holds.
  typename Soort::Waarden waarden(unsigned long long bitShift = 0) const {
    return Soort::waardenVan(*codeer(this->toon, bitShift));
  }
  void verwachtLeeg(std::string const& pad, long long freq) const {
    // With a shift: an empty packet is not scaled.
    Pakket const pakket = codeer(pad, 8);
    ASSERT_NE(pakket, nullptr);
    EXPECT_EQ(pakket->geefAantalBytes(), 0U);
    EXPECT_EQ(pakket->geefAantalSamples(), 0U);
    EXPECT_EQ(pakket->geefSampFreq().teller(), freq);
    EXPECT_EQ(pakket->geefSampFreq().noemer(), 1);
  }
};
TYPED_TEST_SUITE(ConverterPakket, ConverterSoorten, SoortNaam);

TYPED_TEST(ConverterPakket, optiesZonderKlasseLatenHaarLeeg) {
  typename TypeParam::Opties const zonder(static_cast<typename TypeParam::Taal>(2), 6);
  EXPECT_EQ(zonder.taal, 2);
  EXPECT_EQ(zonder.klasseNaam, "");
  EXPECT_EQ(zonder.bitShift, 6U);
  typename TypeParam::Opties const met(static_cast<typename TypeParam::Taal>(1), "Klank", 8);
  EXPECT_EQ(met.taal, 1);
  EXPECT_EQ(met.klasseNaam, "Klank");
  EXPECT_EQ(met.bitShift, 8U);
  EXPECT_EQ(sizeof(met.taal), 4U);
}

TEST(ConverterTalen, zijnDeIndexVanDeKeuze) {
  EXPECT_EQ(static_cast<int>(PCMTaalC), 0);
  EXPECT_EQ(static_cast<int>(PCMTaalCPP), 1);
  EXPECT_EQ(static_cast<int>(PCMTaalPython), 2);
  EXPECT_EQ(static_cast<int>(ADPCMTaalC), 0);
  EXPECT_EQ(static_cast<int>(ADPCMTaalCPP), 1);
  EXPECT_EQ(static_cast<int>(ADPCMTaalPython), 2);
}

TEST(AdpcmConverterBestand, converterIsDeCoderZelf) {
  EXPECT_TRUE((std::is_base_of_v<ADPCMConverter, ADPCMDesktopConverter>));
  EXPECT_FALSE(std::is_polymorphic_v<ADPCMDesktopConverter>);
}

TYPED_TEST(ConverterPakket, isVanDeAanroeperMetSamplesEnFrequentie) {
  std::vector<int> const samples = golf(4001);
  schrijfWav(this->toon, samples, {22050});
  auto converter = this->nieuw(this->opties(0));
  TypeParam soort;
  // The second time the codes of ADPCM go on.
  for (int keer = 0; keer < 2; ++keer) {
    typename TestFixture::Pakket const pakket(converter.codeerBestand(bestandsnaam(this->toon)));
    EXPECT_TRUE(pakket->isEigenaar());
    EXPECT_EQ(pakket->geefSampFreq().teller(), 22050);
    EXPECT_EQ(pakket->geefSampFreq().noemer(), 1);
    EXPECT_EQ(TypeParam::waardenVan(*pakket), soort.waarden(samples));
  }
}

TEST(AdpcmConverterBestand, pakketHeeftEenBytePerTweeSamplesEnZegtStandNul) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), golf(4001));
  ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
  // The second time the codes go on, and the packet still declares the start.
  for (int keer = 0; keer < 2; ++keer) {
    std::unique_ptr<VelmoraADPCMPakket> const pakket = adpcmPakket(converter, map.pad("a.wav"));
    EXPECT_EQ(pakket->geefElementGrootte(), 1U);
    EXPECT_EQ(pakket->geefAantalSamples(), 4000U);
    EXPECT_EQ(pakket->geefPredictor(), 0);
    EXPECT_EQ(pakket->geefBeginIndex(), 0);
  }
}

TYPED_TEST(ConverterPakket, elkeDacBreedte) {
  std::vector<int> const samples{-32768, 32767, 256, 1023, 128, 127,  -129, -128, 64,
                                 -64,    16,    -16, 15,   -15, -256, -255, 255,  -1};
  schrijfWav(this->toon, samples);
  for (DacBreedte const& breedte : dacBreedten) {
    EXPECT_EQ(this->waarden(breedte.bitShift), TypeParam().waarden(samples, breedte.deler))
        << breedte.deler;
  }
}

TEST(PcmConverter, achtBitsDacDeeltAfgekaptNaarNul) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-32768, -256, -255, -1, 0, 255, 256, 32767});
  std::unique_ptr<VelmoraPCMPakket> const pakket(
      PCMDesktopConverter({PCMTaalC, 8}).codeerBestand(bestandsnaam(map.pad("a.wav"))));
  EXPECT_EQ(PcmSoort::waardenVan(*pakket), (std::vector<int>{-128, -1, 0, 0, 0, 0, 1, 127}));
}

// Codes 7 and 15, worked out by hand from step 7 and step 16. A DAC of eight bits leaves nothing of
// the low bytes.
TEST(AdpcmConverterBestand, onevenLaatsteSampleWordtNietGecodeerd) {
  TijdelijkeMap const map;
  auto const codes = [&map](std::vector<int> const& samples, unsigned long long bitShift) {
    schrijfWav(map.pad("a.wav"), samples);
    ADPCMDesktopConverter converter = converterMet({ADPCMTaalC, bitShift});
    return codesVan(*adpcmPakket(converter, map.pad("a.wav")));
  };
  EXPECT_EQ(codes({100}, 0), Bytes{});
  EXPECT_EQ(codes({100, -100}, 0), Bytes{0xF7});
  EXPECT_EQ(codes({100, -100, 50}, 0), Bytes{0xF7});
  EXPECT_EQ(codes({100, -100, 32767, -32768}, 8), Bytes(2, 0));
}

TYPED_TEST(ConverterPakket, vanMeerKanalenDeEersteWaardenTotHetAantalFrames) {
  for (int const kanalen : {2, 3, 6}) {
    for (int const frames : {1, 2, 3, 4, 1001}) {
      int const aantal = kanalen * frames;
      std::vector<int> const waarden = golf(static_cast<std::size_t>(aantal));
      schrijfWav(this->toon, waarden, {8000, kanalen});
      EXPECT_EQ(this->waarden(), TypeParam().waarden({waarden.begin(), waarden.begin() + frames}))
          << kanalen << " channels, " << frames << " frames";
    }
  }
}

// Of the widened samples ADPCM takes the low byte, which is nothing.
TYPED_TEST(ConverterPakket, achtBitsWavWordtOpgerekt) {
  schrijfWav(this->toon, {-128, -1, 0, 127}, {8000, 1, 8});
  EXPECT_EQ(this->waarden(), TypeParam().waarden({-32768, -256, 0, 32512}));
  EXPECT_EQ(this->waarden(8), TypeParam().waarden({-32768, -256, 0, 32512}, 256));
}

TYPED_TEST(ConverterPakket, headerDieMeerBelooftDanErIs) {
  schrijfWav(this->map.pad("heel.wav"), golf(100));
  Bytes const heel = leesBytes(this->map.pad("heel.wav"));
  maakBestand(this->toon, std::string(heel.begin(), heel.begin() + 44 + 20));
  EXPECT_EQ(this->waarden(), TypeParam().waarden(golf(10)));
}

// A file without samples is whole.
TYPED_TEST(ConverterPakket, isLeegVanOnbruikbareBestandenMetEenMelding) {
  maakBestand(this->map.pad("leeg.wav"), "");
  maakBestand(this->map.pad("tekst.wav"), "no sound\n");
  schrijfWav(this->toon, {1, 2});
  EXPECT_EQ(this->codeer(this->toon)->geefAantalSamples(), 2U);
  std::filesystem::remove(this->toon);
  for (std::string const& pad : {this->map.pad("nergens.wav"), this->map.pad("leeg.wav"),
                                 this->map.pad("tekst.wav"), this->toon, this->map.pad()}) {
    this->verwachtLeeg(pad, 0);
    std::vector<LogRegel> const log = neemLog();
    ASSERT_EQ(log.size(), 1U) << pad;
    EXPECT_EQ(log[0].niveau, wxLOG_Error);
    EXPECT_EQ(log[0].tekst.utf8_string(), "Could not read the whole of " + pad);
  }
  schrijfWav(this->toon, {}, {16000});
  this->verwachtLeeg(this->toon, 16000);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

}  // namespace
