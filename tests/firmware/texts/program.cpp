#include "tests/firmware/texts/program.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

// As runner.h names each Kind.
constexpr std::array<char const*, 4> kindNames{"RUNNER_PCM", "RUNNER_ADPCM", "RUNNER_SPEEX",
                                               "RUNNER_WAV"};

// The array of a fragment as the source says its name.
std::string arrayOf(Program const& program, TextFragment const& fragment) {
  return (program.language == UitvoerTaalCPP ? std::string(className) + "::" : "") + fragment.name;
}

// The declarations of the arrays, which put them where the readers read.
std::string declarationsOf(Program const& program, std::string const& storage) {
  std::string const type = program.kind == Kind::Speex ? "signed char" : "unsigned char";
  std::string source;
  for (TextFragment const& fragment : program.fragments) {
    source += storage + " const " + type + " " + fragment.name + "[] KESTROLIN_FLASH;\n";
  }
  return source;
}

// The class, which the text defines the members of.
std::string classOf(Program const& program) {
  return "class " + std::string(className) + " {\n public:\n" +
         declarationsOf(program, "  static") + "};\n";
}

std::string rowOf(Program const& program, TextFragment const& fragment) {
  std::string const array = arrayOf(program, fragment);
  return std::string("  {") + kindNames.at(static_cast<std::size_t>(program.kind)) + ", " +
         (fragment.setting.header ? "1, " : "0, ") + (fragment.resumed ? "1, " : "0, ") +
         std::to_string(fragment.setting.width) + ", " + std::to_string(fragment.expected.rate) +
         ", " + array + ", sizeof " + array + "},\n";
}

}  // namespace

std::vector<Setting> allSettings() {
  return {{8, true},  {8, false},  {10, true}, {10, false},
          {12, true}, {12, false}, {16, true}, {16, false}};
}

std::string nameOf(Source const& source, Setting const& setting) {
  return source.name + std::to_string(setting.width) + (setting.header ? "_headed" : "_bare");
}

std::string wavPath(std::string const& folder, std::string const& name) {
  return folder + "/" + name + ".wav";
}

std::vector<int> expectedCodes(std::vector<int> const& samples, unsigned bits, unsigned width) {
  int const middle = 1 << (bits - 1);
  int const step = 1 << (width - bits);
  std::vector<int> codes(samples.size());
  std::transform(samples.begin(), samples.end(), codes.begin(), [middle, step](int sample) {
    return std::clamp(sample + middle, 0, 2 * middle - 1) * step;
  });
  return codes;
}

unsigned sampleCount(Program const& program, TextFragment const& fragment) {
  std::string const bare = "_bare";
  std::string const stem = fragment.name.substr(0, fragment.name.rfind(bare));
  auto const twin =
      std::find_if(program.fragments.begin(), program.fragments.end(),
                   [&](TextFragment const& other) { return other.name == stem + "_headed"; });
  return (twin == program.fragments.end() ? fragment : *twin).expected.count;
}

Program makeProgram(Kind kind, UitvoerTaal language, std::string const& folder) {
  constexpr std::array makers{pcmProgram, adpcmProgram, speexProgram, wavProgram};
  return makers.at(static_cast<std::size_t>(kind))(folder, language);
}

std::string sourceOf(Program const& program, std::size_t first, std::size_t last) {
  std::string source = "#include \"kestrolin_status.h\"\n#include \"runner.h\"\n";
  source +=
      program.language == UitvoerTaalCPP ? classOf(program) : declarationsOf(program, "extern");
  source += program.text + "const runner_fragment runner_fragments[] = {\n";
  for (std::size_t i = first; i < last; ++i) {
    source += rowOf(program, program.fragments.at(i));
  }
  return source +
         "};\n"
         "const size_t runner_count = sizeof runner_fragments / sizeof runner_fragments[0];\n";
}
