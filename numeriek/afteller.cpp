#include "numeriek/afteller.h"

#include <algorithm>
#include <utility>

#include "numeriek/begrens.h"

Afteller::Afteller(unsigned long long grens, bool eenmalig, unsigned long long ondergrens)
    : ondergrens_(ondergrens),
      grens_(grens),
      teller_(std::max(grens, ondergrens)),
      eenmalig_(eenmalig) {}

void Afteller::reset() {
  teller_ = std::max(grens_, ondergrens_);
}

void Afteller::reset(unsigned long long w) {
  teller_ = begrens(w, ondergrens_, grens_);
}

void Afteller::zetGrens(unsigned long long g) {
  grens_ = g;
  ondergrens_ = 0;
}

bool Afteller::telAf() {
  --teller_;
  if (teller_ != ondergrens_) {
    return false;
  }
  if (!eenmalig_) {
    teller_ = std::max(grens_, teller_);
    return true;
  }
  // One step above the usual bound of 0, so that each later event leads here again, and to false.
  teller_ = 1;
  return !std::exchange(afgelopen_, true);
}
