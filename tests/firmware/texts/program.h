// The fragments of one program: their text, made by the tool's own classes, and what has to come
// out of them, by the rules of the formats and without the tool.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "audio/codec/uitvoerTaal.h"
#include "tests/firmware/texts/record.h"

enum class Kind : std::uint8_t { Pcm, Adpcm, Speex, Wav };

// What the user sets for a run.
struct Setting {
  unsigned width = 16;  // of the DAC, in bits
  bool header = true;

  // Bits to scale away, and what a sample is divided by for that.
  unsigned shift() const { return 16 - width; }
  int divisor() const { return 1 << shift(); }
};

struct Source {
  std::string name;
  int rate = 8000;
  std::vector<int> samples;
};

struct TextFragment {
  std::string name;
  Setting setting;
  Record expected;
  bool resumed = false;
};

struct Program {
  Kind kind;
  UitvoerTaal language;
  std::string text;
  std::vector<TextFragment> fragments;
};

// The class that owns the arrays in C++.
constexpr char const* className = "Sounds";

// Every width of the DAC, with header and without.
std::vector<Setting> allSettings();

// The name of a fragment, and of its array: one for each setting.
std::string nameOf(Source const& source, Setting const& setting);

// The WAV file that an array of this name is made of.
std::string wavPath(std::string const& folder, std::string const& name);

// The samples of a fragment, also where its array is one of Speex without header, which does not
// tell: its twin with header does.
unsigned sampleCount(Program const& program, TextFragment const& fragment);

// The codes of a DAC of `width` bits for samples that are `bits` wide.
std::vector<int> expectedCodes(std::vector<int> const& samples, unsigned bits, unsigned width);

// Makes the text, and tells what to expect. The WAV files that the text is made of go into the
// folder.
Program pcmProgram(std::string const& folder, UitvoerTaal language);
Program adpcmProgram(std::string const& folder, UitvoerTaal language);
Program speexProgram(std::string const& folder, UitvoerTaal language);
Program wavProgram(std::string const& folder, UitvoerTaal language);
Program makeProgram(Kind kind, UitvoerTaal language, std::string const& folder);

// The source file that holds the program's fragments and the table of those from number `first` to
// before `last`: C or C++, to be compiled with runner.h and the readers' headers.
std::string sourceOf(Program const& program, std::size_t first, std::size_t last);
