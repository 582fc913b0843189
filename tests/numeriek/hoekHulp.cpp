#include "tests/numeriek/hoekHulp.h"

#include <utility>

namespace {

int stops = 0;

}  // namespace

// The linker brings the calls here, and goes on to the real one.
extern "C" void geteldeStop() asm("__wrap__Z8StopHierv");
extern "C" void echteStop() asm("__real__Z8StopHierv");

void geteldeStop() {
  ++stops;
  echteStop();
}

int neemStops() {
  return std::exchange(stops, 0);
}

double willekeurig(Toeval& toeval, double onder, double boven) {
  constexpr long long delen = 1000000000;
  return onder + (boven - onder) * static_cast<double>(toeval.tussen(0, delen)) / delen;
}
