#include "opdrachtregel/wegwerpBestand.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "opdrachtregel/melding.h"

namespace fs = std::filesystem;

namespace {

// Interrupt, end, a terminal that closes, quit, a reader of standard output that has gone.
constexpr std::array<int, 5> eindSignalen{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE};

// The list that a signal walks. It changes only while these signals wait.
WegwerpKnoop* eerste = nullptr;

void ruimOp(int signaal) {
  ruimNuOp();
  // The action is the system's own again, and comes when this function ends.
  static_cast<void>(raise(signaal));
}

sigset_t eindMasker() {
  sigset_t masker;
  sigemptyset(&masker);
  for (int const signaal : eindSignalen) {
    sigaddset(&masker, signaal);
  }
  return masker;
}

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

void ruimNuOp() {
  for (WegwerpKnoop const* een = eerste; een != nullptr; een = een->volgende) {
    if (unlink(een->pad.c_str()) != 0) {
      // A folder: it was noted before what lies in it, so that it comes behind that.
      rmdir(een->pad.c_str());
    }
  }
}

SignaalPauze::SignaalPauze() {
  sigset_t const masker = eindMasker();
  sigprocmask(SIG_BLOCK, &masker, &vorige);
}

SignaalPauze::~SignaalPauze() {
  sigprocmask(SIG_SETMASK, &vorige, nullptr);
}

void ruimOpBijSignaal() {
  // A file that grows beyond its limit is an error of the write.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  for (int const signaal : eindSignalen) {
    struct sigaction actie {};
    sigaction(signaal, nullptr, &actie);
    if (actie.sa_handler != SIG_IGN) {
      actie.sa_handler = ruimOp;
      actie.sa_mask = eindMasker();
      actie.sa_flags = static_cast<int>(SA_RESETHAND);
      sigaction(signaal, &actie, nullptr);
    }
  }
}

std::string tijdelijkeMap() {
  char const* const map = std::getenv("TMPDIR");
  return map != nullptr && *map != '\0' ? map : "/tmp";
}

void meldGeenTijdelijk() {
  int const code = errno;
  meld("cannot make a temporary file in " + tijdelijkeMap() + ": " + std::strerror(code) +
       "; let TMPDIR name a folder with room");
}

WegwerpBestand::WegwerpBestand(std::string const& map) {
  knoop.pad = map + "/.kestrolin-XXXXXX";
  SignaalPauze const pauze;
  handvat = mkstemp(knoop.pad.data());
  if (isOpen()) {
    noteer(knoop);
  }
}

WegwerpBestand::~WegwerpBestand() {
  static_cast<void>(sluit());
  SignaalPauze const pauze;
  if (vergeet(knoop)) {
    unlink(knoop.pad.c_str());
  }
}

bool WegwerpBestand::sluit() {
  int const open = handvat;
  handvat = -1;
  // Linux has closed it, also where a signal came between.
  return open < 0 || close(open) == 0 || errno == EINTR;
}

bool WegwerpBestand::hernoem(std::string const& doel) {
  SignaalPauze const pauze;
  if (std::rename(knoop.pad.c_str(), doel.c_str()) != 0) {
    return false;
  }
  vergeet(knoop);
  return true;
}

// What is made before an exception goes too: the other constructor has ended by then.
WegwerpMap::WegwerpMap(std::string const& pad) : WegwerpMap() {
  SignaalPauze const pauze;
  fs::path tot;
  for (fs::path const& deel : fs::path(pad)) {
    tot /= deel;
    if (!maak(tot.string())) {
      return;
    }
  }
  fout = pad.empty() ? ENOENT : 0;
}

bool WegwerpMap::maak(std::string const& pad) {
  constexpr mode_t alle = 0777;
  auto& knoop = gemaakt.emplace_back(std::make_unique<WegwerpKnoop>());
  knoop->pad = pad;
  if (mkdir(pad.c_str(), alle) == 0) {
    noteer(*knoop);
    return true;
  }
  int const code = errno;
  gemaakt.pop_back();
  std::error_code geen;
  fout = fs::is_directory(pad, geen) ? 0 : code;
  return isEr();
}

WegwerpMap::~WegwerpMap() {
  SignaalPauze const pauze;
  std::for_each(gemaakt.rbegin(), gemaakt.rend(), [](std::unique_ptr<WegwerpKnoop> const& knoop) {
    vergeet(*knoop);
    rmdir(knoop->pad.c_str());
  });
}
