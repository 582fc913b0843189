#include <windows.h>

#include <mutex>

#include "opdrachtregel/signalen.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

// Held by who changes files that a signal removes. One thread may take it more than once.
std::recursive_mutex& slot() {
  static std::recursive_mutex enige;
  return enige;
}

// Windows calls this in a thread of its own, and ends the program behind it: the slot stays taken,
// so that no file comes after the last one has gone.
BOOL WINAPI ruimOp(DWORD /*signaal*/) {
  slot().lock();
  ruimNuOp();
  return FALSE;
}

}  // namespace

SignaalPauze::SignaalPauze() {
  slot().lock();
}

SignaalPauze::~SignaalPauze() {
  slot().unlock();
}

void ruimOpBijSignaal() {
  SetConsoleCtrlHandler(ruimOp, TRUE);
}
