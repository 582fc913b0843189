// The PCM encoder of the desktop tool: turns a WAV file into the text of a source array with its
// samples, scaled to the width of the target's DAC, and a binary image back into a WAV file.
#pragma once

#include <wx/string.h>

#include "audio/codec/converterOpties.h"
#include "audio/codec/uitvoerTaal.h"

class VelmoraPCMPakket;
class wxFileName;
class wxMemoryOutputStream;
class wxOutputStream;

// Every value other than C and C++ leaves the head of the array out.
enum PCMEncoderTaal : int {
  PCMTaalC = UitvoerTaalC,
  PCMTaalCPP = UitvoerTaalCPP,
  PCMTaalPython = UitvoerTaalPython
};

using PCMEncoderOpties = ConverterOpties<PCMEncoderTaal>;

// None of the operations returns an error: a file that cannot be read counts as one of 0 samples at
// 0 Hz, and is told in the log. std::bad_alloc passes through.
class PCMDesktopConverter {
 public:
  explicit PCMDesktopConverter(PCMEncoderOpties const& eerste);

  // Replaces the language, the class name and the shift.
  void zetOpties(PCMEncoderOpties const& nieuw);

  // Reads one file and scales its samples. The caller owns the packet. Of a file with more than one
  // channel it takes as many interleaved values as the file has frames.
  VelmoraPCMPakket* codeerBestand(wxFileName const& wav) const;

  // Appends the text of one file to `uit`, a stream in memory or any other, with the serial header
  // in the array or without. Either way the array has room for the header; without it, six zero
  // bytes stand at its end.
  void codeerBestand(wxFileName const& wav, bool metHeader, wxMemoryOutputStream& uit) const;
  void codeerBestand(wxFileName const& wav, bool metHeader, wxOutputStream& uit) const;

  // Writes the text of one file to a file of its own, replacing what it held.
  void codeerBestand(wxFileName const& wav, bool metHeader, wxFileName const& uitvoer) const;

  // Turns the binary serial image with header in `bron` into a mono 16-bit WAV file. The count in
  // the image is believed: where the file holds less, zeros make up the rest. The samples are not
  // scaled back, so an image for an 8-bit DAC plays at 1/256 of its source's level. A `bron` that
  // cannot be read leaves `doel` alone.
  void decodeerBestand(wxFileName const& bron, wxFileName const& doel) const;

 private:
  PCMEncoderOpties opties;
};
