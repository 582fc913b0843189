// The PCM converter's reading and scaling: the packet it makes of a WAV file.
#include "audio/codec/pcmDesktopConverter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

std::unique_ptr<VelmoraPCMPakket> codeer(std::string const& pad, unsigned long long bitShift = 0) {
  PCMDesktopConverter converter(PCMEncoderOpties(PCMTaalC, bitShift));
  return std::unique_ptr<VelmoraPCMPakket>(converter.codeerBestand(bestandsnaam(pad)));
}

std::vector<int> samplesVan(VelmoraPCMPakket const& pakket) {
  std::vector<int> samples;
  for (unsigned long long i = 0; i < pakket.geefAantalSamples(); ++i) {
    samples.push_back(pakket.geefElement(i));
  }
  return samples;
}

void verwachtLeegPakket(std::string const& pad, long long freq) {
  // With a shift: an empty packet is not scaled.
  std::unique_ptr<VelmoraPCMPakket> const pakket = codeer(pad, 8);
  ASSERT_NE(pakket, nullptr);
  EXPECT_EQ(pakket->geefAantalSamples(), 0U);
  EXPECT_EQ(pakket->geefSampFreq().teller(), freq);
  EXPECT_EQ(pakket->geefSampFreq().noemer(), 1);
}

TEST(PcmEncoderOpties, tweeArgumentenLatenDeKlasseLeeg) {
  PCMEncoderOpties const opties(PCMTaalPython, 6);
  EXPECT_EQ(opties.taal, PCMTaalPython);
  EXPECT_EQ(opties.klasseNaam, "");
  EXPECT_EQ(opties.bitShift, 6U);
}

TEST(PcmEncoderOpties, drieArgumentenZettenAlles) {
  PCMEncoderOpties const opties(PCMTaalCPP, "Klank", 8);
  EXPECT_EQ(opties.taal, PCMTaalCPP);
  EXPECT_EQ(opties.klasseNaam, "Klank");
  EXPECT_EQ(opties.bitShift, 8U);
}

TEST(PcmEncoderOpties, talenZijnDeIndexVanDeKeuze) {
  EXPECT_EQ(static_cast<int>(PCMTaalC), 0);
  EXPECT_EQ(static_cast<int>(PCMTaalCPP), 1);
  EXPECT_EQ(static_cast<int>(PCMTaalPython), 2);
  EXPECT_EQ(sizeof(PCMEncoderTaal), 4U);
}

TEST(PcmConverter, pakketIsVanDeAanroeperMetSamplesEnFrequentie) {
  TijdelijkeMap const map;
  std::vector<int> const samples = golf(4001);
  schrijfWav(map.pad("a.wav"), samples, {22050, 1, 16, 1});
  std::unique_ptr<VelmoraPCMPakket> const pakket = codeer(map.pad("a.wav"));
  EXPECT_TRUE(pakket->isEigenaar());
  EXPECT_EQ(pakket->geefAantalBytes(), 8002U);
  EXPECT_EQ(pakket->geefSampFreq().teller(), 22050);
  EXPECT_EQ(pakket->geefSampFreq().noemer(), 1);
  EXPECT_EQ(samplesVan(*pakket), samples);
}

TEST(PcmConverter, zestienBitsDacLaatAllesZoalsHetIs) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-32768, -256, -1, 0, 1, 255, 32767});
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"), 0)),
            (std::vector<int>{-32768, -256, -1, 0, 1, 255, 32767}));
}

TEST(PcmConverter, twaalfBitsDacDeeltDoorZestien) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-32768, -16, -15, -1, 0, 15, 16, 32767});
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"), 4)),
            (std::vector<int>{-2048, -1, 0, 0, 0, 0, 1, 2047}));
}

TEST(PcmConverter, tienBitsDacDeeltDoorVierenzestig) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-32768, -64, -63, -1, 0, 63, 64, 32767});
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"), 6)),
            (std::vector<int>{-512, -1, 0, 0, 0, 0, 1, 511}));
}

TEST(PcmConverter, achtBitsDacDeeltDoor256) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-32768, -256, -255, -1, 0, 255, 256, 32767});
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"), 8)),
            (std::vector<int>{-128, -1, 0, 0, 0, 0, 1, 127}));
}

TEST(PcmConverter, zetOptiesVervangtDeSchuif) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-512, 512});
  PCMDesktopConverter converter(PCMEncoderOpties(PCMTaalC, 0));
  converter.zetOpties(PCMEncoderOpties(PCMTaalC, 8));
  std::unique_ptr<VelmoraPCMPakket> const pakket(
      converter.codeerBestand(bestandsnaam(map.pad("a.wav"))));
  EXPECT_EQ(samplesVan(*pakket), (std::vector<int>{-2, 2}));
}

