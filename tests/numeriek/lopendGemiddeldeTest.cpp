// LopendGemiddelde: the mean of the last values of a series. The expected means are worked out by
// hand.
#include "numeriek/lopendGemiddelde.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

double gemiddeldeVan(std::size_t aantal, std::initializer_list<double> waarden) {
  LopendGemiddelde gemiddelde(aantal);
  for (double const waarde : waarden) {
    gemiddelde.voegToe(waarde);
  }
  return gemiddelde.geefGemiddelde();
}

TEST(LopendGemiddelde, zonderWaardenIsNul) {
  EXPECT_EQ(gemiddeldeVan(3, {}), 0.0);
}

TEST(LopendGemiddelde, eenWaardeIsHaarEigenGemiddelde) {
  EXPECT_EQ(gemiddeldeVan(1, {24.0}), 24.0);
  EXPECT_EQ(gemiddeldeVan(3, {24.0}), 24.0);
}

TEST(LopendGemiddelde, evenVeelWaardenAlsPlaatsenGeeftHunGewoneGemiddelde) {
  EXPECT_EQ(gemiddeldeVan(3, {10.0, 20.0, 36.0}), 22.0);
  EXPECT_EQ(gemiddeldeVan(4, {100.0, 0.0, 50.0, 25.0}), 43.75);
}

TEST(LopendGemiddelde, minderWaardenDanPlaatsenDeeltDoorHunAantal) {
  EXPECT_EQ(gemiddeldeVan(5, {10.0, 30.0}), 20.0);
}

TEST(LopendGemiddelde, meerWaardenDanPlaatsenHoudtAlleenDeLaatste) {
  EXPECT_EQ(gemiddeldeVan(2, {10.0, 20.0, 40.0}), 30.0);
  EXPECT_EQ(gemiddeldeVan(3, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}), 6.0);
  EXPECT_EQ(gemiddeldeVan(1, {7.0, 9.0}), 9.0);
}

TEST(LopendGemiddelde, zonderPlaatsenBlijftNul) {
  EXPECT_EQ(gemiddeldeVan(0, {12.0}), 0.0);
}

}  // namespace
