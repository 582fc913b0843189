#include "tests/steun/geduld.h"

#include <wx/app.h>
#include <wx/utils.h>

#include <chrono>

bool wachtTot(std::function<bool()> const& gebeurd) {
  using Klok = std::chrono::steady_clock;
  constexpr std::chrono::minutes geduld{3};
  constexpr unsigned long pauze = 10;
  Klok::time_point const einde = Klok::now() + geduld;
  while (!gebeurd()) {
    if (Klok::now() > einde) {
      return false;
    }
    if (wxTheApp != nullptr) {
      wxYield();
    }
    wxMilliSleep(pauze);
  }
  return true;
}
