#include "tests/firmware/texts/toolchain.h"

#include <algorithm>
#include <filesystem>
#include <numeric>
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
  return voerUit("command -v " + program + " > /dev/null 2>&1") == 0;
}

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

Toolchain targetToolchain() {
  std::string const example = firmware + "/example";
  std::string const machine = " -mcpu=cortex-m4 -mthumb";
  std::string const flags = machine + " -Os -ffreestanding" + warnings;
  Toolchain target;
  target.name = "target";
  target.programs = {"arm-none-eabi-gcc", "arm-none-eabi-g++", "qemu-system-arm"};
  target.packages = {"gcc-arm-none-eabi", "libnewlib-arm-none-eabi", "qemu-system-arm"};
  target.c = "arm-none-eabi-gcc" + flags;
  target.cpp = "arm-none-eabi-g++ -fno-exceptions -fno-rtti" + flags;
  target.support = "-I" + example + " " + example + "/startup.c " + example + "/semihosting.c " +
                   texts + "/target_main.c";
  // With the compiler of C: the text needs nothing of the library of C++.
  target.link = "arm-none-eabi-gcc" + machine + " -nostartfiles -T " + example + "/mps2-an386.ld";
  target.run = example + "/emulate program";
  return target;
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

Bytes ProgramMaker::streamOf(Program const& program) {
  if (!prepare()) {
    return {};
  }
  bool const inC = program.language == UitvoerTaalC;
  std::string const source = inC ? "program.c" : "program.cpp";
  maakBestand(place + "/" + source, sourceOf(program));
  std::filesystem::remove(place + "/stream.bin");
  std::string const compile = (inC ? toolchain.c + " -std=c99" : toolchain.cpp + " -std=c++11") +
                              " -I" + texts + " -c " + source;
  std::string const link =
      toolchain.link + " program.o readers/*.o -o program" + toolchain.libraries;
  testing::AssertionResult const ran =
      luktIn(place, compile + " && " + link + " && " + toolchain.run);
  EXPECT_TRUE(ran);
  return ran ? leesBytes(place + "/stream.bin") : Bytes();
}
