// What the stand-ins for the calls of the C library share: schijfStoring.cpp has those on the
// content of files, schijfPlaatsen.cpp those on their places.
#pragma once

#include <dlfcn.h>
#include <sys/types.h>

#include <array>
#include <cstddef>

#include "tests/steun/schijfStoring.h"

namespace schijf {

constexpr std::size_t padBytes = 512;
using Pad = std::array<char, padBytes>;

// An open file below the directory.
struct Open {
  bool telt = false;
  off_t lengte = 0;  // when it was opened, or came to the disk
  Pad pad{};
};

// Whether calls on this path count.
bool telt(char const* pad);
// The file that is open under this number, null where its calls do not count.
Open* bestandVan(int fd);
// True where this call is the one that fails, which errno then tells.
bool faalt(SchijfOproep oproep, char const* pad);
// Notes a file that was opened, and returns its number.
int onthoud(int fd, char const* pad);

// The call of the C library itself.
template <typename Functie>
Functie echte(char const* naam) {
  return reinterpret_cast<Functie>(dlsym(RTLD_NEXT, naam));
}

}  // namespace schijf
