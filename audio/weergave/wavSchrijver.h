// WAV files of 16-bit PCM.
#pragma once

#include "audio/weergave/doelDecoder.h"

class wxOutputStream;

// Whether a WAV file can hold the sound: its sizes have 32 bits.
bool pastInWav(DoelGeluid const& geluid);

// Writes the file, which has to hold the sound: a header of 44 bytes and the samples. The caller
// asks the stream whether it took them.
void schrijfWav(DoelGeluid const& geluid, wxOutputStream& uit);
