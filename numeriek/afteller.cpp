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
  // One step above 0, so that the next event leads here again, and not round by way of 2^64 - 1:
  // code that waits for the one event counts on hearing false for ever after it.
  teller_ = 1;
  return !std::exchange(afgelopen_, true);
}
