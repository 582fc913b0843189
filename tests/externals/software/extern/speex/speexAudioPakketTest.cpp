// The view that firmware has of an array, over arrays written by hand.
#include "externals/software/extern/speex/speexAudioPakket.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <type_traits>
#include <vector>

#include "tests/steun/bytes.h"

namespace {

static_assert(std::is_standard_layout_v<VelmoraSpeexHeader>);
static_assert(std::is_trivially_copyable_v<VelmoraSpeexHeader>);
static_assert(!std::is_polymorphic_v<SpeexAudioPakket>);
static_assert(!std::is_convertible_v<signed char const*, SpeexAudioPakket>);

// The bytes at an address that is `verschuiving` past one that any type may lie at, with nothing
// behind them.
class Geheugen {
 public:
  explicit Geheugen(Bytes const& bytes, std::size_t verschuiving = 0)
      : blok(verschuiving), begin(verschuiving) {
    std::transform(bytes.begin(), bytes.end(), std::back_inserter(blok),
                   [](unsigned char byte) { return static_cast<signed char>(byte); });
  }

  signed char const* array() const { return blok.data() + begin; }

 private:
  std::vector<signed char> blok;
  std::size_t begin;
};

// A header with these two fields' bytes.
Geheugen metVelden(unsigned char b0, unsigned char b1, unsigned char b2, unsigned char b3) {
  return Geheugen({b0, b1, b2, b3, 0});
}

unsigned long long omvang(Geheugen const& geheugen) {
  return SpeexAudioPakket(geheugen.array()).geefAantalBytes();
}

// Three frames: of two bytes, of none, of one.
Bytes const drieFrames{0x40, 0x1f, 0x07, 0x00, 2, 0x11, 0x22, 0, 1, 0x33};

TEST(SpeexHeader, IsFourBytesWithTheFrequencyFirst) {
  EXPECT_EQ(sizeof(VelmoraSpeexHeader), 4U);
  EXPECT_EQ(offsetof(VelmoraSpeexHeader, sampFreq), 0U);
  EXPECT_EQ(offsetof(VelmoraSpeexHeader, aantalFrames), 2U);
}

TEST(SpeexHeader, KeepsItsArgumentsInTheirOrder) {
  VelmoraSpeexHeader const header(32000, 65535);
  EXPECT_EQ(header.sampFreq, 32000);
  EXPECT_EQ(header.aantalFrames, 65535);
}

TEST(SpeexHeader, LiesInAnArrayLowByteFirst) {
  VelmoraSpeexHeader const header(16000, 0x1234);
  std::array<unsigned char, 4> bytes{};
  std::memcpy(bytes.data(), &header, sizeof header);
  EXPECT_EQ(bytes, (std::array<unsigned char, 4>{0x80, 0x3e, 0x34, 0x12}));
}

TEST(SpeexAudioPakket, DefaultBuiltIsOverNothing) {
  SpeexAudioPakket pakket;
  EXPECT_EQ(pakket.geefData(), nullptr);
  EXPECT_EQ(pakket.geefAantalBytes(), 0U);
  EXPECT_EQ(pakket.geefElementGrootte(), 0U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
}

TEST(SpeexAudioPakket, PayloadBeginsBehindTheHeaderAndIsNotOwned) {
  Geheugen const geheugen(drieFrames);
  SpeexAudioPakket const pakket(geheugen.array());
  EXPECT_EQ(pakket.geefData(), geheugen.array() + 4);
  EXPECT_EQ(pakket.geefElementGrootte(), 1U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(pakket.geefElement(0), 2);
  EXPECT_EQ(pakket.geefElement(2), 0x22);
}

TEST(SpeexAudioPakket, HeaderFieldsReadLowByteFirstAndUnsigned) {
  auto const velden = [](unsigned char b0, unsigned char b1, unsigned char b2, unsigned char b3) {
    Geheugen const geheugen = metVelden(b0, b1, b2, b3);
    SpeexAudioPakket const pakket(geheugen.array());
    return std::vector<int>{pakket.geefSampFreq(), pakket.geefAantalFrames()};
  };
  EXPECT_EQ(velden(0x40, 0x1f, 0x80, 0x3e), (std::vector<int>{8000, 16000}));
  EXPECT_EQ(velden(0x80, 0x3e, 0x01, 0x00), (std::vector<int>{16000, 1}));
  EXPECT_EQ(velden(0x00, 0x7d, 0xff, 0xff), (std::vector<int>{32000, 65535}));
  EXPECT_EQ(velden(0xff, 0x00, 0x00, 0xff), (std::vector<int>{255, 65280}));
  EXPECT_EQ(velden(0x80, 0x80, 0x7f, 0x80), (std::vector<int>{32896, 32895}));
}

TEST(SpeexAudioPakket, SecondFieldLessFourPassesForTheSizeInBytes) {
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x0b, 0x00)), 7U);
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x04, 0x00)), 0U);
}

