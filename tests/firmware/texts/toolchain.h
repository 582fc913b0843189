// What makes a program of readers, runner and text, and runs it: the compilers of the host, and
// those of the target with its emulator.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/firmware/texts/program.h"
#include "tests/steun/bytes.h"

struct Toolchain {
  std::string name;
  std::vector<std::string> programs;  // that it calls, and files by their whole path
  std::vector<std::string> packages;  // of Debian that they come in
  std::string c;                      // compilers, with the flags of any source
  std::string cpp;
  std::string support;    // the sources beside readers and runner, and flags for all of these
  std::string link;       // the linker, with its flags
  std::string libraries;  // behind the objects
  std::string run;        // runs "./program", which writes "stream.bin"
  std::string demand = "KESTROLIN_TARGET";  // the variable that says "required" of these tools
  std::size_t parts = 1;  // programs that the fragments are dealt out to, for want of room
};

// The host's compilers. In a build with sanitizers GCC's programs have them too.
enum class HostCompilers : std::uint8_t { Gcc, Clang };

// With `decodes` the runner decodes Speex.
Toolchain hostToolchain(HostCompilers compilers, bool decodes);

// The targets, each with its emulator.
Toolchain cortexM4();
Toolchain avr();        // integers of 16 bits, and arrays in flash of its own address space
Toolchain riscV();      // 32 bits
Toolchain bigEndian();  // the other byte order, in a user's process

// Tells of the first program or file that is not there, and of the packages.
testing::AssertionResult isInstalled(Toolchain const& toolchain);

// Whether a machine without these tools fails a test, where it would otherwise skip it.
bool isRequired(Toolchain const& toolchain);

// Makes programs in a folder of its own, `folder` with the toolchain's name.
class ProgramMaker {
 public:
  ProgramMaker(Toolchain chain, std::string const& folder);

  // The stream of a program, of all its parts as of one; the first call compiles readers and
  // runner. Where something fails the stream is empty, and the test has failed with what the
  // compiler says.
  Bytes streamOf(Program const& program);

 private:
  bool prepare();
  Bytes partOf(Program const& program, std::size_t first, std::size_t last);

  Toolchain toolchain;
  std::string place;
  bool prepared = false;
};
