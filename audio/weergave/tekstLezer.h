// Reads the arrays back out of generated text: of the window or of the command line, in C or C++,
// in any of the program's languages, one run or several behind one another.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "audio/weergave/arrayBytes.h"

// An array, with what the comments before it tell.
struct TekstArray {
  std::string naam;
  std::string klasse;      // that owns it; empty in C
  std::string wavBestand;  // the name of the recording, in whatever bytes the text has it
  ArraySoort soort;
  std::uint32_t frequentie;     // samples a second and channel, 1 to 65535
  std::uint32_t aantalSamples;  // a channel
  unsigned int dacBits;         // 1 to 16; 0 for PCM and ADPCM, whose text does not tell
  bool metHeader;               // a WAV file has its own always
  std::size_t run;              // runs that began before it in this text
  std::size_t regel;            // the line of its head, from 1 on
  ArrayBytes bytes;
};

// What is no array that can be read, and what to do about that.
struct TekstKlacht {
  std::size_t regel;  // from 1 on; 0 for the text as a whole
  std::string reden;  // one line of UTF-8 without control characters
};

struct GelezenTekst {
  std::vector<TekstArray> arrays;
  std::vector<TekstKlacht> klachten;
};

// Takes any bytes. What else a source file holds, as declarations and directives, is passed over;
// a text that holds no array gets a complaint. Reading ends behind `maxKlachten` complaints. Memory
// and time go with the length of the text.
//
// Whether an array has a header is told by its bytes: its comment is translated, and may be gone.
// The array has one where the reader for firmware opens it so, and finds the frequency and the
// number of samples of the comments.
constexpr std::size_t maxKlachten = 20;
GelezenTekst ontleedTekst(std::string_view tekst);

// The name of the encoder: "PCM", "ADPCM", "Speex" or "WAV".
char const* naamVan(ArraySoort soort);
