// The same on the targets: the text, compiled for each of them and played in an emulator, gives
// what the host gives, byte for byte.
#include "tests/firmware/texts/workshop.h"

namespace {

struct TargetCase {
  ProgramCase program;
  Toolchain (*toolchain)();
};

void PrintTo(TargetCase const& targetCase, std::ostream* out) {
  *out << targetCase.program.name;
}

std::vector<TargetCase> casesOf(Toolchain (*toolchain)()) {
  std::vector<TargetCase> cases;
  for (ProgramCase const& program : allPrograms("")) {
    cases.push_back({program, toolchain});
  }
  return cases;
}

using TargetTexts = TextsProof<TargetCase>;

TEST_P(TargetTexts, GiveWhatTheHostGives) {
  auto const& [program, toolchain] = GetParam();
  Toolchain const target = toolchain();
  testing::AssertionResult const installed = isInstalled(target);
  if (!installed && !isRequired(target)) {
    GTEST_SKIP() << installed.message();
  }
  ASSERT_TRUE(installed);
  Bytes const found = workshop->streamOf(program, target);
  expectFragments(found, workshop->program(program), false);
  Bytes const host = workshop->streamOf(program, hostToolchain(HostCompilers::Gcc, false));
  EXPECT_TRUE(found == host) << found.size() << " bytes, and " << host.size() << " on the host";
}

INSTANTIATE_TEST_SUITE_P(CortexM4, TargetTexts, testing::ValuesIn(casesOf(cortexM4)),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Avr, TargetTexts, testing::ValuesIn(casesOf(avr)),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(RiscV, TargetTexts, testing::ValuesIn(casesOf(riscV)),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(BigEndian, TargetTexts, testing::ValuesIn(casesOf(bigEndian)),
                         testing::PrintToStringParamName());

}  // namespace