TEST(SpeexAudioPakket, HighByteOfTheSizeStandsAtBit16) {
  // 1 x 65536 + 5 - 4, and 0x7f x 65536 + 0x7f - 4.
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x05, 0x01)), 65537U);
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x7f, 0x7f)), 8323195U);
}

TEST(SpeexAudioPakket, BytesAbove127WidenWithTheirSign) {
  // 0x80 is -128: 0xff80 in 16 bits, in either half.
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x80, 0x3e)), 0x003eff80ULL - 4);
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x04, 0x80)), 0xff800004ULL - 4);
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0xff, 0xff)), 0xffffffffULL - 4);
}

TEST(SpeexAudioPakket, SizeBelowFourWrapsAt64Bits) {
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x03, 0x00)), 18446744073709551615ULL);
  EXPECT_EQ(omvang(metVelden(0x40, 0x1f, 0x00, 0x00)), 18446744073709551612ULL);
}

TEST(SpeexAudioPakket, WalksFrameByFrame) {
  Geheugen const geheugen(drieFrames);
  SpeexAudioPakket pakket(geheugen.array());
  EXPECT_EQ(pakket.geefEncFrameSize(), 2);
  EXPECT_EQ(pakket.encFrameData(true), geheugen.array() + 5);
  EXPECT_EQ(pakket.geefEncFrameSize(), 0);
  EXPECT_EQ(pakket.encFrameData(true), geheugen.array() + 8);
  EXPECT_EQ(pakket.geefEncFrameSize(), 1);
  signed char const* const laatste = pakket.encFrameData(false);
  EXPECT_EQ(laatste, geheugen.array() + 9);
  EXPECT_EQ(*laatste, 0x33);
}

TEST(SpeexAudioPakket, WithoutMovingOnTheSameAddressTwice) {
  Geheugen const geheugen(drieFrames);
  SpeexAudioPakket pakket(geheugen.array());
  EXPECT_EQ(pakket.encFrameData(false), geheugen.array() + 5);
  EXPECT_EQ(pakket.encFrameData(false), geheugen.array() + 5);
  EXPECT_EQ(pakket.geefEncFrameSize(), 2);
}

TEST(SpeexAudioPakket, MovingOnGivesTheOldAddressOnceMoreAndThenOneLaterBy1PlusTheSize) {
  Geheugen const geheugen(drieFrames);
  SpeexAudioPakket pakket(geheugen.array());
  signed char const* const eerste = pakket.encFrameData(false);
  EXPECT_EQ(pakket.encFrameData(true), eerste);
  EXPECT_EQ(pakket.encFrameData(false), eerste + 1 + 2);
}

TEST(SpeexAudioPakket, FrameOfSize0TakesOneByte) {
  Geheugen const geheugen({0x40, 0x1f, 0x00, 0x00, 0, 0, 1, 0x55});
  SpeexAudioPakket pakket(geheugen.array());
  EXPECT_EQ(pakket.geefEncFrameSize(), 0);
  EXPECT_EQ(pakket.encFrameData(true), geheugen.array() + 5);
  EXPECT_EQ(pakket.geefEncFrameSize(), 0);
  EXPECT_EQ(pakket.encFrameData(true), geheugen.array() + 6);
  EXPECT_EQ(pakket.geefEncFrameSize(), 1);
  EXPECT_EQ(*pakket.encFrameData(true), 0x55);
}

