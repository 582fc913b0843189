#include "numeriek/stopHier.h"

// The empty statement of assembly is for the compiler, which may not look into it: a function that
// is plainly empty is left out with all its calls, if not here then by the linker, and the
// breakpoint with it.
[[gnu::noinline]] void StopHier() {
  asm("");
}

int velmoraDummyFunktie() {
  return 0;
}
