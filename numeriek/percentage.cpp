#include "numeriek/percentage.h"

#include <algorithm>

namespace {

// Not std::clamp, which lets NaN through. With the bound as the first argument std::min falls back
// on the bound.
double begrens(double x, double onder, double boven) {
  return x < onder ? onder : std::min(boven, x);
}

}  // namespace

Percentage::Percentage(double x) : waarde(begrens(x, ondergrens, bovengrens)) {}

Percentage& Percentage::operator=(Percentage const& ander) {
  if (this != &ander) {
    ondergrens = ander.ondergrens;
    bovengrens = ander.bovengrens;
    waarde = begrens(ander.waarde, ondergrens, bovengrens);
  }
  return *this;
}
