#include "numeriek/getalTekst.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

std::string tweeDecimalen(double x) {
  if (std::isnan(x)) {
    return "nan";
  }
  constexpr int decimalen = 2;
  // The longest: a sign, all digits of the largest double, the point and the decimals.
  std::array<char, std::numeric_limits<double>::max_exponent10 + 1 + decimalen + 2> tekens{};
  auto const einde = std::to_chars(tekens.data(), tekens.data() + tekens.size(), x,
                                   std::chars_format::fixed, decimalen);
  return {tekens.data(), einde.ptr};
}
