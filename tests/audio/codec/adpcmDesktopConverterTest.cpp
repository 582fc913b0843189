// The ADPCM converter's options, and the packet it makes of a WAV file.
#include "audio/codec/adpcmDesktopConverter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <type_traits>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wxMain.h"

namespace {

std::unique_ptr<VelmoraADPCMPakket> codeer(std::string const& pad,
                                           unsigned long long bitShift = 0) {
  ADPCMDesktopConverter converter = converterMet(ADPCMEncoderOpties(ADPCMTaalC, bitShift));
  return adpcmPakket(converter, pad);
}

Bytes verwacht(std::vector<int> const& samples, int deler = 1) {
  AdpcmStand stand;
  return modelBytes(stand, samples, deler);
}

void verwachtLeegPakket(std::string const& pad, long long freq) {
  std::unique_ptr<VelmoraADPCMPakket> const pakket = codeer(pad, 8);
  ASSERT_NE(pakket, nullptr);
  EXPECT_EQ(pakket->geefAantalBytes(), 0U);
  EXPECT_EQ(pakket->geefAantalSamples(), 0U);
  EXPECT_EQ(pakket->geefSampFreq().teller(), freq);
  EXPECT_EQ(pakket->geefSampFreq().noemer(), 1);
}

TEST(AdpcmEncoderOpties, tweeArgumentenLatenDeKlasseLeeg) {
  ADPCMEncoderOpties const opties(ADPCMTaalPython, 6);
  EXPECT_EQ(opties.taal, ADPCMTaalPython);
  EXPECT_EQ(opties.klasseNaam, "");
  EXPECT_EQ(opties.bitShift, 6U);
}

TEST(AdpcmEncoderOpties, drieArgumentenZettenAlles) {
  ADPCMEncoderOpties const opties(ADPCMTaalCPP, "Klank", 8);
  EXPECT_EQ(opties.taal, ADPCMTaalCPP);
  EXPECT_EQ(opties.klasseNaam, "Klank");
  EXPECT_EQ(opties.bitShift, 8U);
}

TEST(AdpcmEncoderOpties, talenZijnDeIndexVanDeKeuze) {
  EXPECT_EQ(static_cast<int>(ADPCMTaalC), 0);
  EXPECT_EQ(static_cast<int>(ADPCMTaalCPP), 1);
  EXPECT_EQ(static_cast<int>(ADPCMTaalPython), 2);
  EXPECT_EQ(sizeof(ADPCMEncoderTaal), 4U);
}

TEST(AdpcmConverterBestand, converterIsDeCoderZelf) {
  EXPECT_TRUE((std::is_base_of_v<ADPCMConverter, ADPCMDesktopConverter>));
  EXPECT_FALSE(std::is_polymorphic_v<ADPCMDesktopConverter>);
}

TEST(AdpcmConverterBestand, pakketIsVanDeAanroeperMetCodesFrequentieEnStandNul) {
  TijdelijkeMap const map;
  std::vector<int> const samples = golf(4001);
  schrijfWav(map.pad("a.wav"), samples, {22050, 1, 16, 1});
  ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
  AdpcmStand stand;
  // The second time the codes go on, and the packet still declares the start.
  for (int keer = 0; keer < 2; ++keer) {
    std::unique_ptr<VelmoraADPCMPakket> const pakket = adpcmPakket(converter, map.pad("a.wav"));
    EXPECT_TRUE(pakket->isEigenaar());
    EXPECT_EQ(pakket->geefElementGrootte(), 1U);
    EXPECT_EQ(pakket->geefAantalSamples(), 4000U);
    EXPECT_EQ(pakket->geefSampFreq().teller(), 22050);
    EXPECT_EQ(pakket->geefSampFreq().noemer(), 1);
    EXPECT_EQ(pakket->geefPredictor(), 0);
    EXPECT_EQ(pakket->geefBeginIndex(), 0);
    EXPECT_EQ(codesVan(*pakket), modelBytes(stand, samples, 1));
  }
}

TEST(AdpcmConverterBestand, elkeDacBreedteNaDeVersmalling) {
  TijdelijkeMap const map;
  // Whole bytes of 256 are lost, and the DAC of eight bits leaves nothing.
  std::vector<int> const samples{-32768, 32767, 256, 1023, 128, 127, -129, -128, 64, -64};
  schrijfWav(map.pad("a.wav"), samples);
  EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"), 0)), verwacht(samples, 1));
  EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"), 4)), verwacht(samples, 16));
  EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"), 6)), verwacht(samples, 64));
  EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"), 8)), Bytes(5, 0));
}

TEST(AdpcmConverterBestand, onevenLaatsteSampleWordtNietGecodeerd) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("een.wav"), {100});
  EXPECT_EQ(codesVan(*codeer(map.pad("een.wav"))), Bytes{});
  // Codes 7 and 15, worked out by hand from step 7 and step 16.
  schrijfWav(map.pad("twee.wav"), {100, -100});
  EXPECT_EQ(codesVan(*codeer(map.pad("twee.wav"))), Bytes{0xF7});
  schrijfWav(map.pad("drie.wav"), {100, -100, 50});
  EXPECT_EQ(codesVan(*codeer(map.pad("drie.wav"))), Bytes{0xF7});
}

