// The writer of the rows of all arrays: bytes, eight to the line, as one of the two tables of
// byteTekst.h has them. Rows are most of a generated text, so they are made as bytes and go to
// the stream in blocks.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "audio/codec/byteTekst.h"
#include "audio/codec/stroomRuimte.h"

class RijSchrijver {
 public:
  // Appends to `stroom`, which must outlive this object. A stream in memory gets room for `bytes`
  // bytes of an array, and for `anders` signs of other text, at once. Passes std::bad_alloc on.
  RijSchrijver(wxOutputStream& stroom, ByteTeksten const& notatie, std::size_t bytes,
               std::size_t anders = 0);

  // Goes on in the row where the last call stopped. A full row is broken, by "\n\t", where another
  // byte follows it.
  void schrijfBytes(unsigned char const* begin, std::size_t aantal);
  // Breaks the last row if it is full.
  void breekVolleRij();
  // ASCII text, at most a line of it. The next byte begins a row.
  void schrijfTekst(std::string_view tekst);

  // Hands over what the stream does not have yet: the last call. Nothing more is written once a
  // write has failed, since the toolkit logs each one that does.
  void rondAf();

 private:
  void maakPlaats(std::size_t tekens);
  void stuurDoor();

  wxOutputStream& uit;
  std::optional<StroomRuimte> ruimte;
  ByteTeksten const& teksten;
  std::vector<char> blok;
  std::size_t lengte = 0;  // of the text in the block
  std::size_t inRij = 0;   // bytes in the last row
};
