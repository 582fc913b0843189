// The text that the tool writes, compiled with the readers by each of the host's compilers: what a
// program hears in it are the samples that the rules of the formats give.
#include "tests/firmware/texts/workshop.h"

namespace {

struct HostCase {
  ProgramCase program;
  HostCompilers compilers;
};

void PrintTo(HostCase const& hostCase, std::ostream* out) {
  *out << hostCase.program.name;
}

std::vector<HostCase> casesOf(HostCompilers compilers, std::string const& name) {
  std::vector<HostCase> cases;
  for (ProgramCase const& program : allPrograms(name)) {
    cases.push_back({program, compilers});
  }
  return cases;
}

using HostTexts = TextsProof<HostCase>;

TEST_P(HostTexts, GiveTheSamplesOfTheDesktop) {
  auto const& [program, compilers] = GetParam();
  Toolchain const toolchain = hostToolchain(compilers, true);
  ASSERT_TRUE(isInstalled(toolchain));
  expectFragments(workshop->streamOf(program, toolchain), workshop->program(program), true);
}

INSTANTIATE_TEST_SUITE_P(Gcc, HostTexts, testing::ValuesIn(casesOf(HostCompilers::Gcc, "Gcc")),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Clang, HostTexts,
                         testing::ValuesIn(casesOf(HostCompilers::Clang, "Clang")),
                         testing::PrintToStringParamName());

}  // namespace
