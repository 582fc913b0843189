#include "tests/firmware/texts/toolchain.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <string_view>
#include <utility>

#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/opdracht.h"

namespace {

char const* const gccSanitizers = KESTROLIN_SANITIZERS;
std::string const warnings = " -Wall -Wextra -Werror";
// Quoted for the shell, since the tree may lie anywhere.
std::string const firmware = "'" KESTROLIN_FIRMWARE "'";
std::string const texts = "'" KESTROLIN_TEXTS "'";
std::string const readersFlags = " -std=c99 -Wpedantic -I" + firmware + " -I" + texts;
std::string const readers = " " + firmware + "/kestrolin_*.c " + texts + "/runner.c ";

bool isThere(std::string const& program) {
  return program.front() == '/' ? std::filesystem::exists(program)
                                : voerUit("command -v " + program + " > /dev/null 2>&1") == 0;
}

// Bytes of the number in front of a stream.
constexpr std::ptrdiff_t countSize = 4;

std::string withBlanks(std::vector<std::string> const& words) {
  return std::accumulate(
      words.begin(), words.end(), std::string(),
      [](std::string const& line, std::string const& word) { return line + " " + word; });
}

}  // namespace

Toolchain hostToolchain(HostCompilers compilers, bool decodes) {
  bool const isGcc = compilers == HostCompilers::Gcc;
  std::string const sanitizers = isGcc ? gccSanitizers : "";
  Toolchain host;
  host.name = isGcc ? "gcc" : "clang";
  host.programs =
      isGcc ? std::vector<std::string>{"gcc", "g++"} : std::vector<std::string>{"clang", "clang++"};
  host.packages = {isGcc ? "g++" : "clang"};
  host.c = host.programs.front() + sanitizers + warnings;
  host.cpp = host.programs.back() + sanitizers + warnings;
  host.support = texts + "/host_main.c";
  host.support += decodes ? " -DRUNNER_DECODES_SPEEX" : "";
  host.link = host.programs.front() + sanitizers;
  host.libraries = decodes ? " -lspeex" : "";
  host.run = "./program > stream.bin";
  return host;
}

testing::AssertionResult isInstalled(Toolchain const& toolchain) {
  auto const missing =
      std::find_if_not(toolchain.programs.begin(), toolchain.programs.end(), isThere);
  if (missing == toolchain.programs.end()) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << *missing << " is not installed: apt-get install" << withBlanks(toolchain.packages);
}

bool isRequired(Toolchain const& toolchain) {
  char const* const said = std::getenv(toolchain.demand.c_str());
  return said != nullptr && said == std::string_view("required");
}

ProgramMaker::ProgramMaker(Toolchain chain, std::string const& folder)
    : toolchain(std::move(chain)), place(folder + "/" + toolchain.name) {}

bool ProgramMaker::prepare() {
  if (!prepared) {
    std::filesystem::create_directories(place + "/readers");
    testing::AssertionResult const made = luktIn(
        place, "cd readers && " + toolchain.c + readersFlags + readers + toolchain.support + " -c");
    EXPECT_TRUE(made);
    prepared = made;
  }
  return prepared;
}

Bytes ProgramMaker::partOf(Program const& program, std::size_t first, std::size_t last) {
  bool const inC = program.language == UitvoerTaalC;
  std::string const source = inC ? "program.c" : "program.cpp";
  maakBestand(place + "/" + source, sourceOf(program, first, last));
  std::filesystem::remove(place + "/stream.bin");
  std::string const compile = (inC ? toolchain.c + " -std=c99" : toolchain.cpp + " -std=c++11") +
                              " -I" + firmware + " -I" + texts + " -c " + source;
  std::string const link =
      toolchain.link + " program.o readers/*.o -o program" + toolchain.libraries;
  testing::AssertionResult const ran =
      luktIn(place, compile + " && " + link + " && " + toolchain.run);
  EXPECT_TRUE(ran);
  return ran ? leesBytes(place + "/stream.bin") : Bytes();
}

Bytes ProgramMaker::streamOf(Program const& program) {
  if (!prepare()) {
    return {};
  }
  std::size_t const all = program.fragments.size();
  // The count in front of each part becomes one for all.
  Bytes stream = laagEerst(all, countSize);
  for (std::size_t part = 0; part < toolchain.parts; ++part) {
    Bytes const own =
        partOf(program, all * part / toolchain.parts, all * (part + 1) / toolchain.parts);
    if (own.size() < countSize) {
      return {};
    }
    stream.insert(stream.end(), own.begin() + countSize, own.end());
  }
  return stream;
}
