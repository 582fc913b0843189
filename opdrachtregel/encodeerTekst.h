// The run of kestrolin-cli encode.
#pragma once

#include <vector>

#include "opdrachtregel/bijlagen.h"
#include "opdrachtregel/encodeerOpties.h"
#include "opdrachtregel/opname.h"

class wxOutputStream;

// Writes the text that the window makes of these recordings, in the order of their full paths.
// False where a recording could not be encoded whole, which was told. What became of the text in
// `uit` is the affair of that stream. Where `standen` is given, the encoder is that of ADPCM, and
// the state that it was in before each recording is added there.
bool schrijfTekst(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                  wxOutputStream& uit, std::vector<CoderStand>* standen);
