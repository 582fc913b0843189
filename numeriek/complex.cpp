#include "numeriek/complex.h"

#include <algorithm>
#include <cmath>

double Complex::Arg() const {
  return std::atan2(im_, re_);
}

double Complex::Mag() const {
  // Not std::hypot: it differs in the last digit, and for very large and very small parts.
  return std::sqrt(re_ * re_ + im_ * im_);
}

double Complex::MagdB(double vloer) const {
  // log10(0) is minus infinity, below any floor. With the floor first, std::max falls back on it
  // for NaN.
  return std::max(vloer, 20.0 * std::log10(Mag()));
}
