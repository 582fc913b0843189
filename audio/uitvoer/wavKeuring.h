// Which sound files the tool takes, and the Speex band that goes with a sampling frequency.
#pragma once

#include <sndfile.h>

// True for WAV files with 16-bit PCM or IMA ADPCM samples at 8000, 16000 or 32000 Hz. The number of
// channels does not matter. A file that could not be opened has a rate of 0 and is turned away.
bool isBruikbaar(SF_INFO const& info);

// True for IMA ADPCM among the usable files; the others are 16-bit PCM.
bool isAdpcm(SF_INFO const& info);

// The index of the band choice for the rate of a usable file: 0 for 8000, 1 for 16000, 2 for 32000
// Hz. 3 for any other rate.
int bandVoorFrequentie(int samplerate);

// Whether a usable file goes with the others of its load. The first file of a load decides on the
// band of all. One at 8000 Hz behind others ends the load without a word: that asymmetry stays.
enum class BandOordeel { past, wijktAf, wijktStilAf };
BandOordeel keurBand(int samplerate, int band);
