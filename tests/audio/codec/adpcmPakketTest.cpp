// The ADPCM packet: its five constructors, its counts, and who releases the block.
#include "audio/codec/adpcmPakket.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

#include "tests/audio/codec/adpcmHulp.h"

namespace {

static_assert(VelmoraADPCMPakket::SerieeleOverhead == 9);
static_assert(
    std::is_same_v<decltype(VelmoraADPCMPakket::SerieeleOverhead), unsigned long long const>);
static_assert(!std::is_polymorphic_v<VelmoraADPCMPakket>);
static_assert(!std::is_copy_constructible_v<VelmoraADPCMPakket>);
static_assert(!std::is_copy_assignable_v<VelmoraADPCMPakket>);
static_assert(!std::is_move_constructible_v<VelmoraADPCMPakket>);
static_assert(!std::is_move_assignable_v<VelmoraADPCMPakket>);
static_assert(!std::is_convertible_v<unsigned char const*, VelmoraADPCMPakket>);
// A const packet keeps its place, and its bytes can be written.
static_assert(
    std::is_same_v<decltype(std::declval<VelmoraADPCMPakket const&>().geefData()), unsigned char*>);
static_assert(
    std::is_same_v<decltype(std::declval<VelmoraADPCMPakket const&>().geefPredictor()), int>);
static_assert(std::is_same_v<decltype(std::declval<VelmoraADPCMPakket const&>().geefBeginIndex()),
                             unsigned char>);

Breuk const freq(44100, 3);

// All fields but the place, as one row of a table.
struct Velden {
  unsigned long long aantalBytes;
  unsigned long long elementGrootte;
  bool eigenaar;
  long long teller;
  long long noemer;
  int predictor;
  int beginIndex;
};

void verwacht(VelmoraADPCMPakket const& pakket, Velden const& velden) {
  EXPECT_EQ(pakket.geefAantalBytes(), velden.aantalBytes);
  EXPECT_EQ(pakket.geefElementGrootte(), velden.elementGrootte);
  EXPECT_EQ(pakket.isEigenaar(), velden.eigenaar);
  EXPECT_EQ(pakket.geefSampFreq().teller(), velden.teller);
  EXPECT_EQ(pakket.geefSampFreq().noemer(), velden.noemer);
  EXPECT_EQ(pakket.geefPredictor(), velden.predictor);
  EXPECT_EQ(pakket.geefBeginIndex(), velden.beginIndex);
}

// An image with this header and no codes.
Bytes kop(unsigned int aantal, unsigned int hertz, unsigned int predictor, unsigned char index) {
  Bytes beeld = laagEerst(aantal, 4);
  for (unsigned char const b : laagEerst(hertz, 2)) {
    beeld.push_back(b);
  }
  for (unsigned char const b : laagEerst(predictor, 2)) {
    beeld.push_back(b);
  }
  beeld.push_back(index);
  return beeld;
}

TEST(AdpcmPakket, zonderArgumentenElementgrootteNulEnNulSamples) {
  VelmoraADPCMPakket const pakket;
  EXPECT_EQ(pakket.geefData(), nullptr);
  verwacht(pakket, {0, 0, false, 0, 1, 0, 0});
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(pakket.geefAantalSamples(), 0U);
  EXPECT_EQ(pakket.serieelGeefAantalBytes(), 9U);
}

TEST(AdpcmPakket, nieuwBlokIsVanHetPakketEnStaatOpNul) {
  // Memory that was written to goes back first, so that zeros are not there by chance.
  vul(VelmoraADPCMPakket(100, freq), Bytes(100, 0x5A));
  VelmoraADPCMPakket const pakket(100, freq);
  ASSERT_NE(pakket.geefData(), nullptr);
  verwacht(pakket, {100, 1, true, 44100, 3, 0, 0});
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(inhoud(pakket), Bytes(100, 0));
}

TEST(AdpcmPakket, vastPakketLaatZijnBytesSchrijven) {
  VelmoraADPCMPakket const pakket(3, freq);
  pakket.zetElement(1, 0xAB);
  pakket.geefData()[2] = 0xCD;
  EXPECT_EQ(inhoud(pakket), (Bytes{0, 0xAB, 0xCD}));
  EXPECT_EQ(pakket.geefElement(1), 0xAB);
}

TEST(AdpcmPakketOverPakket, neemtAlleVeldenOverDeKetenInbegrepen) {
  Bytes blok{1, 2, 3, 4};
  BasisPakket volgende(nullptr, 0, 1, false);
  BasisPakket bron(blok.data(), 4, 1, false);
  bron.zetVolgende(&volgende);
  VelmoraADPCMPakket const pakket(bron, freq, -32768, 255);
  EXPECT_EQ(pakket.geefData(), blok.data());
  verwacht(pakket, {4, 1, false, 44100, 3, -32768, 255});
  EXPECT_EQ(pakket.geefVolgende(), &volgende);
  EXPECT_EQ(VelmoraADPCMPakket(bron, freq, 32767, 0).geefPredictor(), 32767);
}

TEST(AdpcmPakketOverPakket, elementgrootteKomtVanDeBron) {
  Bytes blok(6, 0);
  BasisPakket const bron(blok.data(), 6, 2, false);
  VelmoraADPCMPakket const pakket(bron, freq, 0, 0);
  verwacht(pakket, {6, 2, false, 44100, 3, 0, 0});
  EXPECT_EQ(pakket.geefAantalSamples(), 6U);
  EXPECT_EQ(pakket.serieelGeefAantalBytes(), 15U);
}

TEST(AdpcmPakketOverPakket, bezitIsGedeeldEnDeBronMagEerstGaan) {
  auto bron = std::make_unique<VelmoraADPCMPakket>(64, freq);
  vul(*bron, Bytes(64, 0x3C));
  unsigned char* const plaats = bron->geefData();
  VelmoraADPCMPakket const pakket(*bron, Breuk(8000, 1), 5, 6);
  EXPECT_TRUE(bron->isEigenaar());
  EXPECT_EQ(pakket.geefData(), plaats);
  verwacht(pakket, {64, 1, true, 8000, 1, 5, 6});
  bron.reset();
  // A new block would get the place of a released one.
  VelmoraADPCMPakket const ander(64, freq);
  EXPECT_NE(ander.geefData(), plaats);
  EXPECT_EQ(inhoud(pakket), Bytes(64, 0x3C));
}

TEST(AdpcmPakketOverPakket, bezitIsGedeeldEnDeBronMagLaatstGaan) {
  VelmoraADPCMPakket const bron(64, freq);
  {
    VelmoraADPCMPakket const een(bron, freq, 0, 0);
    VelmoraADPCMPakket const twee(een, freq, 0, 0);
    vul(twee, Bytes(64, 0x3C));
  }
  VelmoraADPCMPakket const ander(64, freq);
  EXPECT_NE(ander.geefData(), bron.geefData());
  EXPECT_EQ(inhoud(bron), Bytes(64, 0x3C));
}

TEST(AdpcmPakketDeel, ligtOverDeBytesVanDeBronMetDiensStaat) {
  VelmoraADPCMPakket const blok(5, Breuk(1, 1));
  vul(blok, {10, 11, 12, 13, 14});
  VelmoraADPCMPakket const bron(blok, freq, -2, 88);
  VelmoraADPCMPakket const deel(bron, 1, 3);
  EXPECT_EQ(deel.geefData(), bron.geefData() + 1);
  verwacht(deel, {3, 1, false, 44100, 3, -2, 88});
  EXPECT_EQ(inhoud(deel), (Bytes{11, 12, 13}));
  deel.zetElement(0, 99);
  EXPECT_EQ(inhoud(bron), (Bytes{10, 99, 12, 13, 14}));
  EXPECT_EQ(VelmoraADPCMPakket(deel, 2, 1).geefElement(0), 13);
}

TEST(AdpcmPakketDeel, heeftGeenKetenEnElementenVanEenByte) {
  Bytes blok{0, 1, 2, 3, 4, 5};
  BasisPakket volgende(nullptr, 0, 1, false);
  BasisPakket basis(blok.data(), 6, 2, false);
  basis.zetVolgende(&volgende);
  VelmoraADPCMPakket const bron(basis, freq, 0, 0);
  VelmoraADPCMPakket const deel(bron, 2, 2);
  EXPECT_EQ(deel.geefVolgende(), nullptr);
  // The place counts in elements of the source.
  EXPECT_EQ(deel.geefData(), blok.data() + 4);
  verwacht(deel, {2, 1, false, 44100, 3, 0, 0});
}

TEST(AdpcmPakketDeel, geeftHetBlokVanDeBronNietVrij) {
  VelmoraADPCMPakket const bron(8, freq);
  { VelmoraADPCMPakket const deel(bron, 0, 8); }
  vul(bron, Bytes(8, 0x11));
  EXPECT_EQ(inhoud(bron), Bytes(8, 0x11));
}

TEST(AdpcmPakketOverBeeld, leestDeKopZonderByteAcht) {
  Bytes beeld = kop(3, 40000, 0xFED4, 77);
  beeld.insert(beeld.end(), {21, 22, 23});
  VelmoraADPCMPakket const pakket(beeld.data());
  EXPECT_EQ(pakket.geefData(), beeld.data() + 9);
  verwacht(pakket, {3, 1, false, 40000, 1, -300, 0});
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(inhoud(pakket), (Bytes{21, 22, 23}));
}

TEST(AdpcmPakketOverBeeld, predictorHeeftTeken) {
  for (auto const& [bits, waarde] : {std::pair(0xFFFFU, -1), std::pair(0x8000U, -32768),
                                     std::pair(0x7FFFU, 32767), std::pair(0x0080U, 128)}) {
    Bytes const beeld = kop(0, 0, bits, 0);
    EXPECT_EQ(VelmoraADPCMPakket(beeld.data()).geefPredictor(), waarde);
  }
}

TEST(AdpcmPakketOverBeeld, magOpEenOnevenAdresLiggen) {
  Bytes beeld = kop(1, 0x1F40, 0x0102, 0);
  beeld.insert(beeld.begin(), 0xEE);
  beeld.push_back(0x33);
  VelmoraADPCMPakket const pakket(beeld.data() + 1);
  verwacht(pakket, {1, 1, false, 8000, 1, 258, 0});
  EXPECT_EQ(inhoud(pakket), (Bytes{0x33}));
}

TEST(AdpcmPakketOverBeeld, tellingLooptNietOver) {
  Bytes const beeld = kop(0xFFFFFFFFU, 0xFFFF, 0, 0);
  VelmoraADPCMPakket const pakket(beeld.data());
  EXPECT_EQ(pakket.geefAantalBytes(), 4294967295ULL);
  EXPECT_EQ(pakket.geefAantalSamples(), 8589934590ULL);
  EXPECT_EQ(pakket.serieelGeefAantalBytes(), 4294967304ULL);
  EXPECT_EQ(pakket.geefSampFreq().teller(), 65535);
  Bytes const ander = kop(0x04030201U, 1, 0, 0);
  EXPECT_EQ(VelmoraADPCMPakket(ander.data()).geefAantalBytes(), 67305985U);
}

TEST(AdpcmPakket, aantalSamplesIsAltijdEven) {
  for (unsigned long long aantal = 0; aantal < 20; ++aantal) {
    EXPECT_EQ(VelmoraADPCMPakket(aantal, freq).geefAantalSamples(), 2 * aantal);
    Bytes blok(aantal, 0);
    BasisPakket const basis(blok.data(), aantal, 2, false);
    EXPECT_EQ(VelmoraADPCMPakket(basis, freq, 0, 0).geefAantalSamples(), aantal / 2 * 2);
  }
}

TEST(AdpcmPakket, serieleGrootteTeltAltijdNegenVoorDeHeader) {
  EXPECT_EQ(VelmoraADPCMPakket(3, freq).serieelGeefAantalBytes(), 12U);
  EXPECT_EQ(VelmoraADPCMPakket(0, freq).serieelGeefAantalBytes(), 9U);
}

}  // namespace
