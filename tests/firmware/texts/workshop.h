// What the tests of one process share: the programs, made once for all compilers, and the makers,
// which compile readers and runner once each.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "tests/firmware/texts/program.h"
#include "tests/firmware/texts/toolchain.h"
#include "tests/steun/tijdelijkeMap.h"

// The values of one program, and the name of its compilers.
struct ProgramCase {
  Kind kind;
  UitvoerTaal language;
  std::string name;
};

void PrintTo(ProgramCase const& programCase, std::ostream* out);

// Every encoder in every language, under names that `compiler` ends.
std::vector<ProgramCase> allPrograms(std::string const& compiler);

class Workshop {
 public:
  Program const& program(ProgramCase const& programCase);
  // The stream of the program that the toolchain makes.
  Bytes streamOf(ProgramCase const& programCase, Toolchain const& toolchain);

 private:
  TijdelijkeMap folder;
  std::map<std::pair<Kind, UitvoerTaal>, Program> programs;
  std::map<std::string, ProgramMaker> makers;
};

// Has a workshop for as long as its tests run.
template <typename Case>
class TextsProof : public testing::TestWithParam<Case> {
 protected:
  static void SetUpTestSuite() { workshop = std::make_unique<Workshop>(); }
  static void TearDownTestSuite() { workshop.reset(); }

  inline static std::unique_ptr<Workshop> workshop;
};

// The test fails where a fragment is not what it has to be. `decoded` tells whether the frames of
// Speex were decoded.
void expectFragments(Bytes const& stream, Program const& program, bool decoded);
