// WAV files for tests, written byte by byte from the definition of the format and not through the
// library that the tool reads them with.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct WavSoort {
  int rate = 8000;  // Hz
  int kanalen = 1;
  int bits = 16;        // the width of a sample: 8, 16, 24 or 32
  int formaatCode = 1;  // 1 is PCM, 3 is float
};

// The bytes of a WAV file with `data` as the content of its data chunk, directly behind a 16-byte
// fmt chunk.
std::string wavBytes(WavSoort const& soort, std::string const& data);

// The same for interleaved values, each within the width that `soort` asks for.
std::string wavBytes(WavSoort const& soort, std::vector<int> const& waarden);

// Writes a file of interleaved values.
void schrijfWav(std::string const& pad, std::vector<int> const& waarden,
                WavSoort const& soort = {});
void maakWav(std::string const& pad, std::vector<std::int16_t> const& samples,
             WavSoort const& soort = {});

// Writes the bytes of `inhoud` as they are.
void maakBestand(std::string const& pad, std::string const& inhoud);

// A tone-like run of `aantal` samples that visits the whole 16-bit range, the same at every run.
std::vector<std::int16_t> proefSamples(std::size_t aantal);
