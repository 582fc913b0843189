// The tables of the bands and the bits, by themselves and by way of encoder and decoder.
#include "externals/software/extern/speex/speexBasis.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "externals/software/extern/speex/speexDecoder.h"
#include "externals/software/extern/speex/speexEncoder.h"
#include "tests/externals/software/extern/speex/speexRechtstreeks.h"

namespace {

static_assert(std::is_abstract_v<SpeexBasis>);
static_assert(std::has_virtual_destructor_v<SpeexBasis>);
static_assert(!std::is_copy_constructible_v<SpeexBasis>);
static_assert(!std::is_move_constructible_v<SpeexEncoder>);
static_assert(!std::is_copy_constructible_v<SpeexDecoder>);
static_assert(std::is_convertible_v<SpeexEncoder*, SpeexBasis*>);
static_assert(std::is_convertible_v<SpeexDecoder*, SpeexBasis*>);
using Tabel = std::array<unsigned short, 3>;
static_assert(std::is_same_v<decltype(SpeexBasis::frameSize), Tabel const>);
static_assert(std::is_same_v<decltype(SpeexBasis::standaardSampFreqs), Tabel const>);

class KaleBasis : public SpeexBasis {
 public:
  unsigned short geefSampFreq() const override { return 1; }
  using SpeexBasis::bits;
  using SpeexBasis::modusVan;
  using SpeexBasis::plaatsVan;
  using SpeexBasis::telling;
};

SpeexBandFormaat band(int waarde) {
  return static_cast<SpeexBandFormaat>(waarde);
}

void verwachtGelijk(SpeexBits const& gevonden, SpeexBits const& verwacht) {
  EXPECT_EQ(gevonden.nbBits, verwacht.nbBits);
  EXPECT_EQ(gevonden.charPtr, verwacht.charPtr);
  EXPECT_EQ(gevonden.bitPtr, verwacht.bitPtr);
  EXPECT_EQ(gevonden.owner, verwacht.owner);
  EXPECT_EQ(gevonden.overflow, verwacht.overflow);
  EXPECT_EQ(gevonden.buf_size, verwacht.buf_size);
}

TEST(SpeexBasis, TablesHaveTheFrequencyAndFrameOfEachBand) {
  EXPECT_EQ(SpeexBasis::standaardSampFreqs, (Tabel{8000, 16000, 32000}));
  EXPECT_EQ(SpeexBasis::frameSize, (Tabel{160, 320, 640}));
}

TEST(SpeexBasis, FrameSizeIsTheOneOfTheLibrary) {
  KaleBasis const basis;
  for (int const waarde : {0, 1, 2}) {
    EXPECT_EQ(basis.geefFrameSize(band(waarde)), directeFrameSize(waarde)) << waarde;
  }
}

TEST(SpeexBasis, ModeIsTheOneOfTheLibrary) {
  EXPECT_EQ(KaleBasis::modusVan(SpeexNarrowband), &speex_nb_mode);
  EXPECT_EQ(KaleBasis::modusVan(SpeexWideband), &speex_wb_mode);
  EXPECT_EQ(KaleBasis::modusVan(SpeexUltraWideband), &speex_uwb_mode);
}

TEST(SpeexBasis, BandThatDoesNotExistCountsAsNarrowband) {
  KaleBasis const basis;
  for (int const waarde : {3, 7, 65536, -1, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(basis.geefFrameSize(band(waarde)), 160) << waarde;
    EXPECT_EQ(KaleBasis::plaatsVan(band(waarde)), 0U) << waarde;
    EXPECT_EQ(KaleBasis::modusVan(band(waarde)), &speex_nb_mode) << waarde;
  }
}

TEST(SpeexBasis, StartsWithFreshBitsAndACountOf0) {
  KaleBasis const basis;
  DirecteBits vers;
  verwachtGelijk(basis.bits, vers.geef());
  ASSERT_NE(basis.bits.chars, nullptr);
  EXPECT_EQ(basis.telling, 0U);
}

TEST(SpeexBasis, BitsAreReadyForUse) {
  KaleBasis basis;
  speex_bits_pack(&basis.bits, 5, 3);
  speex_bits_rewind(&basis.bits);
  EXPECT_EQ(speex_bits_peek_unsigned(&basis.bits, 3), 5U);
}

TEST(SpeexBasis, ResultOfAControlCallChangesNothing) {
  KaleBasis const basis;
  DirecteBits vers;
  for (unsigned long long const resultaat : {0ULL, 1ULL, ~0ULL, ~0ULL - 1}) {
    basis.evalueerSpeexCtrlFunktie(resultaat);
  }
  verwachtGelijk(basis.bits, vers.geef());
  EXPECT_EQ(basis.telling, 0U);
}

}  // namespace
