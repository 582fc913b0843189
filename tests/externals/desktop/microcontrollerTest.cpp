// The processor abstraction and the desktop's own processor.
#include "externals/desktop/microcontroller.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

class VelmoraRTOS {};

namespace {

class ProefProcessor : public VelmoraMicrocontroller {
 public:
  using VelmoraMicrocontroller::VelmoraMicrocontroller;
  void mac(double /*a*/, double /*b*/, double& som) const override { som = 1; }
  void mac(short /*a*/, short /*b*/, short& som) const override { som = 2; }
};

short macShort(short a, short b, short som) {
  IntelProcessor().mac(a, b, som);
  return som;
}

double macDouble(double a, double b, double som) {
  IntelProcessor().mac(a, b, som);
  return som;
}

TEST(Microcontroller, IsAbstractAndDeletableThroughItsBase) {
  EXPECT_TRUE(std::is_abstract_v<VelmoraMicrocontroller>);
  EXPECT_TRUE(std::has_virtual_destructor_v<VelmoraMicrocontroller>);
  EXPECT_TRUE((std::is_convertible_v<IntelProcessor*, VelmoraMicrocontroller*>));
}

TEST(Microcontroller, KeepsTheOperatingSystemThatItWasGiven) {
  VelmoraRTOS besturing;
  EXPECT_EQ(ProefProcessor(&besturing).geefOS(), &besturing);
  EXPECT_EQ(ProefProcessor(nullptr).geefOS(), nullptr);
}

TEST(Microcontroller, ClockFrequencyIsZeroUntilItIsSet) {
  ProefProcessor processor(nullptr);
  EXPECT_EQ(processor.OS_CPU_SysTickClkFreq(), 0U);
  processor.zetKlokFreq(48000000);
  EXPECT_EQ(processor.OS_CPU_SysTickClkFreq(), 48000000U);
  processor.zetKlokFreq(std::numeric_limits<unsigned int>::max());
  EXPECT_EQ(processor.OS_CPU_SysTickClkFreq(), 4294967295U);
  processor.zetKlokFreq(0);
  EXPECT_EQ(processor.OS_CPU_SysTickClkFreq(), 0U);
}

TEST(Microcontroller, BothOperationsAreVirtual) {
  ProefProcessor const processor(nullptr);
  VelmoraMicrocontroller const& basis = processor;
  double somDouble = 0;
  short somShort = 0;
  basis.mac(3.0, 4.0, somDouble);
  basis.mac(short{3}, short{4}, somShort);
  EXPECT_EQ(somDouble, 1);
  EXPECT_EQ(somShort, 2);
}

TEST(IntelProcessor, HasNoOperatingSystemAndNoClock) {
  IntelProcessor const processor;
  EXPECT_EQ(processor.geefOS(), nullptr);
  EXPECT_EQ(processor.OS_CPU_SysTickClkFreq(), 0U);
}

TEST(IntelProcessor, AddsTheProductOfDoublesToTheSum) {
  EXPECT_EQ(macDouble(1.5, 2.0, 0.25), 3.25);
  EXPECT_EQ(macDouble(-1.5, 2.0, 0.0), -3.0);
  EXPECT_EQ(macDouble(300.0, 300.0, 0.0), 90000.0);
  EXPECT_EQ(macDouble(0.0, 7.0, 4.0), 4.0);
}

TEST(IntelProcessor, AddsTheProductOfShortsToTheSum) {
  EXPECT_EQ(macShort(3, 4, 5), 17);
  EXPECT_EQ(macShort(-3, 4, 5), -7);
  EXPECT_EQ(macShort(-3, -4, 0), 12);
  EXPECT_EQ(macShort(0, 32767, -1), -1);
}

TEST(IntelProcessor, ShortProductWrapsToSixteenBits) {
  // 90000 is 65536 + 24464.
  EXPECT_EQ(macShort(300, 300, 0), 24464);
  EXPECT_EQ(macShort(-300, 300, 0), -24464);
  // 2^14 x 2 is 2^15, one above the largest.
  EXPECT_EQ(macShort(16384, 2, 0), -32768);
  EXPECT_EQ(macShort(256, 256, 7), 7);
}

TEST(IntelProcessor, ShortSumWrapsToSixteenBits) {
  EXPECT_EQ(macShort(1, 1, 32767), -32768);
  EXPECT_EQ(macShort(-1, 1, -32768), 32767);
  EXPECT_EQ(macShort(300, 300, 24464), -16608);
}

TEST(IntelProcessor, ExtremeShortsAreWithinBounds) {
  // 2^30 has no low bits; (2^15 - 1)^2 is 2^30 - 2^16 + 1.
  EXPECT_EQ(macShort(-32768, -32768, 0), 0);
  EXPECT_EQ(macShort(-32768, -32768, -32768), -32768);
  EXPECT_EQ(macShort(-32768, -32768, 32767), 32767);
  EXPECT_EQ(macShort(32767, 32767, 0), 1);
  EXPECT_EQ(macShort(32767, 32767, 32767), -32768);
  EXPECT_EQ(macShort(-32768, 32767, 0), -32768);
}

}  // namespace
