// What the tests of the Speex decoder share: frames that libspeex makes and decodes by itself, the
// text of arrays put together by hand, and one decoding with all that comes out of it.
#pragma once

#include <gtest/gtest.h>
#include <sndfile.h>

#include <string>
#include <vector>

#include "externals/software/extern/speex/speexFormaten.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/steun/bytes.h"
#include "tests/steun/logboek.h"

using Samples = std::vector<short>;

// Of a band, as the definition of Speex has them.
int rateVan(SpeexBandFormaat band);
std::size_t blokVan(SpeexBandFormaat band);

// Noise over a part of the range that rises and falls, so that blocks and their order are told
// apart.
Samples ruis(std::size_t aantal);
// The frames of `samples`, whole blocks, at a fixed bit rate, by libspeex alone. At 8000 Hz quality
// 4 makes frames of 20 bytes.
Frames codeer(SpeexBandFormaat band, Samples const& samples, int kwaliteit = 4);
// `aantal` different frames.
Frames maakFrames(SpeexBandFormaat band, std::size_t aantal, int kwaliteit = 4);

// What a listener hears: libspeex alone, with enhancement. `samples` grows by a block a frame.
class Luisteraar {
 public:
  explicit Luisteraar(SpeexBandFormaat band);

  void hoor(Bytes const& frame);
  void hoorAlle(Frames const& frames);
  // The block that was heard last, again.
  void herhaal(std::size_t keer);

  Samples samples;

 private:
  DirecteDecoder decoder;
  Samples blok;
};

// What a listener hears of these frames, and the last block again `keer` times.
Samples gehoord(Frames const& frames, std::size_t keer = 0,
                SpeexBandFormaat band = SpeexNarrowband);

// One array with its header, in C, from its first line to the comment behind it.
std::string arrayTekst(int rate, unsigned int telling, Frames const& frames);
// One array of the lines in `inhoud`.
std::string arrayMet(std::string const& inhoud);

// How the texts of whole runs are encoded here: at quality 4 and complexity 2.
SpeexDoel runDoel(SpeexBandFormaat band = SpeexNarrowband);
// The text of a run in which each entry of `fragmenten` is a file, toon1.wav and so on.
std::string runVan(std::vector<Samples> const& fragmenten, SpeexDoel const& doel = runDoel());

// What one decoding gave. The count stood at 99 before it.
struct Gedecodeerd {
  int uitslag = -1;
  unsigned long long fragmenten = 0;
  Samples samples;
  std::vector<LogRegel> log;
};

// Expects a decoding to succeed, with so many fragments and this sound.
void verwachtGeluid(Gedecodeerd const& gevonden, unsigned long long fragmenten,
                    Samples const& verwacht);

// Decodes a text to 16-bit PCM; the test fails where the WAV file is not one of that kind at the
// rate of the band, with one channel.
Gedecodeerd decodeer(std::string const& tekst, SpeexBandFormaat band = SpeexNarrowband);
// Decodes a file to another; returns the result and the count.
Gedecodeerd decodeerBestand(std::string const& van, std::string const& naar,
                            unsigned int sfFormaat = SF_FORMAT_WAV | SF_FORMAT_PCM_16,
                            SpeexBandFormaat band = SpeexNarrowband);

// What libsndfile finds in a file; zeros where it does not open it.
SF_INFO wavInfo(std::string const& pad);

// Compares two runs of samples; the failure shows the first that differs and not all of both.
testing::AssertionResult zelfdeSamples(Samples const& gevonden, Samples const& verwacht);
