// What the tests of angles share: angles by unit, a unit that is none, random angles, and the count
// of the calls of StopHier, whose place hoekHulp.cpp takes in the test program.
#pragma once

#include "numeriek/hoek.h"
#include "tests/numeriek/doubles.h"
#include "tests/numeriek/toeval.h"

constexpr auto onbekendeEenheid = static_cast<Hoek::HoekSoort>(2);

inline Hoek radialen(double x) {
  return {x, Hoek::Radialen};
}

inline Hoek graden(double x) {
  return {x, Hoek::Graden};
}

// From `onder` up to `boven`, in steps of a billionth of that.
double willekeurig(Toeval& toeval, double onder, double boven);

// The calls of StopHier since this was asked last.
int neemStops();
