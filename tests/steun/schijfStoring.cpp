#include "tests/steun/schijfStoring.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <thread>

#include "tests/steun/schijfKern.h"

// Each under the name by which a library may ask for it.
extern "C" {
int vangOpen(char const* pad, int vlaggen, ...) asm("open");
int vangOpen64(char const* pad, int vlaggen, ...) asm("open64");
ssize_t vangLees(int fd, void* doel, size_t bytes) asm("read");
ssize_t vangSchrijf(int fd, void const* bron, size_t bytes) asm("write");
int vangSluit(int fd) asm("close");
int vangBewaar(int fd) asm("fsync");
int vangHernoem(char const* oud, char const* nieuw) asm("rename");
int vangMaak(char* pad) asm("mkstemp");
int vangMaak64(char* pad) asm("mkstemp64");
FILE* vangStroom(char const* pad, char const* modus) asm("fopen");
FILE* vangStroom64(char const* pad, char const* modus) asm("fopen64");
}

using schijf::bestandVan;
using schijf::echte;
using schijf::faalt;
using schijf::onthoud;
using schijf::Open;
using schijf::Pad;
using schijf::telt;

namespace {

// No part of this allocates: the calls come from everywhere, also from where memory is short.
struct Toestand {
  bool leeft = false;
  bool vol = false;
  bool gebleken = false;
  int nummer = 0;
  int teller = 0;
  SchijfFout fout{SchijfOproep::open};
  Pad map{};
  Pad waar{};
  std::thread::id draad;
  std::array<Open, 1024> bestanden{};
};

Toestand toestand;

void neemOver(Pad& doel, char const* pad) {
  std::strncpy(doel.data(), pad, doel.size() - 1);
}

}  // namespace

bool schijf::telt(char const* pad) {
  return toestand.leeft && std::this_thread::get_id() == toestand.draad &&
         std::strncmp(pad, toestand.map.data(), std::strlen(toestand.map.data())) == 0;
}

schijf::Open* schijf::bestandVan(int fd) {
  if (!toestand.leeft || fd < 0 || static_cast<std::size_t>(fd) >= toestand.bestanden.size()) {
    return nullptr;
  }
  Open& een = toestand.bestanden.at(static_cast<std::size_t>(fd));
  return een.telt && std::this_thread::get_id() == toestand.draad ? &een : nullptr;
}

bool schijf::faalt(SchijfOproep oproep, char const* pad) {
  if (oproep != toestand.fout.oproep || ++toestand.teller != toestand.nummer) {
    return false;
  }
  toestand.gebleken = true;
  neemOver(toestand.waar, pad);
  toestand.vol = toestand.fout.daarnaVol;
  errno = toestand.fout.code;
  return true;
}

int schijf::onthoud(int fd, char const* pad) {
  if (fd >= 0 && static_cast<std::size_t>(fd) < toestand.bestanden.size()) {
    Open& een = toestand.bestanden.at(static_cast<std::size_t>(fd));
    een.telt = true;
    struct stat gegevens {};
    een.lengte = fstat(fd, &gegevens) == 0 ? gegevens.st_size : 0;
    neemOver(een.pad, pad);
  }
  return fd;
}

namespace {

using OpenFunctie = int (*)(char const*, int, ...);

int doeOpen(OpenFunctie echt, char const* pad, int vlaggen, mode_t rechten) {
  if (!telt(pad)) {
    return echt(pad, vlaggen, rechten);
  }
  return faalt(SchijfOproep::open, pad) ? -1 : onthoud(echt(pad, vlaggen, rechten), pad);
}

int doeMaakTijdelijk(int (*echt)(char*), char* pad) {
  if (!telt(pad)) {
    return echt(pad);
  }
  return faalt(SchijfOproep::maakTijdelijk, pad) ? -1 : onthoud(echt(pad), pad);
}

}  // namespace

