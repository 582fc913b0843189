// The Speex encoder of the desktop tool: turns WAV files into the text of source arrays with their
// Speex frames, scaled to the width of the target's DAC. The layout of an array is drawn in
// speexHeader.h.
#pragma once

#include <wx/string.h>

#include <array>
#include <vector>

#include "audio/codec/uitvoerTaal.h"
#include "externals/software/extern/speex/speexEncoder.h"

class FragmentTekst;
class Percentage;
class SndBestand;
class wxFileName;
class wxMemoryOutputStream;
class wxOutputStream;

struct SpeexEncoderOpties {
  // C.
  SpeexEncoderOpties() = default;
  // C++, with the arrays as members of `klasse`.
  explicit SpeexEncoderOpties(wxString const& klasse) : taal(UitvoerTaalCPP), klasseNaam(klasse) {}

  int taal = UitvoerTaalC;  // an UitvoerTaal
  wxString klasseNaam;
};

class SpeexDesktopEncoder : public SpeexEncoder {
 public:
  // What encode returns.
  static constexpr int gelukt = 0;
  static constexpr int pastNiet = 2;  // another sampling frequency, or a language without arrays
  static constexpr int onbekendeTaal = 3;
  // The elements of its arrays.
  static constexpr char const* arrayType = "signed char";

  SpeexDesktopEncoder(SpeexEncodeConfig const& instellingen, SpeexEncoderOpties const& opties);

  // Appends the text of one file to `uitvoer`, UTF-8 with "\n" line ends, with the four header
  // bytes in the array or without. `verhouding` becomes the size of the frames, their size bytes
  // counted in, in per cent of the number of samples: whole, rounded down, at most 100, and 0 for a
  // file without samples. For 16-bit audio that is twice the share of the source's bytes.
  //
  // The encoder's state runs on from the file before. A file at another frequency than the
  // encoder's, or one that cannot be read, is logged, and writes nothing. A language that is not C
  // or C++ writes the comments and no array. Of a file with more than one channel it takes as many
  // interleaved values as the file has frames. Passes std::bad_alloc on.
  int encode(wxFileName const& bestand, wxMemoryOutputStream& uitvoer, bool metHeader,
             Percentage& verhouding);
  int encode(wxFileName const& bestand, wxOutputStream& uitvoer, bool metHeader,
             Percentage& verhouding);

 private:
  // What the frames of a file come to: sizes in bytes.
  struct Omvang {
    unsigned long long totaal = 0;  // with the size bytes
    int grootsteFrame = 0;          // without its size byte
    std::size_t frames = 0;         // their number
  };

  void meldFrequentie(wxFileName const& bestand, int frequentie) const;
  void schrijfInstellingen(FragmentTekst& tekst) const;
  static void schrijfOmvang(FragmentTekst& tekst, Omvang const& omvang,
                            Percentage const& verhouding);
  // Of each frame its size, in one byte, and its bytes.
  using Bytes = std::vector<unsigned char>;

  Omvang encodeFrames(SndBestand& wav, Bytes& frames);
  static void schrijfFrames(Bytes const& frames, std::size_t aantalFrames, wxOutputStream& uit);
  int encodeFrame(std::vector<short> const& samples, std::vector<float>& geschaald);

  std::array<char, maxFrameBytes> frameBuffer{};  // one encoded frame
  int taal;
  wxString klasseNaam;
  std::vector<wxString> booleanNamen;
  std::vector<wxString> formaatNamen;
  std::vector<wxString> bitrateNamen;
};
