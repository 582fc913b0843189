// Doubles to integers without undefined behaviour: the language leaves the conversion of a double
// that does not fit undefined, here each has a result.
#pragma once

#include <cmath>
#include <limits>

// Whether x lies within Geheel's integers, so that it can be cut to one; false for NaN and
// infinities. For an unsigned Geheel an x between -1 and 0 lies below.
template <typename Geheel>
bool pastIn(double x) {
  // The power of two above the highest integer: a double holds it, and would round the integer to
  // it.
  double const boven = std::ldexp(1.0, std::numeric_limits<Geheel>::digits);
  return x >= static_cast<double>(std::numeric_limits<Geheel>::min()) && x < boven;
}

// x cut to a whole number toward zero. What lies below or above all of Geheel's integers gives the
// lowest or the highest, NaN gives 0.
template <typename Geheel>
Geheel verzadigd(double x) {
  if (pastIn<Geheel>(x)) {
    return static_cast<Geheel>(x);
  }
  if (std::isnan(x)) {
    return 0;
  }
  return x < 0 ? std::numeric_limits<Geheel>::min() : std::numeric_limits<Geheel>::max();
}
