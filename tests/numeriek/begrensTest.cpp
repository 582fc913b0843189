// Keeping a number between two bounds, also bounds that make no sense.
#include "numeriek/begrens.h"

#include <gtest/gtest.h>

#include "tests/numeriek/doubles.h"

namespace {

TEST(Begrens, houdtTussenDeGrenzen) {
  EXPECT_EQ(begrens(1.0, 2.0, 5.0), 2.0);
  EXPECT_EQ(begrens(2.0, 2.0, 5.0), 2.0);
  EXPECT_EQ(begrens(3.5, 2.0, 5.0), 3.5);
  EXPECT_EQ(begrens(5.0, 2.0, 5.0), 5.0);
  EXPECT_EQ(begrens(6.0, 2.0, 5.0), 5.0);
}

TEST(Begrens, werktVoorGeheleGetallen) {
  EXPECT_EQ(begrens(1ULL, 2ULL, 5ULL), 2U);
  EXPECT_EQ(begrens(4ULL, 2ULL, 5ULL), 4U);
  EXPECT_EQ(begrens(~0ULL, 2ULL, 5ULL), 5U);
}

TEST(Begrens, verwisseldeGrenzenGevenEenVanBeide) {
  EXPECT_EQ(begrens(1.0, 5.0, 2.0), 5.0);
  EXPECT_EQ(begrens(3.0, 5.0, 2.0), 5.0);
  EXPECT_EQ(begrens(5.0, 5.0, 2.0), 2.0);
}

TEST(Begrens, geenGetalGeeftDeBovengrens) {
  EXPECT_EQ(begrens(geenGetal, 2.0, 5.0), 5.0);
}

}  // namespace
