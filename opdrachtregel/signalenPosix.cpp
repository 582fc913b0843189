#include <array>
#include <csignal>

#include "opdrachtregel/signalen.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

// Interrupt, end, a terminal that closes, quit, a reader of standard output that has gone.
constexpr std::array<int, 5> eindSignalen{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE};

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

// The pauses that live, and what was kept waiting before the first of them.
int pauzes = 0;
sigset_t vorige{};

}  // namespace

SignaalPauze::SignaalPauze() {
  if (pauzes++ == 0) {
    sigset_t const masker = eindMasker();
    sigprocmask(SIG_BLOCK, &masker, &vorige);
  }
}

SignaalPauze::~SignaalPauze() {
  if (--pauzes == 0) {
    sigprocmask(SIG_SETMASK, &vorige, nullptr);
  }
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
