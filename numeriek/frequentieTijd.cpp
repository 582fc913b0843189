#include "numeriek/frequentieTijd.h"

#include "numeriek/breuk.h"

Frequentie::Frequentie(Tijd const& periode) : Breuk(periode.omgekeerd()) {}

Tijd Frequentie::periode() const {
  return omgekeerd();
}

Frequentie Tijd::freq() const {
  return omgekeerd();
}
