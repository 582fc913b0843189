// What each encoder makes of a recording: how much flash it takes, and how near it sounds.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "audio/weergave/arrayBytes.h"
#include "audio/weergave/kwaliteit.h"
#include "opdrachtregel/opname.h"

// What an encoder is told to do. All else is as in a first start of the window.
struct Instelling {
  ArraySoort soort;
  unsigned int dacBits;  // 8, 10, 12 or 16
  std::optional<unsigned int> speexKwaliteit;
  // Whether ADPCM gets the recording at a level that fits the low byte of its samples.
  bool isOmlaag;
};

struct Encodering {
  Instelling instelling;
  std::size_t bytes;
  // Nothing where the recording has no frame that sounds.
  std::optional<Kwaliteit> kwaliteit;
};

struct Vergelijking {
  Opname opname;
  bool pastInByte;  // at the level that ADPCM wants
  std::vector<Encodering> encoderingen;

  // In seconds.
  double duur() const;
  // Whole bytes of flash a second of the recording; nothing where it is empty.
  std::optional<long> bytesPerSeconde(Encodering const& encodering) const;
};

// Nothing where not all of the recording could be encoded, which was told.
std::optional<Vergelijking> vergelijk(Opname const& opname);

// "quality 8", "12-bit DAC" and the like.
std::string beschrijf(Instelling const& instelling);