TEST(SpeexAudioPakket, SizeByteAbove127IsUnsigned) {
  for (unsigned char const grootte : Bytes{128, 200, 255}) {
    Bytes bytes{0x40, 0x1f, 0x00, 0x00, grootte};
    bytes.resize(bytes.size() + grootte, 0xee);
    bytes.push_back(1);
    bytes.push_back(0x77);
    Geheugen const geheugen(bytes);
    SpeexAudioPakket pakket(geheugen.array());
    EXPECT_EQ(pakket.geefEncFrameSize(), grootte);
    EXPECT_EQ(pakket.encFrameData(true), geheugen.array() + 5);
    EXPECT_EQ(pakket.geefEncFrameSize(), 1);
    EXPECT_EQ(*pakket.encFrameData(false), 0x77);
  }
}

TEST(SpeexAudioPakket, MovingPastTheLastFrameReadsNothingThere) {
  Geheugen const geheugen({0x40, 0x1f, 0x00, 0x00, 1, 0x12});
  SpeexAudioPakket pakket(geheugen.array());
  EXPECT_EQ(*pakket.encFrameData(true), 0x12);
}

TEST(SpeexAudioPakket, ArrayMayLieAtAnyAddress) {
  for (unsigned const verschuiving : {0U, 1U, 2U, 3U, 5U, 7U}) {
    Geheugen const geheugen(drieFrames, verschuiving);
    SpeexAudioPakket pakket(geheugen.array());
    EXPECT_EQ(pakket.geefSampFreq(), 8000) << verschuiving;
    EXPECT_EQ(pakket.geefAantalFrames(), 7) << verschuiving;
    EXPECT_EQ(pakket.geefAantalBytes(), 3U) << verschuiving;
    EXPECT_EQ(*pakket.encFrameData(true), 0x11) << verschuiving;
    EXPECT_EQ(pakket.encFrameData(true), geheugen.array() + 8) << verschuiving;
    EXPECT_EQ(*pakket.encFrameData(true), 0x33) << verschuiving;
  }
}

TEST(SpeexAudioPakket, ReadsAnArrayInReadOnlyMemory) {
  static constexpr std::array<signed char, 7> vast{-128, 62, 2, 0, 2, -1, 127};
  SpeexAudioPakket pakket(vast.data());
  EXPECT_EQ(pakket.geefSampFreq(), 16000);
  EXPECT_EQ(pakket.geefAantalFrames(), 2);
  EXPECT_EQ(*pakket.encFrameData(true), -1);
}

TEST(SpeexAudioPakket, HeaderFieldsStayWhereverTheCursorIs) {
  Geheugen const geheugen(drieFrames);
  SpeexAudioPakket pakket(geheugen.array());
  pakket.encFrameData(true);
  pakket.encFrameData(true);
  EXPECT_EQ(pakket.geefSampFreq(), 8000);
  EXPECT_EQ(pakket.geefAantalFrames(), 7);
  EXPECT_EQ(pakket.geefData(), geheugen.array() + 4);
}

// What firmware that derives from the view sees beside its operations.
class OpenPakket : public SpeexAudioPakket {
 public:
  using SpeexAudioPakket::SpeexAudioPakket;

  Breuk geefFrequentie() const { return sampFreq; }
};

TEST(SpeexAudioPakket, FrequencyOfTheFieldHasItsHighByteAtBit16) {
  // 0x1f x 65536 + 0x40, where the header says 8000.
  Geheugen const geheugen = metVelden(0x40, 0x1f, 7, 0);
  OpenPakket const pakket(geheugen.array());
  EXPECT_EQ(pakket.geefFrequentie().teller(), 2031680);
  EXPECT_EQ(pakket.geefFrequentie().noemer(), 1);
}

TEST(SpeexAudioPakket, FrequencyOfTheFieldTakesItsBytesWithTheirSign) {
  // 0x7d x 65536 + 0xff80.
  Geheugen const laagNegatief = metVelden(0x80, 0x7d, 7, 0);
  EXPECT_EQ(OpenPakket(laagNegatief.array()).geefFrequentie().teller(), 8257408);
  // 0xff80 x 65536 + 0x40, an unsigned word.
  Geheugen const hoogNegatief = metVelden(0x40, 0x80, 7, 0);
  EXPECT_EQ(OpenPakket(hoogNegatief.array()).geefFrequentie().teller(), 4286578752);
}

TEST(SpeexAudioPakket, FrequencyOfTheFieldIs0Over1OverNothing) {
  OpenPakket const pakket;
  EXPECT_EQ(pakket.geefFrequentie().teller(), 0);
  EXPECT_EQ(pakket.geefFrequentie().noemer(), 1);
}

}  // namespace
