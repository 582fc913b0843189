// The calls of schijfStoring.h on the places, numbers and modes of files. A program takes them in
// beside schijfStoring.cpp.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "tests/steun/schijfKern.h"

// Each under the name by which a library may ask for it.
extern "C" {
int vangMap(char const* pad, mode_t rechten) asm("mkdir");
int vangKoppel(char const* oud, char const* nieuw) asm("link");
int vangVerdubbel(int fd) asm("dup");
int vangRechten(int fd, mode_t rechten) asm("fchmod");
off_t vangZoek(int fd, off_t plaats, int vanwaar) asm("lseek");
off_t vangZoek64(int fd, off_t plaats, int vanwaar) asm("lseek64");
}

using schijf::bestandVan;
using schijf::echte;
using schijf::faalt;
using schijf::onthoud;
using schijf::Open;
using schijf::Pad;
using schijf::telt;

int vangMap(char const* pad, mode_t rechten) {
  static auto const echt = echte<int (*)(char const*, mode_t)>("mkdir");
  return telt(pad) && faalt(SchijfOproep::maakMap, pad) ? -1 : echt(pad, rechten);
}

int vangKoppel(char const* oud, char const* nieuw) {
  static auto const echt = echte<int (*)(char const*, char const*)>("link");
  return (telt(oud) || telt(nieuw)) && faalt(SchijfOproep::koppel, nieuw) ? -1 : echt(oud, nieuw);
}

int vangVerdubbel(int fd) {
  static auto const echt = echte<int (*)(int)>("dup");
  // Standard output was opened before anything counted.
  Pad pad{};
  Pad ingang{};
  static_cast<void>(std::snprintf(ingang.data(), ingang.size(), "/proc/self/fd/%d", fd));
  if (readlink(ingang.data(), pad.data(), pad.size() - 1) < 0 || !telt(pad.data())) {
    return echt(fd);
  }
  return faalt(SchijfOproep::verdubbel, pad.data()) ? -1 : onthoud(echt(fd), pad.data());
}

int vangRechten(int fd, mode_t rechten) {
  static auto const echt = echte<int (*)(int, mode_t)>("fchmod");
  Open const* const bestand = bestandVan(fd);
  return bestand != nullptr && faalt(SchijfOproep::zetRechten, bestand->pad.data())
             ? -1
             : echt(fd, rechten);
}

namespace {

off_t doeZoek(off_t (*echt)(int, off_t, int), int fd, off_t plaats, int vanwaar) {
  Open const* const bestand = bestandVan(fd);
  return bestand != nullptr && faalt(SchijfOproep::zoek, bestand->pad.data())
             ? -1
             : echt(fd, plaats, vanwaar);
}

}  // namespace

off_t vangZoek(int fd, off_t plaats, int vanwaar) {
  static auto const echt = echte<off_t (*)(int, off_t, int)>("lseek");
  return doeZoek(echt, fd, plaats, vanwaar);
}

off_t vangZoek64(int fd, off_t plaats, int vanwaar) {
  static auto const echt = echte<off_t (*)(int, off_t, int)>("lseek64");
  return doeZoek(echt, fd, plaats, vanwaar);
}
