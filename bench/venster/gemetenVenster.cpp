#include "bench/venster/gemetenVenster.h"

#include <sys/resource.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/textctrl.h>

#include <cstdio>

namespace {

rusage verbruik() {
  rusage tot{};
  getrusage(RUSAGE_SELF, &tot);
  return tot;
}

double alsSeconden(timeval const& tijd) {
  constexpr double microsPerSeconde = 1e6;
  return static_cast<double>(tijd.tv_sec) + static_cast<double>(tijd.tv_usec) / microsPerSeconde;
}

}  // namespace

int draaiTotGetoond(wxWindow& venster, std::function<void()> const& doe) {
  bool getekend = false;
  bool gedaan = false;
  venster.Bind(wxEVT_PAINT, [&getekend](wxPaintEvent& event) {
    getekend = true;
    wxWakeUpIdle();
    event.Skip();
  });
  wxTheApp->Bind(wxEVT_IDLE, [&](wxIdleEvent& event) {
    event.Skip();
    if (getekend && !gedaan) {
      // What is done may run the event loop itself.
      gedaan = true;
      doe();
    }
  });
  return wxTheApp->OnRun();
}

double processorTijd() {
  rusage const tot = verbruik();
  return alsSeconden(tot.ru_utime) + alsSeconden(tot.ru_stime);
}

void meldEnEindig(double begin, wxTextCtrl const& veld) {
  double const seconden = processorTijd() - begin;
  std::printf("%f %ld %ld\n", seconden, verbruik().ru_maxrss, veld.GetLastPosition());
  eindig(0);
}

void eindig(int status) {
  static_cast<void>(std::fflush(nullptr));
  _exit(status);
}
