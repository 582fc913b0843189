// HoekSnelheid and HoekVersnelling: an angle covered in a time, and a speed gained in one. Plain
// values: nothing is checked, and a zero angle or a zero time divides by the rules of floating
// point, to an infinity or NaN.
#pragma once

#include "numeriek/breuk.h"
#include "numeriek/frequentieTijd.h"
#include "numeriek/hoek.h"

// What both are made of: an angle, and the time that it belongs to. Not a value in its own right.
class HoekPerTijd {
 public:
  // The angle, as it was given.
  Hoek const& geefHoek() const { return hoek; }

  // The time that the angle belongs to.
  Tijd tijdBasis() const { return basis; }

 protected:
  HoekPerTijd(Hoek const& h, Tijd const& t) : hoek(h), basis(t) {}

  // The angle of x in this unit, by the rules of Hoek(double, HoekSoort), in the time 1/1: so per
  // second.
  HoekPerTijd(double x, Hoek::HoekSoort s) : HoekPerTijd(Hoek(x, s), Breuk(1, 1)) {}

 private:
  Hoek hoek;
  Tijd basis;
};

// An angular velocity. The time counts in the single precision of Tijd::s.
class HoekSnelheid : public HoekPerTijd {
 public:
  // The angle h in the time t; both are kept as they are.
  HoekSnelheid(Hoek const& h, Tijd const& t) : HoekPerTijd(h, t) {}

  // x radians or degrees a second; an unknown unit ends in StopHier and the velocity 0.
  HoekSnelheid(double x, Hoek::HoekSoort s) : HoekPerTijd(x, s) {}

  // In radians a second, and in degrees a second.
  double rads() const { return geefHoek().rad() / tijdBasis().s(); }
  double grads() const { return geefHoek().grad() / tijdBasis().s(); }

  // The time that it takes to cover h, in seconds; negative where h lies the other way.
  double tijd(Hoek const& h) const { return tijdBasis().s() * h.rad() / geefHoek().rad(); }
};

// An angular acceleration: the angular velocity gained in a second, held as an angle and the time
// that it is covered in.
class HoekVersnelling : public HoekPerTijd {
 public:
  // x radians or degrees a second, gained in a second; an unknown unit ends in StopHier and the
  // acceleration 0.
  HoekVersnelling(double x, Hoek::HoekSoort s) : HoekPerTijd(x, s) {}

  // The velocity v gained in one second. The number is not used, whatever it is: callers pass the
  // time there, and theirs is always one second.
  HoekVersnelling(HoekSnelheid const& v, double /*tijd*/) : HoekPerTijd(v) {}
};
