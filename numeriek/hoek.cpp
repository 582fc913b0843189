#include "numeriek/hoek.h"

#include <wx/string.h>

#include "numeriek/getalTekst.h"
#include "numeriek/stopHier.h"
#include "numeriek/verzadigd.h"

namespace {

double genormaliseerd(double v) {
  auto const t = verzadigd<long long>(v / Hoek::tweepi);
  if (v >= 0) {
    return v + static_cast<double>(t) * -Hoek::tweepi;
  }
  // Unsigned on purpose, and not to be mended: two turns below zero and further down the result is
  // so far outside the range that it cannot pass for a direction.
  auto const u = static_cast<unsigned long long>(t + 1);
  return v + static_cast<double>(u) * Hoek::tweepi;
}

}  // namespace

double Hoek::inRadialen(double x, HoekSoort s) {
  switch (s) {
    case Radialen:
      return x;
    case Graden:
      return gradNaarRad(x);
  }
  StopHier();
  return 0.0;
}

wxString Hoek::print(HoekSoort s) const {
  bool const inGraden = s != Radialen;
  return "Hoek=" + tweeDecimalen(inGraden ? grad() : rad()) + (inGraden ? " grad" : " rad");
}

Hoek Hoek::normaliseer() const {
  return {genormaliseerd(waarde), Radialen};
}

Hoek& Hoek::zelfNormaliseer() {
  return *this = normaliseer();
}

Hoek Hoek::tegenHoek() const {
  return (*this + pi).normaliseer();
}

Hoek Hoek::verschilHoek(Hoek const& b) const {
  Hoek const d = b - *this;
  if (d > pi) {
    return d - tweepi;
  }
  if (d < minpi) {
    return d + tweepi;
  }
  return d;
}
