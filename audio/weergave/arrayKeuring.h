// Whether the bytes of an array are what the comments before it tell.
#pragma once

struct TekstArray;

// Sets `metHeader` by the bytes, and for a WAV file of several channels the number of samples to
// that of each. False where the bytes fit the comments neither with header nor without.
bool keurArray(TekstArray& array);
