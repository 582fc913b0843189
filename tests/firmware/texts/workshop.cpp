#include "tests/firmware/texts/workshop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace {

// By Kind.
constexpr std::array<char const*, 4> kindNames{"Pcm", "Adpcm", "Speex", "Wav"};

// Of rows of thousands the first difference is what tells.
template <typename Row>
testing::AssertionResult isSame(Row const& found, Row const& expected) {
  if (found == expected) {
    return testing::AssertionSuccess();
  }
  auto const [mine, theirs] =
      std::mismatch(found.begin(), found.end(), expected.begin(), expected.end());
  testing::AssertionResult failure = testing::AssertionFailure();
  failure << found.size() << " found, " << expected.size() << " expected";
  if (mine != found.end() && theirs != expected.end()) {
    failure << "; number " << mine - found.begin() << " is " << testing::PrintToString(*mine)
            << " and not " << testing::PrintToString(*theirs);
  }
  return failure;
}

void expectRecord(Record const& found, Record const& expected) {
  EXPECT_EQ(found.status, expected.status);
  EXPECT_EQ(found.rate, expected.rate);
  EXPECT_EQ(found.channels, expected.channels);
  EXPECT_EQ(found.count, expected.count);
  EXPECT_EQ(found.speexFrames, expected.speexFrames);
  EXPECT_EQ(found.frameSamples, expected.frameSamples);
  EXPECT_EQ(found.mode, expected.mode);
  EXPECT_EQ(found.delay, expected.delay);
  EXPECT_TRUE(isSame(found.frames, expected.frames)) << "frames";
  EXPECT_TRUE(isSame(found.samples, expected.samples)) << "samples";
  EXPECT_TRUE(isSame(found.codes, expected.codes)) << "codes";
  EXPECT_EQ(found.left, expected.left);
}

}  // namespace

void PrintTo(ProgramCase const& programCase, std::ostream* out) {
  *out << programCase.name;
}

std::vector<ProgramCase> allPrograms(std::string const& compiler) {
  std::vector<ProgramCase> cases;
  for (Kind const kind : {Kind::Pcm, Kind::Adpcm, Kind::Speex, Kind::Wav}) {
    std::string const name = kindNames.at(static_cast<std::size_t>(kind));
    cases.push_back({kind, UitvoerTaalC, std::string(name).append("C").append(compiler)});
    cases.push_back({kind, UitvoerTaalCPP, std::string(name).append("Cpp").append(compiler)});
  }
  return cases;
}

Program const& Workshop::program(ProgramCase const& programCase) {
  std::pair const key(programCase.kind, programCase.language);
  auto const known = programs.find(key);
  if (known != programs.end()) {
    return known->second;
  }
  Program program = makeProgram(programCase.kind, programCase.language, folder.pad());
  return programs.emplace(key, std::move(program)).first->second;
}

Bytes Workshop::streamOf(ProgramCase const& programCase, Toolchain const& toolchain) {
  auto const maker = makers.try_emplace(toolchain.name, toolchain, folder.pad()).first;
  return maker->second.streamOf(program(programCase));
}

void expectFragments(Bytes const& stream, Program const& program, bool decoded) {
  std::optional<std::vector<Record>> const found = readRecords(stream);
  ASSERT_TRUE(found) << "the stream of " << stream.size() << " bytes is none";
  ASSERT_EQ(found->size(), program.fragments.size());
  auto record = found->begin();
  for (TextFragment const& fragment : program.fragments) {
    SCOPED_TRACE(fragment.name);
    Record expected = fragment.expected;
    if (program.kind == Kind::Speex && !decoded) {
      expected.samples.clear();
      expected.codes.clear();
    }
    expectRecord(*record++, expected);
  }
}
