// What is told of the arrays of texts: as a table for the eye, and as JSON for scripts.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "audio/weergave/tekstLezer.h"

struct LijstRij {
  std::string bestand;  // as the user gave it
  TekstArray array;     // without its bytes
  std::size_t bytes;    // in flash

  // In seconds.
  double duur() const;
};

// Lines of columns under their names, and a last line of totals. The files have a column of their
// own where there are several.
std::string tabel(std::vector<LijstRij> const& rijen);

std::string json(std::vector<LijstRij> const& rijen);
