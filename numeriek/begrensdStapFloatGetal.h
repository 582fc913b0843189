// BegrensdStapFloatGetal: a number between two bounds that keeps to a grid, as the value of a dial
// with steps does. Nothing is reported: what lies outside is brought to the nearest bound.
#pragma once

#include "numeriek/begrens.h"

class BegrensdStapFloatGetal {
 public:
  // Stores the bounds and the step as they come, and `waarde` clamped: `ondergrens` for a value
  // below it, else the lesser of `bovengrens` and the value, so `bovengrens` for NaN. The first
  // value is not brought to the grid. `stap` has to be above 0.
  BegrensdStapFloatGetal(double ondergrens, double bovengrens, double stap, double waarde)
      : ondergrens_(ondergrens),
        bovengrens_(bovengrens),
        waarde_(begrens(waarde, ondergrens, bovengrens)),
        stap_(stap) {}

  // x rounded to a whole number, halves away from zero: 2.5 gives 3, -2.5 gives -3.
  double rondFunktie(double x) const;

  // Brings x to the grid and makes it the value, clamped as at construction: the whole number at or
  // below x, plus the rest of x rounded to a whole number of steps, halves up.
  //
  // So the grid starts anew at every whole number: with a step of 0.3 there are 2.0, 2.3, 2.6, 2.9
  // and 3.0, and 3.1 gives 3.0. The next whole number takes no part in it: 2.99 gives 2.7 with a
  // step of 0.7, and 3.2 with one of 0.6. With a step above 2 there are only whole numbers, and x
  // is rounded down.
  //
  // With a step of 0 or a finite one below it, x is rounded down too. At most 2^64 steps are
  // counted, so that the point falls short of x for some steps below 2^-64. An infinite x gives its
  // bound, where the step is finite; NaN, for x or the step, and an infinite step give
  // `bovengrens`.
  void rondAf(double x);

  // The value; from geefOndergrens() to geefBovengrens(), as long as these are in order.
  double geefWaarde() const { return waarde_; }
  double geefOndergrens() const { return ondergrens_; }
  double geefBovengrens() const { return bovengrens_; }
  double geefStap() const { return stap_; }

 private:
  double ondergrens_;
  double bovengrens_;
  double waarde_;
  double stap_;
};
