// What the tests of fractions share: a fraction as a pair that GoogleTest can compare and print
// field by field (Breuk's own == compares values), and the ends of the 64-bit range.
#pragma once

#include <limits>
#include <utility>

#include "numeriek/breuk.h"

using Paar = std::pair<long long, long long>;

inline Paar paar(const Breuk& b) {
  return {b.teller(), b.noemer()};
}

constexpr long long hoogste = std::numeric_limits<long long>::max();
constexpr long long laagste = std::numeric_limits<long long>::min();

constexpr auto relatief(unsigned int k) {
  return static_cast<BreukRelAantalRelevanteNummers>(k);
}
