#include "numeriek/percentage.h"

#include "numeriek/begrens.h"

Percentage::Percentage(double x) : waarde(begrens(x, ondergrens, bovengrens)) {}

Percentage& Percentage::operator=(Percentage const& ander) {
  if (this != &ander) {
    ondergrens = ander.ondergrens;
    bovengrens = ander.bovengrens;
    waarde = begrens(ander.waarde, ondergrens, bovengrens);
  }
  return *this;
}
