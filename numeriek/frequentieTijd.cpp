#include "numeriek/frequentieTijd.h"

#include "numeriek/breuk.h"

Frequentie::Frequentie(const Tijd& periode) : Breuk(periode.omgekeerd()) {}

Tijd Frequentie::periode() const {
  return omgekeerd();
}

Frequentie Tijd::freq() const {
  return omgekeerd();
}
