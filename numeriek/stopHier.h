// Two functions that do nothing, each for where it stands.
#pragma once

// A fixed place for a breakpoint. An angle whose unit is none of the known ones is made by way of
// it, so that a debugger that stops here shows who made it.
void StopHier();

// Always 0: for places that want a function and have nothing to do.
int velmoraDummyFunktie();
