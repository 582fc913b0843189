// The text of Speex fragments and of whole runs, put together by hand around frames that come
// straight out of the Speex library.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/externals/software/extern/speex/arrayRegels.h"
#include "tests/externals/software/extern/speex/speexHulp.h"
#include "tests/steun/tijdelijkeMap.h"

// A WAV file of a run.
struct SpeexFragment {
  std::string naam;  // without ".wav"
  std::vector<int> samples;
};
using SpeexFragmenten = std::vector<SpeexFragment>;

// What becomes of the files.
struct SpeexDoel {
  Instelling instelling;
  int taal = 0;
  bool metHeader = true;
  std::string klasse = "Geluid";
};

// The settings of a first start, for files of this band.
Instelling eersteInstelling(int band = 0);
// Speech of about half a second with a pause in it: every setting that reaches the audio shows in
// its frames.
SpeexFragment spraakFragment(std::string const& naam = "bel");
// Three files of different ratios, in the order of their names.
SpeexFragmenten drieFragmenten();
// The frames of each file, from one encoder for all of them.
std::vector<Frames> framesVan(SpeexFragmenten const& fragmenten, Instelling const& instelling);

// The lines about the settings, and those about the sizes.
std::string instelRegels(Instelling const& instelling);
std::string omvangRegels(std::size_t totaal, std::size_t procent, std::size_t grootste);
// All comments in front of the array of a file of `aantal` sample frames, with momentRegel.
std::string kopRegels(std::string const& bestand, std::size_t aantal, Instelling const& instelling,
                      Frames const& frames);
// The whole text of such a file; `naam` has no ".wav".
std::string fragmentTekst(std::string const& naam, std::size_t aantal, Frames const& frames,
                          SpeexDoel const& doel = {});

// The text of a run over these files, and that of one that ended at the file of this number, from 1
// on.
std::string runTekst(SpeexFragmenten const& fragmenten, SpeexDoel const& doel);
std::string runTot(std::size_t nummer, SpeexFragmenten const& fragmenten, SpeexDoel const& doel);

// A test has a directory of its own for its WAV files.
class EncoderProef : public testing::Test {
 protected:
  std::string wav(std::string const& naam, std::vector<int> const& waarden, int rate = 8000,
                  int kanalen = 1);
  // The text in C of the file at `pad`, with momentRegel in it. Fails unless it succeeds.
  static std::string inC(Instelling const& instelling, std::string const& pad,
                         bool metHeader = true);
  // Expects the text of toon.wav, a file of these samples, in C, and returns what there is.
  std::string verwachtToon(Instelling const& instelling, std::vector<int> const& samples,
                           bool metHeader = true);

  TijdelijkeMap map;
};
