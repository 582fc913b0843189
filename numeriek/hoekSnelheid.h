// HoekSnelheid and HoekVersnelling: an angle covered in a time, and such a speed gained in a
// second. Plain values: nothing is checked, and a zero angle or a zero time divides by the rules of
// floating point, to an infinity or NaN.
#pragma once

#include "numeriek/breuk.h"
#include "numeriek/frequentieTijd.h"
#include "numeriek/hoek.h"

// An angular velocity, kept as the angle and the time that it was given as. The time counts in the
// single precision of Tijd::s.
class HoekSnelheid {
 public:
  // The angle h in the time t.
  HoekSnelheid(Hoek const& h, Tijd const& t) : hoek(h), basis(t) {}

  // x radians or degrees in the time 1/1, so per second, by the rules of Hoek(double, HoekSoort):
  // an unknown unit ends in StopHier and the angle 0.
  HoekSnelheid(double x, Hoek::HoekSoort s) : HoekSnelheid(Hoek(x, s), Breuk(1, 1)) {}

  // The angle, and the time that it is covered in.
  Hoek const& geefHoek() const { return hoek; }
  Tijd tijdBasis() const { return basis; }

  // In radians a second, and in degrees a second.
  double rads() const { return hoek.rad() / basis.s(); }
  double grads() const { return hoek.grad() / basis.s(); }

  // The time that it takes to cover h, in seconds; negative where h lies the other way.
  double tijd(Hoek const& h) const { return basis.s() * h.rad() / hoek.rad(); }

 private:
  Hoek hoek;
  Tijd basis;
};

// An angular acceleration, kept as the velocity that is gained in a second.
class HoekVersnelling {
 public:
  // A gain of x radians or degrees a second, by the rules of HoekSnelheid(double, HoekSoort).
  HoekVersnelling(double x, Hoek::HoekSoort s) : toename(x, s) {}

  // A gain of v. The number is ignored, whatever it is: it has a place in the signature, and no
  // meaning.
  HoekVersnelling(HoekSnelheid const& v, double /*ongebruikt*/) : toename(v) {}

  // The velocity gained in a second.
  HoekSnelheid const& geefToename() const { return toename; }

 private:
  HoekSnelheid toename;
};
