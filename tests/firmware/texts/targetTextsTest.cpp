// The same on the target: the text, compiled for a Cortex-M4 and played in an emulator, gives what
// the host gives, byte for byte.
#include <cstdlib>
#include <string_view>

#include "tests/firmware/texts/workshop.h"

namespace {

// Whether a machine without the target's tools fails, where it would otherwise skip.
bool isRequired() {
  char const* const target = std::getenv("KESTROLIN_TARGET");
  return target != nullptr && target == std::string_view("required");
}

using TargetTexts = TextsProof<ProgramCase>;

TEST_P(TargetTexts, GiveWhatTheHostGives) {
  Toolchain const target = targetToolchain();
  testing::AssertionResult const installed = isInstalled(target);
  if (!installed && !isRequired()) {
    GTEST_SKIP() << installed.message();
  }
  ASSERT_TRUE(installed);
  Bytes const found = workshop->streamOf(GetParam(), target);
  expectFragments(found, workshop->program(GetParam()), false);
  Bytes const host = workshop->streamOf(GetParam(), hostToolchain(HostCompilers::Gcc, false));
  EXPECT_TRUE(found == host) << found.size() << " bytes, and " << host.size() << " on the host";
}

INSTANTIATE_TEST_SUITE_P(CortexM4, TargetTexts, testing::ValuesIn(allPrograms("")),
                         testing::PrintToStringParamName());

}  // namespace
