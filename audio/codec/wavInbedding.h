// Direct embedding: the text of a source array that holds a whole WAV file image, header included,
// with its samples scaled to the width of the target's DAC. Nothing is encoded but what the format
// of the file itself asks for.
#pragma once

#include <wx/string.h>

class wxFileName;
class wxOutputStream;

struct InbedOpties {
  int taal;         // an UitvoerTaal; every value other than C and C++ leaves the array's head out
  wxString klasse;  // the class that owns the arrays in C++
  int dacBits;      // 1 to 16
  // Where the image of the WAV file is made. Empty: in a new temporary file, which stays.
  wxString beeld = {};
};

// Appends the text of one file to `uit`. The array is the image of a WAV file that libsndfile makes
// at opties.beeld, and that stays there: of the source's frequency, channels and format
// (IMA ADPCM is decoded and encoded again), its samples shifted down to `dacBits` bits and still 16
// bits wide, signed. Of a file with several channels it takes as many interleaved values as the
// file has frames, without the part of a frame that may be left at the end.
//
// Samples and bytes pass a block at a time, so that no file's size is ever held. A file that cannot
// be read has the format line of IMA ADPCM, zeros and "nan" in the lines below it, and an empty
// array.
//
// Returns whether the array holds all of that image: false where the source could not be read to
// its end, or the image not be written and read back. The text is complete but for the array then.
// What becomes of the text in `uit` is the affair of that stream.
bool schrijfInbedding(wxFileName const& wav, InbedOpties const& opties, wxOutputStream& uit);
