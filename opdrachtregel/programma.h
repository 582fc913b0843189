// kestrolin-cli as a whole: it reads the command line, carries out one command and tells how that
// went.
#pragma once

// Returns the exit status, one of `Uitslag`.
int voerProgrammaUit(int aantal, char const* const* woorden);
