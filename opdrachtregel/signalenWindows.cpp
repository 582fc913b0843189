#include <windows.h>

#include <mutex>

#include "opdrachtregel/signalen.h"
#include "opdrachtregel/terminalWindows.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

// Held by who changes files that a signal removes. One thread may take it more than once.
std::recursive_mutex& slot() {
  static std::recursive_mutex enige;
  return enige;
}

// Windows calls this in a thread of its own. The slot stays taken, so that no file comes after the
// last one has gone.
BOOL WINAPI ruimOp(DWORD /*signaal*/) {
  slot().lock();
  constexpr int pogingen = 200;
  constexpr DWORD pauze = 10;  // ms
  for (int i = 0; i < pogingen && !ruimNuOp(); ++i) {
    Sleep(pauze);
  }
  geefTerminalTerug();
  // As without this function.
  return TerminateProcess(GetCurrentProcess(), STATUS_CONTROL_C_EXIT);
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
