// Reads generated Speex text back and decodes its frames into a WAV file, so that the user hears an
// encoding before it goes into firmware. It is a forgiving scanner of characters, no parser of C:
// it knows comment lines, the "{" of an array, "x" before a hexadecimal number, and commas.
#pragma once

#include <array>

#include "externals/software/extern/speex/speexDecoder.h"

class FrameLezer;
class wxFileName;
class wxTextInputStream;
class wxWindow;

class SpeexDesktopDecoder : public SpeexDecoder {
 public:
  // What decode returns.
  static constexpr int gelukt = 0;
  static constexpr int pastNiet = 2;  // a fragment of another frequency, or no memory for the file

  // `venster` is kept and never used. It may be null.
  SpeexDesktopDecoder(SpeexBandFormaat band, wxWindow* venster);

  // Decodes the text in `invoer` to a mono WAV file `uitvoer` at the frequency of the band, of the
  // libsndfile format word `sfFormaat`. `aantalFragmenten` becomes the number of fragments met;
  // each one is logged. The samples keep the scale of the text.
  //
  // The header's second field is taken for a count of frames, although it counts samples: past the
  // true end of an array the scanner goes on through what follows, takes the frames of later
  // fragments for its own, and at the end of the text goes on writing its last block. A fragment of
  // another frequency, or without header, ends it with pastNiet and no message; so do the
  // fragments at 32000 Hz, whose header leesHeader cannot read. What was decoded before stays in
  // the file. Where that could not be written whole, one error line names it.
  //
  // A text that ends between the two header fields has a fragment of 0 frames there.
  // Any text may be handed in. It ends by itself: past the end of the text no count is run on above
  // what two header bytes can tell, and a WAV file that is full ends the decoding. Only the counts
  // of an edited text get there: 65535 frames of 640 samples are a sixth of what fits.
  int decode(wxFileName const& invoer, wxFileName const& uitvoer,
             unsigned long long& aantalFragmenten, unsigned int sfFormaat);

  // Reads a two-byte field of the header, two hexadecimal numbers with the low byte first, by
  // putting the digits of the second before those of the first. Bytes below 16 have one digit in
  // the text, so that it reads right only where the low byte has two. At the end of the text it
  // stops and leaves `waarde` as it was. The stream needs a conversion that always gets on, as
  // DoorlezendeConv does.
  static void leesHeader(wxTextInputStream& tekst, unsigned long& waarde);
  // Reads the next hexadecimal number, of which it returns the low 8 bits; 0 where there is none.
  static unsigned char leesHexWaarde(wxTextInputStream& tekst);

 private:
  struct Uitvoer;

  int leesFragmenten(FrameLezer& tekst, Uitvoer& uit, unsigned long long& aantalFragmenten);
  bool leesFragment(FrameLezer& tekst, Uitvoer& uit, unsigned long long& aantalFragmenten);

  [[maybe_unused]] wxWindow* ouder;
  std::array<char, maxFrameBytes> frameBuffer{};  // one encoded frame
};
