// The ADPCM encoder of the desktop tool: turns a WAV file into the text of a source array with its
// codes, or into a binary image of that array, and such an image back into a WAV file.
#pragma once

#include <wx/string.h>

#include "audio/codec/adpcmConverter.h"
#include "audio/codec/converterOpties.h"
#include "audio/codec/uitvoerTaal.h"

class VelmoraADPCMPakket;
class VelmoraPCMPakket;
class wxFileName;
class wxMemoryOutputStream;
class wxOutputStream;

// Every value other than C and C++ leaves the head of the array out.
enum ADPCMEncoderTaal : int {
  ADPCMTaalC = UitvoerTaalC,
  ADPCMTaalCPP = UitvoerTaalCPP,
  ADPCMTaalPython = UitvoerTaalPython
};

using ADPCMEncoderOpties = ConverterOpties<ADPCMEncoderTaal>;

// None of the operations returns an error: a file that cannot be read counts as one of 0 samples at
// 0 Hz, and is told in the log. std::bad_alloc passes through, where the toolkit lets it. The
// coder's state goes on from file to file for the life of the object, so that the same file gives
// other codes the second time.
class ADPCMDesktopConverter : public ADPCMConverter {
 public:
  // The shift of the options reaches the coder with zetOpties only; until then nothing is scaled.
  explicit ADPCMDesktopConverter(ADPCMEncoderOpties const& eerste);

  // Replaces the language, the class name and the shift. The coder's state stays as it is.
  void zetOpties(ADPCMEncoderOpties const& nieuw);

  // Reads and encodes one file. The caller owns the packet. Of a file with more than one channel it
  // takes as many interleaved values as the file has frames. An odd last sample is not coded.
  VelmoraADPCMPakket* codeerBestand(wxFileName const& wav);

  // Appends the text of one file to `uit`, a stream in memory or any other, with the serial header
  // in the array or without. Either way the array has room for the header; without it, nine zero
  // bytes stand at its end.
  void codeerBestand(wxFileName const& wav, bool metHeader, wxMemoryOutputStream& uit);
  void codeerBestand(wxFileName const& wav, bool metHeader, wxOutputStream& uit);

  // Writes the bytes that the array would hold to a file, replacing what it held.
  void codeerBestand(wxFileName const& wav, bool metHeader, wxFileName const& uitvoer);

  // Decodes a binary image. The caller owns the packet. On purpose all first eight bytes of the
  // image count as its size, frequency and predictor too: an image of a recording at 8000 Hz or
  // more asks for more memory than there is, and leaves as std::bad_alloc. What can be decoded is
  // an image whose frequency and predictor are 0. The frequency of the packet has the high byte at
  // bit 16; it has two samples for each byte of that size, and what the file lacks counts as zero
  // codes.
  VelmoraPCMPakket* decodeerBestand(wxFileName const& bron);

  // The same to a mono 16-bit WAV file. A frequency that libsndfile refuses, as it does 0, leaves
  // there what libsndfile leaves: no samples. A `bron` that cannot be read leaves `doel` alone.
  void decodeerBestand(wxFileName const& bron, wxFileName const& doel);

  // Decodes a packet to a temporary WAV file and plays that, returning when the sound has ended.
  // The file is still open for writing then and counts no samples yet in its header, so that a
  // player which believes the header has nothing to play; it stays in the temporary directory.
  void speel(VelmoraADPCMPakket const& pakket);

  // Encodes a file to a temporary image, decodes that to a temporary WAV file and plays it, with
  // all that decodeerBestand tells. Both files stay in the temporary directory.
  //
  // These two stand in a library of their own, audiocodecSpeler: sound belongs to the toolkit's
  // windows, and the codecs do without them.
  void voerUitZelfTest(wxFileName const& wav);

 private:
  ADPCMEncoderOpties opties;
};
