// The base of the packets: its fields, its elements, its chain, and who releases the block.
#include "audio/codec/dataPakket.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "tests/audio/codec/teldeOp.h"

namespace {

// The base is only built as part of a packet.
template <typename T>
class Pakket : public VelmoraDataPakket<T> {
 public:
  Pakket() = default;
  Pakket(T* blok, unsigned long long grootte, unsigned long long element, bool neemtOver)
      : VelmoraDataPakket<T>(blok, grootte, element, neemtOver) {}
  using VelmoraDataPakket<T>::zetVolgende;
  using VelmoraDataPakket<T>::bytes;
};

static_assert(!std::is_copy_constructible_v<Pakket<short>>);
static_assert(!std::is_move_constructible_v<Pakket<short>>);
static_assert(!std::is_polymorphic_v<Pakket<short>>);

TEST(DataPakket, zonderArgumentenLeeg) {
  Pakket<short> pakket;
  EXPECT_EQ(pakket.geefData(), nullptr);
  EXPECT_EQ(pakket.geefAantalBytes(), 0U);
  EXPECT_EQ(pakket.geefElementGrootte(), 0U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
}

TEST(DataPakket, houdtDeVeldenDieHetKreeg) {
  std::array<short, 3> blok{1, 2, 3};
  Pakket<short> pakket(blok.data(), 6, 2, false);
  EXPECT_EQ(pakket.geefData(), blok.data());
  Pakket<short> const& vast = pakket;
  EXPECT_EQ(vast.geefData(), blok.data());
  EXPECT_EQ(pakket.geefAantalBytes(), 6U);
  EXPECT_EQ(pakket.geefElementGrootte(), 2U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
}

TEST(DataPakket, elementVanEenByte) {
  std::array<unsigned char, 3> blok{10, 20, 30};
  Pakket<unsigned char> pakket(blok.data(), blok.size(), 1, false);
  EXPECT_EQ(pakket.geefElement(0), 10);
  EXPECT_EQ(pakket.geefElement(2), 30);
  pakket.zetElement(1, 99);
  EXPECT_EQ(blok, (std::array<unsigned char, 3>{10, 99, 30}));
}

TEST(DataPakket, elementVanTweeBytes) {
  std::array<short, 3> blok{-1, 2, -32768};
  Pakket<short> pakket(blok.data(), 6, 2, false);
  EXPECT_EQ(pakket.geefElement(0), -1);
  EXPECT_EQ(pakket.geefElement(2), -32768);
  pakket.zetElement(1, 32767);
  EXPECT_EQ(blok, (std::array<short, 3>{-1, 32767, -32768}));
}

TEST(DataPakket, hetVeldBepaaltDePlaatsEnNietHetType) {
  std::array<short, 6> blok{1, 2, 3, 4, 5, 6};
  Pakket<short> pakket(blok.data(), 12, 4, false);
  EXPECT_EQ(pakket.geefElement(0), 1);
  EXPECT_EQ(pakket.geefElement(1), 3);
  EXPECT_EQ(pakket.geefElement(2), 5);
  pakket.zetElement(1, -3);
  EXPECT_EQ(blok, (std::array<short, 6>{1, 2, -3, 4, 5, 6}));

  Pakket<short> const vast(blok.data(), 12, 0, false);
  EXPECT_EQ(vast.geefElement(5), 1);
}

TEST(DataPakket, eigenaarGeeftHetBlokVrij) {
  int vernietigd = 0;
  {
    Pakket<TeldeOp> const pakket(new TeldeOp[2]{TeldeOp(vernietigd), TeldeOp(vernietigd)},
                                 2 * sizeof(TeldeOp), sizeof(TeldeOp), true);
    EXPECT_TRUE(pakket.isEigenaar());
    EXPECT_EQ(vernietigd, 0);
  }
  EXPECT_EQ(vernietigd, 2);
}

TEST(DataPakket, wieLeentGeeftNietsVrij) {
  int vernietigd = 0;
  std::array<TeldeOp, 2> blok{TeldeOp(vernietigd), TeldeOp(vernietigd)};
  { Pakket<TeldeOp> const pakket(blok.data(), sizeof blok, sizeof(TeldeOp), false); }
  EXPECT_EQ(vernietigd, 0);
}

TEST(DataPakket, eigenaarVanNietsGeeftNietsVrij) {
  Pakket<short> const pakket(nullptr, 0, 2, true);
  EXPECT_TRUE(pakket.isEigenaar());
}

TEST(DataPakket, ketenLooptOverVolgendeEnIsGeenBezit) {
  int vernietigd = 0;
  Pakket<TeldeOp> tweede(new TeldeOp[1]{TeldeOp(vernietigd)}, sizeof(TeldeOp), sizeof(TeldeOp),
                         true);
  {
    Pakket<TeldeOp> eerste;
    eerste.zetVolgende(&tweede);
    EXPECT_EQ(eerste.geefVolgende(), &tweede);
    EXPECT_EQ(tweede.geefVolgende(), nullptr);
  }
  EXPECT_EQ(vernietigd, 0);
}

}  // namespace
