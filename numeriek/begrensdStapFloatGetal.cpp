#include "numeriek/begrensdStapFloatGetal.h"

#include <cmath>

#include "numeriek/verzadigd.h"

// Not std::round: some C libraries round 0.49999999999999994 to 1. What is left behind the point is
// exact.
double BegrensdStapFloatGetal::rondFunktie(double x) const {
  constexpr double helft = 0.5;
  double const geheel = std::trunc(x);
  return std::abs(x - geheel) >= helft ? geheel + std::copysign(1.0, x) : geheel;
}

void BegrensdStapFloatGetal::rondAf(double x) {
  double const geheel = std::floor(x);
  // The steps count from the whole number, not from 0 or the lower bound: so every whole number is
  // on the grid, whatever the step.
  double const stappen = rondFunktie((x - geheel) / stap_);
  auto const aantal = static_cast<double>(verzadigd<unsigned long long>(stappen));
  waarde_ = begrens(stap_ * aantal + geheel, ondergrens_, bovengrens_);
}
