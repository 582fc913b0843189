// Numbers as text. The decimal point is a point in every locale: what is printed here must not
// change with the user's language.
#pragma once

#include <string>

// x with two decimals, as the conversion %.2f of the locale "C" gives it: -0.001 is "-0.00", an
// infinity "inf" or "-inf". NaN is "nan", without the sign that a processor may have given it.
std::string tweeDecimalen(double x);
