// What the tests of the ADPCM converter share: the text that it writes, and the one that is
// expected of it.
#pragma once

#include <memory>
#include <string>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/adpcmPakket.h"
#include "tests/audio/codec/codecHulp.h"

// A converter whose coder has got the shift of the options.
ADPCMDesktopConverter converterMet(ADPCMEncoderOpties const& opties);

// The text of one file, with momentRegel in it.
std::string adpcmTekst(ADPCMDesktopConverter& converter, std::string const& pad, bool metHeader);
// The same from a new converter.
std::string adpcmTekst(ADPCMEncoderOpties const& opties, std::string const& pad, bool metHeader);

// The text of one fragment with these codes. The samples in `gegevens` do not count.
std::string verwachteAdpcmTekst(VerwachteTekst const& gegevens, Bytes const& codes);

// The bytes of the image that the converter writes of one file, at `uitvoer`.
Bytes adpcmBeeld(ADPCMDesktopConverter& converter, std::string const& pad, bool metHeader,
                 std::string const& uitvoer);

std::unique_ptr<VelmoraADPCMPakket> adpcmPakket(ADPCMDesktopConverter& converter,
                                                std::string const& pad);
Bytes codesVan(VelmoraADPCMPakket const& pakket);
