// Complex: a complex number of two doubles. A plain value; nothing is checked, and infinities and
// NaN take the ways of floating point.
#pragma once

#include "numeriek/hoek.h"

class Complex {
 public:
  // re + im*i.
  Complex(double re, double im) : re_(re), im_(im) {}

  // The number with the magnitude `mag` in the direction h: mag*cos(h) + mag*sin(h)*i. A negative
  // `mag` points the other way.
  Complex(double mag, Hoek const& h) : re_(mag * h.cosinus()), im_(mag * h.sinus()) {}

  // The real and the imaginary part.
  double geefRe() const { return re_; }
  double geefIm() const { return im_; }

  // Sum and difference as a new number. Not const, though they change nothing: that is their type,
  // which whoever takes their address has written down. A constant stands on the right only.
  // NOLINTBEGIN(readability-make-member-function-const)
  Complex operator+(Complex const& b) { return {re_ + b.re_, im_ + b.im_}; }
  Complex operator-(Complex const& b) { return {re_ - b.re_, im_ - b.im_}; }
  // NOLINTEND(readability-make-member-function-const)

  // The same in place; each returns the object. The right side may be the object itself.
  Complex& operator+=(Complex const& b) { return *this = *this + b; }
  Complex& operator-=(Complex const& b) { return *this = *this - b; }

  // The direction in radians, from -pi to pi: atan2(im, re), so 0 for 0.
  double Arg() const;

  // The magnitude: the square root of the sum of the squares. The squares are plain doubles: a part
  // beyond some 1e154 gives an infinity, and one below some 1e-162 counts as 0.
  double Mag() const;

  // The magnitude in decibels, 20*log10(Mag()), but not less than `vloer`: 0 for a magnitude of 1,
  // and `vloer` for a zero, which has minus infinity. NaN gives `vloer`.
  double MagdB(double vloer) const;

 private:
  double re_;
  double im_;
};