int vangOpen(char const* pad, int vlaggen, ...) {
  static auto const echt = echte<OpenFunctie>("open");
  va_list rest;
  va_start(rest, vlaggen);
  mode_t const rechten = (vlaggen & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return doeOpen(echt, pad, vlaggen, rechten);
}

int vangOpen64(char const* pad, int vlaggen, ...) {
  static auto const echt = echte<OpenFunctie>("open64");
  va_list rest;
  va_start(rest, vlaggen);
  mode_t const rechten = (vlaggen & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return doeOpen(echt, pad, vlaggen, rechten);
}

ssize_t vangLees(int fd, void* doel, size_t bytes) {
  static auto const echt = echte<ssize_t (*)(int, void*, size_t)>("read");
  Open const* const bestand = bestandVan(fd);
  bool const kort = toestand.fout.code == 0;
  if (bestand == nullptr || !faalt(SchijfOproep::lees, bestand->pad.data())) {
    return echt(fd, doel, bytes);
  }
  return kort ? echt(fd, doel, bytes - bytes / 2) : -1;
}

ssize_t vangSchrijf(int fd, void const* bron, size_t bytes) {
  static auto const echt = echte<ssize_t (*)(int, void const*, size_t)>("write");
  Open const* const bestand = bestandVan(fd);
  bool const kort = toestand.fout.code == 0;
  if (bestand != nullptr && toestand.vol) {
    errno = ENOSPC;
    return -1;
  }
  if (bestand == nullptr || !faalt(SchijfOproep::schrijf, bestand->pad.data())) {
    return echt(fd, bron, bytes);
  }
  return kort ? echt(fd, bron, bytes - bytes / 2) : -1;
}

int vangSluit(int fd) {
  static auto const echt = echte<int (*)(int)>("close");
  Open* const bestand = bestandVan(fd);
  if (bestand == nullptr) {
    return echt(fd);
  }
  bestand->telt = false;
  if (!faalt(SchijfOproep::sluit, bestand->pad.data())) {
    return echt(fd);
  }
  struct stat gegevens {};
  if (errno != EINTR && fstat(fd, &gegevens) == 0 && gegevens.st_size > bestand->lengte) {
    // Nothing else tells that bytes are missing.
    (void)!ftruncate(fd, bestand->lengte + (gegevens.st_size - bestand->lengte) / 2);
  }
  echt(fd);
  errno = toestand.fout.code;
  return -1;
}

// What has come to the disk is no longer lost at the close.
int vangBewaar(int fd) {
  static auto const echt = echte<int (*)(int)>("fsync");
  Open* const bestand = bestandVan(fd);
  if (bestand != nullptr && faalt(SchijfOproep::bewaar, bestand->pad.data())) {
    return -1;
  }
  int const uitslag = echt(fd);
  struct stat gegevens {};
  if (bestand != nullptr && uitslag == 0 && fstat(fd, &gegevens) == 0) {
    bestand->lengte = gegevens.st_size;
  }
  return uitslag;
}

int vangHernoem(char const* oud, char const* nieuw) {
  static auto const echt = echte<int (*)(char const*, char const*)>("rename");
  return (telt(oud) || telt(nieuw)) && faalt(SchijfOproep::hernoem, nieuw) ? -1 : echt(oud, nieuw);
}

int vangMaak(char* pad) {
  static auto const echt = echte<int (*)(char*)>("mkstemp");
  return doeMaakTijdelijk(echt, pad);
}

int vangMaak64(char* pad) {
  static auto const echt = echte<int (*)(char*)>("mkstemp64");
  return doeMaakTijdelijk(echt, pad);
}

namespace {

// A stream of the C library over the calls above. Its own would not go through them. It is known by
// the place of its file.
int fdVan(void* plaats) {
  return static_cast<int>(static_cast<Open*>(plaats) - toestand.bestanden.data());
}
ssize_t leesStroom(void* plaats, char* doel, size_t bytes) {
  return vangLees(fdVan(plaats), doel, bytes);
}
ssize_t schrijfStroom(void* plaats, char const* bron, size_t bytes) {
  // Here 0 tells of an error.
  return std::max<ssize_t>(vangSchrijf(fdVan(plaats), bron, bytes), 0);
}
int zoekStroom(void* plaats, off64_t* waar, int vanwaar) {
  *waar = lseek64(fdVan(plaats), *waar, vanwaar);
  return *waar < 0 ? -1 : 0;
}
int sluitStroom(void* plaats) {
  return vangSluit(fdVan(plaats));
}

int vlaggenVan(char const* modus) {
  bool const beide = std::strchr(modus, '+') != nullptr;
  switch (*modus) {
    case 'r':
      return beide ? O_RDWR : O_RDONLY;
    case 'w':
      return (beide ? O_RDWR : O_WRONLY) | O_CREAT | O_TRUNC;
    default:
      return (beide ? O_RDWR : O_WRONLY) | O_CREAT | O_APPEND;
  }
}

using OpenStroom = FILE* (*)(char const*, char const*);

FILE* doeOpenStroom(OpenStroom echt, char const* pad, char const* modus) {
  if (!telt(pad)) {
    return echt(pad, modus);
  }
  int const fd = vangOpen(pad, vlaggenVan(modus), 0666);
  Open* const bestand = bestandVan(fd);
  return bestand == nullptr
             ? nullptr
             : fopencookie(bestand, modus, {leesStroom, schrijfStroom, zoekStroom, sluitStroom});
}

}  // namespace

FILE* vangStroom(char const* pad, char const* modus) {
  static auto const echt = echte<OpenStroom>("fopen");
  return doeOpenStroom(echt, pad, modus);
}

FILE* vangStroom64(char const* pad, char const* modus) {
  static auto const echt = echte<OpenStroom>("fopen64");
  return doeOpenStroom(echt, pad, modus);
}

SchijfStoring::SchijfStoring(std::string const& map, SchijfFout const& fout, int nummer) {
  toestand = Toestand{};
  neemOver(toestand.map, (map + "/").c_str());
  toestand.fout = fout;
  toestand.nummer = nummer;
  toestand.draad = std::this_thread::get_id();
  toestand.leeft = true;
}

SchijfStoring::~SchijfStoring() {
  toestand.leeft = false;
}

bool SchijfStoring::isGebleken() {
  return toestand.gebleken;
}

std::string SchijfStoring::waar() {
  return toestand.waar.data();
}

int SchijfStoring::geteld() {
  return toestand.teller;
}
