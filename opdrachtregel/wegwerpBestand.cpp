#include "opdrachtregel/wegwerpBestand.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "opdrachtregel/melding.h"
#include "opdrachtregel/paden.h"
#include "opdrachtregel/signalen.h"
#include "opdrachtregel/systeem.h"

namespace fs = std::filesystem;

namespace {

// The list that a signal walks. It changes only while these signals wait.
WegwerpKnoop* eerste = nullptr;

void noteer(WegwerpKnoop& knoop) {
  knoop.volgende = eerste;
  eerste = &knoop;
}

// Takes it out of the list. False where it is not in there.
bool vergeet(WegwerpKnoop const& knoop) {
  WegwerpKnoop** plaats = &eerste;
  while (*plaats != nullptr && *plaats != &knoop) {
    plaats = &(*plaats)->volgende;
  }
  bool const gevonden = *plaats != nullptr;
  if (gevonden) {
    *plaats = knoop.volgende;
  }
  return gevonden;
}

}  // namespace

bool ruimNuOp() {
  bool isAllesWeg = true;
  for (WegwerpKnoop const* een = eerste; een != nullptr; een = een->volgende) {
    // A folder was noted before what lies in it, so that it comes behind that.
    bool const isWeg = een->isMap ? verwijderMap(een->pad) : verwijderBestand(een->pad);
    isAllesWeg = (isWeg || errno != EACCES) && isAllesWeg;
  }
  return isAllesWeg;
}

void meldGeenTijdelijk() {
  int const code = errno;
  meld("cannot make a temporary file in " + tijdelijkeMap() + ": " + std::strerror(code) +
       "; let TMPDIR name a folder with room");
}

WegwerpBestand::WegwerpBestand(std::string const& map) {
  SignaalPauze const pauze;
  handvat = openNieuw(map, knoop.pad);
  if (isOpen()) {
    noteer(knoop);
  }
}

WegwerpBestand::~WegwerpBestand() {
  static_cast<void>(sluit());
  SignaalPauze const pauze;
  if (vergeet(knoop)) {
    verwijderBestand(knoop.pad);
  }
}

bool WegwerpBestand::sluit() {
  int const open = handvat;
  handvat = -1;
  return open < 0 || sluitBestand(open);
}

bool WegwerpBestand::hernoem(std::string const& doel) {
  SignaalPauze const pauze;
  if (!hernoemBestand(knoop.pad, doel)) {
    return false;
  }
  vergeet(knoop);
  return true;
}

// What is made before an exception goes too: the other constructor has ended by then.
WegwerpMap::WegwerpMap(std::string const& pad) : WegwerpMap() {
  SignaalPauze const pauze;
  std::size_t const begin = lengteVanBegin(pad);
  fs::path tot = fs::u8path(pad.substr(0, begin));
  for (fs::path const& deel : fs::u8path(pad.substr(begin))) {
    tot /= deel;
    if (!maak(tot.u8string())) {
      return;
    }
  }
  fout = pad.empty() ? ENOENT : 0;
}

bool WegwerpMap::maak(std::string const& pad) {
  auto& knoop = gemaakt.emplace_back(std::make_unique<WegwerpKnoop>());
  knoop->pad = pad;
  knoop->isMap = true;
  if (maakMap(pad)) {
    noteer(*knoop);
    return true;
  }
  int const code = errno;
  gemaakt.pop_back();
  std::error_code geen;
  fout = fs::is_directory(fs::u8path(pad), geen) ? 0 : code;
  return isEr();
}

WegwerpMap::~WegwerpMap() {
  SignaalPauze const pauze;
  std::for_each(gemaakt.rbegin(), gemaakt.rend(), [](std::unique_ptr<WegwerpKnoop> const& knoop) {
    vergeet(*knoop);
    verwijderMap(knoop->pad);
  });
}
