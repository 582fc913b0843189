// The lines of a Speex fragment's text as literals, to put an expected text together from.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/externals/software/extern/speex/arrayRegels.h"
#include "tests/externals/software/extern/speex/speexHulp.h"
#include "tests/steun/tijdelijkeMap.h"

// The lines about the file, with momentRegel among them.
std::string bestandRegels(std::string const& bestand, std::string const& rate,
                          std::string const& frames, std::string const& duur);

// The lines about the settings; the defaults are those of an Instelling.
struct InstelRegels {
  std::string dac = "16";
  std::string frame = "160";
  std::string band = "Narrowband";
  std::string soort = "Fixed Bitrate";
  std::string max = "16000";
  std::string agc = "false";
  std::string denoise = "false";
  std::string vad = "false";
  std::string kwaliteit = "8";
  std::string complexiteit = "3";

  std::string tekst() const;
};

// The lines about the sizes, and the same counted over `frames` of a file of `wavFrames` samples.
std::string omvangRegels(std::string const& totaal, std::string const& verhouding,
                         std::string const& grootste);
std::string omvangRegels(Frames const& frames, std::size_t wavFrames);

// "\t(signed char)0x40,..." for four literals.
std::string headerRegel(std::string const& b0, std::string const& b1, std::string const& b2,
                        std::string const& b3);

// The whole text of toon.wav in C: these lines about the file, the settings and the sizes, then the
// array, with these lines about its header.
std::string toonInC(std::string const& bestand, InstelRegels const& regels,
                    std::string const& omvang, std::string const& header, Frames const& frames);

// A test has a directory of its own for its WAV files.
class EncoderProef : public testing::Test {
 protected:
  std::string wav(std::string const& naam, std::vector<int> const& waarden, int rate = 8000,
                  int kanalen = 1);
  // The text in C of the file at `pad`, with momentRegel in it. Fails unless it succeeds.
  static std::string inC(Instelling const& instelling, std::string const& pad,
                         bool metHeader = true);

  TijdelijkeMap map;
};
