// Two functions that do nothing, each for where it stands.
#pragma once

// A fixed place for a breakpoint: it is called where a value type meets an argument that has no
// meaning, such as an unknown unit of an angle. One breakpoint catches them all, with the caller on
// the stack.
void StopHier();

// Always 0: for places that want a function and have nothing to do.
int velmoraDummyFunktie();
