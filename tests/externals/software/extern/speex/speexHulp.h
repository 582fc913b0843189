// What the tests of the Speex encoder share: settings with names, a loop over the Speex library of
// their own, and a reader of the bytes that a generated text defines.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "externals/software/extern/speex/speexDesktopEncoder.h"
#include "tests/externals/software/extern/speex/speexRechtstreeks.h"
#include "tests/steun/bytes.h"

struct Instelling {
  int band = 0;
  unsigned int kwaliteit = 8;
  unsigned int complexiteit = 3;
  int soort = 0;
  unsigned int maxBitrate = 16000;
  unsigned int gainBits = 0;
  bool vad = false;
  bool denoise = false;
  bool agc = false;

  SpeexEncodeConfig config() const;
  int rate() const { return bandRates[static_cast<std::size_t>(band)]; }
  std::size_t frame() const { return bandFrames[static_cast<std::size_t>(band)]; }
};

// The blocks of `frame` items that a file of `wavFrames` sample frames is encoded in: what the file
// does not fill of the last one keeps the items of the block before, or zeros in the first.
std::vector<std::vector<int>> blokkenVan(std::vector<int> const& items, std::size_t wavFrames,
                                         std::size_t frame);

// A stream of frames straight out of the Speex library.
class LosseEncoder {
 public:
  explicit LosseEncoder(Instelling const& keuze);

  // The frame of these samples, which are scaled already.
  Bytes encode(std::vector<int> const& samples);
  // The frames of a mono file, scaled by hand.
  Frames bestand(std::vector<int> const& samples);
  // The same for a file of more channels.
  Frames bestand(std::vector<int> const& items, std::size_t wavFrames);

 private:
  void zet(int verzoek, unsigned int waarde);

  Instelling instelling;
  DirecteEncoder encoder;
};

// What the Speex library decodes from these frames, with its enhancement on.
std::vector<int> decodeer(Frames const& frames, int band);

// Divided by 2 to the power `bits`, toward minus infinity.
int geschaald(int sample, unsigned int bits);

// A voice with noise in it that comes and goes like syllables, four a second, with pauses between.
std::vector<int> spraak(std::size_t aantal, int rate);

struct Codering {
  int resultaat;
  std::string tekst;
  double verhouding;  // stays at `onaangeraakt` where encode does not set it
};
constexpr double onaangeraakt = 55.0;

// Encodes one file into a stream of its own.
Codering codeer(SpeexDesktopEncoder& encoder, std::string const& pad, bool metHeader = true);
// The same with a new encoder, in C.
Codering codeer(Instelling const& instelling, std::string const& pad, bool metHeader = true);

// The elements of the one array in a text, read as a compiler would: comments and casts away, then
// numbers with commas. The test fails where something else stands there.
Bytes arrayBytes(std::string const& tekst);
// The frames from `vanaf` to the end of an array; the test fails where the sizes do not end there.
Frames framesIn(Bytes const& array, std::size_t vanaf);
// The frames in the text of an array with header.
Frames framesIn(std::string const& tekst);
