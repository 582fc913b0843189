// The coder's state over the life of a converter: it goes on from file to file, in all three forms
// of the operation, and nothing but a new converter starts it again.
#include <gtest/gtest.h>

#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

class AdpcmStandProef : public testing::Test {
 protected:
  AdpcmStandProef() {
    schrijfWav(een, eersteSamples);
    schrijfWav(twee, tweedeSamples);
  }

  // Fails where the two are the same: the test would prove nothing.
  static void verschillen(Bytes const& a, Bytes const& b) { EXPECT_NE(a, b); }

  Bytes codes(std::string const& pad) { return codesVan(*adpcmPakket(converter, pad)); }

  std::vector<int> const eersteSamples = golf(201);
  std::vector<int> const tweedeSamples = golf(77);
  TijdelijkeMap map;
  std::string een = map.pad("een.wav");
  std::string twee = map.pad("twee.wav");
  ADPCMDesktopConverter converter{ADPCMEncoderOpties(ADPCMTaalC, 0)};
  AdpcmStand stand;
};

VerwachteTekst gegevensVan(std::string const& naam, int frames) {
  VerwachteTekst gegevens;
  gegevens.naam = naam;
  gegevens.bestand = naam + ".wav";
  gegevens.frames = frames;
  return gegevens;
}

TEST_F(AdpcmStandProef, tweedeBestandVanDeRunHeeftDezelfdeHeaderMaarCodesVanWaarHetEersteOphield) {
  EXPECT_TRUE(zelfdeTekst(
      adpcmTekst(converter, een, true),
      verwachteAdpcmTekst(gegevensVan("een", 201), modelBytes(stand, eersteSamples, 1))));
  Bytes const vervolg = modelBytes(stand, tweedeSamples, 1);
  AdpcmStand vers;
  verschillen(vervolg, modelBytes(vers, tweedeSamples, 1));
  EXPECT_TRUE(zelfdeTekst(adpcmTekst(converter, twee, true),
                          verwachteAdpcmTekst(gegevensVan("twee", 77), vervolg)));
}

TEST_F(AdpcmStandProef, hetzelfdeBestandTweemaalGeeftTweeVerschillendeArrays) {
  Bytes const eersteKeer = modelBytes(stand, eersteSamples, 1);
  Bytes const tweedeKeer = modelBytes(stand, eersteSamples, 1);
  verschillen(eersteKeer, tweedeKeer);
  VerwachteTekst const gegevens = gegevensVan("een", 201);
  EXPECT_TRUE(
      zelfdeTekst(adpcmTekst(converter, een, true), verwachteAdpcmTekst(gegevens, eersteKeer)));
  EXPECT_TRUE(
      zelfdeTekst(adpcmTekst(converter, een, true), verwachteAdpcmTekst(gegevens, tweedeKeer)));
}

TEST_F(AdpcmStandProef, pakketTekstEnBeeldHebbenEenStandTezamen) {
  EXPECT_EQ(codes(een), modelBytes(stand, eersteSamples, 1));
  EXPECT_TRUE(zelfdeTekst(
      adpcmTekst(converter, twee, true),
      verwachteAdpcmTekst(gegevensVan("twee", 77), modelBytes(stand, tweedeSamples, 1))));
  EXPECT_EQ(adpcmBeeld(converter, een, true, map.pad("beeld")),
            modelBeeld(modelBytes(stand, eersteSamples, 1), 8000, true));
  EXPECT_EQ(codes(twee), modelBytes(stand, tweedeSamples, 1));
}

TEST_F(AdpcmStandProef, zetOptiesRaaktDeStandNiet) {
  EXPECT_EQ(codes(een), modelBytes(stand, eersteSamples, 1));
  converter.zetOpties({ADPCMTaalCPP, "K", 4});
  EXPECT_EQ(codes(een), modelBytes(stand, eersteSamples, 16));
  converter.zetOpties({ADPCMTaalC, 0});
  EXPECT_EQ(codes(twee), modelBytes(stand, tweedeSamples, 1));
}

TEST_F(AdpcmStandProef, nieuweConverterBegintOpnieuw) {
  Bytes const vers = modelBytes(stand, eersteSamples, 1);
  EXPECT_EQ(codes(een), vers);
  verschillen(codes(een), vers);
  ADPCMDesktopConverter nieuw(ADPCMEncoderOpties(ADPCMTaalC, 0));
  EXPECT_EQ(codesVan(*adpcmPakket(nieuw, een)), vers);
}

TEST_F(AdpcmStandProef, bestandZonderSamplesLaatDeStandStaan) {
  schrijfWav(map.pad("leeg.wav"), {});
  schrijfWav(map.pad("oneven.wav"), {100});
  EXPECT_EQ(codes(een), modelBytes(stand, eersteSamples, 1));
  EXPECT_EQ(codes(map.pad("leeg.wav")), Bytes{});
  EXPECT_EQ(codes(map.pad("nergens.wav")), Bytes{});
  // The one sample is the odd last one.
  EXPECT_EQ(codes(map.pad("oneven.wav")), Bytes{});
  EXPECT_EQ(codes(twee), modelBytes(stand, tweedeSamples, 1));
}

TEST_F(AdpcmStandProef, decoderenLaatDeStandVanHetCoderenStaan) {
  Bytes const beeld{12, 0, 0, 0, 0, 0, 0, 0, 40, 0x7F, 0x7F, 0x7F};
  maakBestand(map.pad("beeld"), std::string(beeld.begin(), beeld.end()));
  EXPECT_EQ(codes(een), modelBytes(stand, eersteSamples, 1));
  std::unique_ptr<VelmoraPCMPakket> const pcm(
      converter.decodeerBestand(bestandsnaam(map.pad("beeld"))));
  EXPECT_NE(pcm->geefElement(0), 0);
  EXPECT_EQ(codes(twee), modelBytes(stand, tweedeSamples, 1));
}

TEST_F(AdpcmStandProef, schuifVanDeConstructorBereiktDeCoderPasMetZetOpties) {
  ADPCMEncoderOpties const opties(ADPCMTaalC, 6);
  AdpcmStand ongeschaald;
  AdpcmStand geschaald;
  Bytes const zonderSchuif = modelBytes(ongeschaald, eersteSamples, 1);
  verschillen(zonderSchuif, modelBytes(geschaald, eersteSamples, 64));
  ADPCMDesktopConverter nieuw(opties);
  EXPECT_EQ(codesVan(*adpcmPakket(nieuw, een)), zonderSchuif);
  nieuw.zetOpties(opties);
  EXPECT_EQ(codesVan(*adpcmPakket(nieuw, een)), modelBytes(ongeschaald, eersteSamples, 64));
}

}  // namespace
