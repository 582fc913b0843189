// The sound that is measured with.
#pragma once

#include <string>

// Writes a mono WAV file of 16-bit noise of full scale, the same at every run.
void maakRuis(std::string const& pad, int samplerate, int seconden);
