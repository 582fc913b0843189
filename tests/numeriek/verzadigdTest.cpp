// Doubles cut to 64-bit integers: within the range, at its ends and beyond. The ends are powers of
// two and their neighbours, spelled out by hand.
#include "numeriek/verzadigd.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/numeriek/doubles.h"

namespace {

using Lang = long long;
using Ongetekend = unsigned long long;

TEST(Verzadigd, kaptNaarNul) {
  EXPECT_EQ(verzadigd<Lang>(2.9), 2);
  EXPECT_EQ(verzadigd<Lang>(-2.9), -2);
  EXPECT_EQ(verzadigd<Lang>(-0.9), 0);
  EXPECT_EQ(verzadigd<Ongetekend>(2.9), 2U);
}

TEST(Verzadigd, aanDeGrenzenMetTekenPastWatEenIntegerIs) {
  EXPECT_EQ(verzadigd<Lang>(-0x1p63), std::numeric_limits<Lang>::min());
  EXPECT_EQ(verzadigd<Lang>(-0x1.fffffffffffffp62), -0x7FFFFFFFFFFFFC00);
  EXPECT_EQ(verzadigd<Lang>(0x1.fffffffffffffp62), 0x7FFFFFFFFFFFFC00);
  EXPECT_TRUE(pastIn<Lang>(-0x1p63));
  EXPECT_FALSE(pastIn<Lang>(-0x1.0000000000001p63));
  EXPECT_TRUE(pastIn<Lang>(0x1.fffffffffffffp62));
  EXPECT_FALSE(pastIn<Lang>(0x1p63));
}

TEST(Verzadigd, aanDeGrenzenZonderTekenPastWatEenIntegerIs) {
  EXPECT_EQ(verzadigd<Ongetekend>(0x1p63), 0x8000000000000000U);
  EXPECT_EQ(verzadigd<Ongetekend>(0x1.fffffffffffffp63), 0xFFFFFFFFFFFFF800U);
  EXPECT_TRUE(pastIn<Ongetekend>(0.0));
  EXPECT_TRUE(pastIn<Ongetekend>(0x1.fffffffffffffp63));
  EXPECT_FALSE(pastIn<Ongetekend>(0x1p64));
  EXPECT_FALSE(pastIn<Ongetekend>(-0.5));
}

TEST(Verzadigd, daarbuitenIsHetDeDichtstbijzijnde) {
  EXPECT_EQ(verzadigd<Lang>(0x1p63), std::numeric_limits<Lang>::max());
  EXPECT_EQ(verzadigd<Lang>(1e300), std::numeric_limits<Lang>::max());
  EXPECT_EQ(verzadigd<Lang>(-1e300), std::numeric_limits<Lang>::min());
  EXPECT_EQ(verzadigd<Ongetekend>(0x1p64), std::numeric_limits<Ongetekend>::max());
  EXPECT_EQ(verzadigd<Ongetekend>(-0.5), 0U);
  EXPECT_EQ(verzadigd<Ongetekend>(-3.0), 0U);
}

TEST(Verzadigd, oneindigIsDeGrensEnGeenGetalIsNul) {
  EXPECT_EQ(verzadigd<Lang>(oneindig), std::numeric_limits<Lang>::max());
  EXPECT_EQ(verzadigd<Lang>(-oneindig), std::numeric_limits<Lang>::min());
  EXPECT_EQ(verzadigd<Ongetekend>(oneindig), std::numeric_limits<Ongetekend>::max());
  EXPECT_EQ(verzadigd<Ongetekend>(-oneindig), 0U);
  EXPECT_EQ(verzadigd<Lang>(geenGetal), 0);
  EXPECT_EQ(verzadigd<Ongetekend>(geenGetal), 0U);
  EXPECT_FALSE(pastIn<Lang>(geenGetal));
  EXPECT_FALSE(pastIn<Ongetekend>(oneindig));
}

}  // namespace
