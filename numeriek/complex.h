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

  // Sum and difference as a new number. Neither is const, although it changes nothing: on the left
  // stands a variable, never a constant, and that signature has to stay.
  // NOLINTBEGIN(readability-make-member-function-const)
  Complex operator+(Complex const& b) { return {re_ + b.re_, im_ + b.im_}; }
  Complex operator-(Complex const& b) { return {re_ - b.re_, im_ - b.im_}; }
  // NOLINTEND(readability-make-member-function-const)

  // The same in place; each returns the object. The right side may be the object itself.
  Complex& operator+=(Complex const& b) { return *this = *this + b; }
  Complex& operator-=(Complex const& b) { return *this = *this - b; }

  // The direction in radians, from -pi to pi: atan2(im, re). A positive zero has the direction 0.
  double Arg() const;

  // The magnitude: the square root of the sum of the squares. The squares are plain doubles: beyond
  // some 1e154 they are infinite, below some 1e-154 they lose digits, and below some 1e-162 they
  // are 0.
  double Mag() const;

  // The magnitude in decibels, 20*log10(Mag()), but not less than `vloer`: 0 for a magnitude of 1,
  // and `vloer` for a zero, whose logarithm is minus infinity, and for NaN.
  double MagdB(double vloer) const;

 private:
  double re_;
  double im_;
};