TEST(PcmConverter, vanStereoDeEersteWaardenTotHetAantalFrames) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("even.wav"), {1, -1, 2, -2, 3, -3, 4, -4}, {8000, 2, 16, 1});
  EXPECT_EQ(samplesVan(*codeer(map.pad("even.wav"))), (std::vector<int>{1, -1, 2, -2}));
  schrijfWav(map.pad("oneven.wav"), {1, -1, 2, -2, 3, -3}, {8000, 2, 16, 1});
  EXPECT_EQ(samplesVan(*codeer(map.pad("oneven.wav"))), (std::vector<int>{1, -1, 2}));
  schrijfWav(map.pad("een.wav"), {7, -7}, {8000, 2, 16, 1});
  EXPECT_EQ(samplesVan(*codeer(map.pad("een.wav"))), (std::vector<int>{7}));
}

TEST(PcmConverter, vanZesKanalenDeEersteWaardenTotHetAantalFrames) {
  TijdelijkeMap const map;
  std::vector<int> const waarden = golf(6006);
  schrijfWav(map.pad("a.wav"), waarden, {8000, 6, 16, 1});
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"))),
            std::vector<int>(waarden.begin(), waarden.begin() + 1001));
}

TEST(PcmConverter, achtBitsWavWordtOpgerekt) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-128, -1, 0, 127}, {8000, 1, 8, 1});
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"))), (std::vector<int>{-32768, -256, 0, 32512}));
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"), 8)), (std::vector<int>{-128, -1, 0, 127}));
}

TEST(PcmConverter, imaAdpcmTeltHeleBlokken) {
  // Made and decoded by sox; the file has 8000 samples in blocks that hold a few more.
  TijdelijkeMap const map;
  schrijfWav(map.pad("in.wav"), golf(8000));
  std::string const opdracht = "sox '" + map.pad("in.wav") + "' -e ima-adpcm '" + map.pad("a.wav") +
                               "' && sox '" + map.pad("a.wav") + "' -t raw -e signed -b 16 -L '" +
                               map.pad("a.raw") + "'";
  ASSERT_EQ(voerUit(opdracht), 0);
  Bytes const ruw = leesBytes(map.pad("a.raw"));
  ASSERT_GE(ruw.size(), 16000U);
  std::unique_ptr<VelmoraPCMPakket> const pakket = codeer(map.pad("a.wav"));
  EXPECT_GE(pakket->geefAantalSamples(), 8000U);
  Bytes const gelezen = verwachtBeeld(samplesVan(*pakket), 8000, false);
  EXPECT_EQ(Bytes(gelezen.begin(), gelezen.begin() + 16000),
            Bytes(ruw.begin(), ruw.begin() + 16000));
}

TEST(PcmConverter, headerDieMeerBelooftDanErIs) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("heel.wav"), golf(100));
  Bytes const heel = leesBytes(map.pad("heel.wav"));
  maakBestand(map.pad("a.wav"), std::string(heel.begin(), heel.begin() + 44 + 20));
  EXPECT_EQ(samplesVan(*codeer(map.pad("a.wav"))), golf(10));
}

TEST(PcmConverter, ontbrekendBestandGeeftLeegPakket) {
  TijdelijkeMap const map;
  verwachtLeegPakket(map.pad("nergens.wav"), 0);
}

TEST(PcmConverter, leegBestandGeeftLeegPakket) {
  TijdelijkeMap const map;
  maakBestand(map.pad("a.wav"), "");
  verwachtLeegPakket(map.pad("a.wav"), 0);
}

TEST(PcmConverter, mapGeeftLeegPakket) {
  TijdelijkeMap const map;
  verwachtLeegPakket(map.pad(), 0);
}

TEST(PcmConverter, tekstGeeftLeegPakket) {
  TijdelijkeMap const map;
  maakBestand(map.pad("a.wav"), "no sound\n");
  verwachtLeegPakket(map.pad("a.wav"), 0);
}

TEST(PcmConverter, nulFramesGeeftLeegPakketMetFrequentie) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {}, {16000, 1, 16, 1});
  verwachtLeegPakket(map.pad("a.wav"), 16000);
}

TEST(PcmConverter, verdwenenBestandGeeftLeegPakket) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1});
  EXPECT_EQ(codeer(map.pad("a.wav"))->geefAantalSamples(), 1U);
  std::filesystem::remove(map.pad("a.wav"));
  verwachtLeegPakket(map.pad("a.wav"), 0);
}

}  // namespace
