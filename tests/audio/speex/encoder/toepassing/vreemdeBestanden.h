// Sound files of other kinds than 16-bit PCM WAV, byte by byte from the definitions of their
// formats. All but the ADPCM file are well-formed files that the tool turns away.
#pragma once

#include <cstdint>
#include <string>

// A WAV of one IMA ADPCM block: 505 samples, mono, each with the value `waarde`.
std::string imaAdpcmWav(int rate, std::int16_t waarde);

// 16-bit PCM at 16000 Hz, mono, two samples, in other containers: a big-endian WAV, a WAV with the
// extensible format chunk, AIFF, and AU.
std::string rifxWav();
std::string extensibleWav();
std::string aiff();
std::string au();

// MPEG audio, layer III, mono, at 16000 Hz: some frames of silence.
std::string mp3();
