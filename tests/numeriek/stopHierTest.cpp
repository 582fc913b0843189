// The two functions that do nothing.
#include "numeriek/stopHier.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/numeriek/hoekHulp.h"

namespace {

static_assert(std::is_same_v<decltype(velmoraDummyFunktie()), int>);
static_assert(std::is_same_v<decltype(StopHier()), void>);

// It goes on to the real one: a breakpoint must not change the way of the program.
TEST(StopHier, keertTerug) {
  static_cast<void>(neemStops());
  StopHier();
  EXPECT_EQ(neemStops(), 1);
}

TEST(VelmoraDummyFunktie, geeftNul) {
  EXPECT_EQ(velmoraDummyFunktie(), 0);
}

}  // namespace
