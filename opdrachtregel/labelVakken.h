// Places for the labels of a picture, where none lies over another one or over a sign.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "opdrachtregel/svg.h"

enum class Kant { rechts, links, boven };

class LabelVakken {
 public:
  // Labels stay within these corners.
  LabelVakken(Plek linksBoven, Plek rechtsOnder) : grens{linksBoven, rechtsOnder} {}

  // Nothing may lie over this sign.
  void houdVrij(Plek midden, double straal);
  // Where a label of so many characters begins to the right of a sign, ends to the left of it, or
  // has its middle above it; in all cases half way up. Beside that place where that is taken.
  // Nothing where all around is.
  std::optional<Plek> plaats(Plek midden, Kant kant, std::size_t tekens);

 private:
  struct Vak {
    Plek linksBoven;
    Plek rechtsOnder;
  };

  bool isVrij(Vak const& vak) const;

  Vak grens;
  std::vector<Vak> bezet;
};
