// What no program with integers of 32 bits can show of the readers: small_integers.c, on an AVR.
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/texts/toolchain.h"
#include "tests/steun/tijdelijkeMap.h"

TEST(AvrIntegers, BreakNothing) {
  Toolchain const target = avr();
  testing::AssertionResult const installed = isInstalled(target);
  if (!installed && !isRequired(target)) {
    GTEST_SKIP() << installed.message();
  }
  ASSERT_TRUE(installed);
  TijdelijkeMap const folder;
  std::string const firmware = "'" KESTROLIN_FIRMWARE "'";
  std::string const texts = "'" KESTROLIN_TEXTS "'";
  std::string const build = target.c + " -std=c99 -I" + firmware + " -I" + texts + " " + firmware +
                            "/kestrolin_*.c " + texts + "/small_integers.c " + target.support +
                            " -o program";
  ASSERT_TRUE(luktIn(folder.pad(), build + " && " + target.run));
  // A line of that source for each check that failed.
  EXPECT_EQ(leesBytes(folder.pad("stream.bin")), (Bytes{0, 0}));
}
