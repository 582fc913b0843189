// In a file of their own: a compiler that saw StopHier's body would leave its calls out, and the
// breakpoint with them.
#include "numeriek/stopHier.h"

void StopHier() {}

int velmoraDummyFunktie() {
  return 0;
}