TEST(AdpcmConverterBestand, vanMeerKanalenDeEersteWaardenTotHetAantalFrames) {
  TijdelijkeMap const map;
  for (int const kanalen : {2, 3, 6}) {
    for (int const frames : {1, 2, 3, 4, 1001}) {
      int const aantal = kanalen * frames;
      std::vector<int> const waarden = golf(static_cast<std::size_t>(aantal));
      schrijfWav(map.pad("a.wav"), waarden, {8000, kanalen, 16, 1});
      EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"))),
                verwacht({waarden.begin(), waarden.begin() + frames}))
          << kanalen << " channels, " << frames << " frames";
    }
  }
}

TEST(AdpcmConverterBestand, achtBitsWavKomtAlleenMetNullenAan) {
  // The library widens them upwards, and the low byte is what counts.
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-128, -1, 0, 127}, {8000, 1, 8, 1});
  EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"))), Bytes(2, 0));
}

TEST(AdpcmConverterBestand, headerDieMeerBelooftDanErIs) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("heel.wav"), golf(100));
  Bytes const heel = leesBytes(map.pad("heel.wav"));
  maakBestand(map.pad("a.wav"), std::string(heel.begin(), heel.begin() + 44 + 20));
  EXPECT_EQ(codesVan(*codeer(map.pad("a.wav"))), verwacht(golf(10)));
}

// A file without samples is whole.
TEST(AdpcmConverterBestand, onbruikbareBestandenGevenEenLeegPakketEnEenMelding) {
  TijdelijkeMap const map;
  maakBestand(map.pad("leeg.wav"), "");
  maakBestand(map.pad("tekst.wav"), "no sound\n");
  for (std::string const& pad :
       {map.pad("nergens.wav"), map.pad("leeg.wav"), map.pad("tekst.wav"), map.pad()}) {
    verwachtLeegPakket(pad, 0);
    std::vector<LogRegel> const log = neemLog();
    ASSERT_EQ(log.size(), 1U) << pad;
    EXPECT_EQ(log[0].niveau, wxLOG_Error);
    EXPECT_EQ(log[0].tekst.utf8_string(), "Could not read the whole of " + pad);
  }
  schrijfWav(map.pad("geen.wav"), {}, {16000, 1, 16, 1});
  verwachtLeegPakket(map.pad("geen.wav"), 16000);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST(AdpcmStroom, tekstenKomenAchterElkaarEnDeStroomGaatVerder) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {7, -7});
  ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
  wxMemoryOutputStream uit;
  uit.Write("kop\n", 4);
  converter.codeerBestand(bestandsnaam(map.pad("toon.wav")), true, uit);
  std::size_t const eerste = tekstVan(uit).size();
  converter.codeerBestand(bestandsnaam(map.pad("toon.wav")), false, uit);
  uit.Write("voet\n", 5);
  EXPECT_TRUE(uit.IsOk());
  std::string const alles = tekstVan(uit);
  AdpcmStand stand;
  VerwachteTekst gegevens;
  gegevens.frames = 2;
  EXPECT_TRUE(zelfdeTekst(zonderMoment(alles.substr(0, eerste)),
                          "kop\n" + verwachteAdpcmTekst(gegevens, modelBytes(stand, {7, -7}, 1))));
  gegevens.metHeader = false;
  EXPECT_TRUE(zelfdeTekst(zonderMoment(alles.substr(eerste)),
                          verwachteAdpcmTekst(gegevens, modelBytes(stand, {7, -7}, 1)) + "voet\n"));
}

TEST(AdpcmStroom, zetOptiesVervangtTaalKlasseEnSchuif) {
  TijdelijkeMap const map;
  std::vector<int> const samples = golf(20);
  schrijfWav(map.pad("toon.wav"), samples);
  ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalCPP, "Oud", 4));
  AdpcmStand stand;
  for (ADPCMEncoderOpties const& opties :
       {ADPCMEncoderOpties(ADPCMTaalCPP, "Nieuw", 6), ADPCMEncoderOpties(ADPCMTaalCPP, 0),
        ADPCMEncoderOpties(ADPCMTaalPython, "P", 4), ADPCMEncoderOpties(ADPCMTaalC, "", 0)}) {
    converter.zetOpties(opties);
    VerwachteTekst gegevens;
    gegevens.taal = static_cast<int>(opties.taal);
    gegevens.klasse = opties.klasseNaam.utf8_string();
    gegevens.frames = 20;
    EXPECT_TRUE(zelfdeTekst(
        adpcmTekst(converter, map.pad("toon.wav"), true),
        verwachteAdpcmTekst(gegevens,
                            modelBytes(stand, samples, 1 << static_cast<int>(opties.bitShift)))));
  }
}

}  // namespace
