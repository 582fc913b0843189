// GonioHoek: an angle with its sine and cosine worked out once, for those who need them often.
#pragma once

#include "numeriek/hoek.h"

// The three belong together, so none of them can be changed alone: a new angle is a new GonioHoek.
class GonioHoek {
 public:
  // The angle of x in this unit, by the rules of Hoek(double, HoekSoort): an unknown unit ends in
  // StopHier and the angle 0, whose sine is 0 and cosine 1.
  GonioHoek(double x, Hoek::HoekSoort s) : GonioHoek(Hoek(x, s)) {}

  GonioHoek(Hoek const& h) : hoek(h), sinus(h.sinus()), cosinus(h.cosinus()) {}

  // The angle itself.
  Hoek const& geefHoek() const { return hoek; }

  // Its sine and its cosine.
  double S() const { return sinus; }
  double C() const { return cosinus; }

 private:
  Hoek hoek;
  double sinus;
  double cosinus;
};
