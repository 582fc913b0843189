#include "numeriek/begrensdStapFloatGetal.h"

#include "numeriek/verzadigd.h"

void BegrensdStapFloatGetal::rondAf(double x) {
  double const geheel = std::floor(x);
  // The steps count from the whole number, not from 0 or the lower bound: so every whole number is
  // on the grid, whatever the step.
  double const stappen = rondFunktie((x - geheel) / stap_);
  auto const aantal = static_cast<double>(verzadigd<unsigned long long>(stappen));
  waarde_ = begrens(stap_ * aantal + geheel, ondergrens_, bovengrens_);
}
