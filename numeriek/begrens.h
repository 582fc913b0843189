// Keeping a number between two bounds.
#pragma once

#include <algorithm>

// `onder` for an x below it, else the lesser of `boven` and x. Unlike std::clamp it has a result
// for every argument: bounds that have changed places give one of the two, and NaN, which is below
// nothing, gives `boven`.
template <typename Getal>
constexpr Getal begrens(Getal x, Getal onder, Getal boven) {
  // `boven` comes first: that is what std::min falls back on for NaN.
  return x < onder ? onder : std::min(boven, x);
}
