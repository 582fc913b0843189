// What makes a program of readers, runner and text, and runs it: the compilers of the host, and
// those of the target with its emulator.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/firmware/texts/program.h"
#include "tests/steun/bytes.h"

struct Toolchain {
  std::string name;
  std::vector<std::string> programs;  // that it calls
  std::vector<std::string> packages;  // of Debian that they come in
  std::string c;                      // compilers, with the flags of any source
  std::string cpp;
  std::string support;    // the sources beside readers and runner, and flags for all of these
  std::string link;       // the linker, with its flags
  std::string libraries;  // behind the objects
  std::string run;        // runs "./program", which writes "stream.bin"
};

// The host's compilers. In a build with sanitizers GCC's programs have them too.
enum class HostCompilers : std::uint8_t { Gcc, Clang };

// With `decodes` the runner decodes Speex.
Toolchain hostToolchain(HostCompilers compilers, bool decodes);
Toolchain targetToolchain();

// Tells of the first program that is not there, and of the packages.
testing::AssertionResult isInstalled(Toolchain const& toolchain);

// Makes programs in a folder of its own, `folder` with the toolchain's name.
class ProgramMaker {
 public:
  ProgramMaker(Toolchain chain, std::string const& folder);

  // The stream of a program; the first call compiles readers and runner. Where something fails the
  // stream is empty, and the test has failed with what the compiler says.
  Bytes streamOf(Program const& program);

 private:
  bool prepare();

  Toolchain toolchain;
  std::string place;
  bool prepared = false;
};
