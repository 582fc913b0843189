// The doubles that are no numbers, for the tests of what becomes of them.
#pragma once

#include <limits>

constexpr double oneindig = std::numeric_limits<double>::infinity();
constexpr double geenGetal = std::numeric_limits<double>::quiet_NaN();
