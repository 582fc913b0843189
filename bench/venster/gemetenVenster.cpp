#include "bench/venster/gemetenVenster.h"

#include <sys/resource.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/textctrl.h>

#include <cstdio>

#include "bench/meting.h"

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

void meldEnEindig(double begin, wxTextCtrl const& veld) {
  double const seconden = processorTijd() - begin;
  rusage verbruik{};
  getrusage(RUSAGE_SELF, &verbruik);
  std::printf("%f %ld %ld\n", seconden, verbruik.ru_maxrss, veld.GetLastPosition());
  eindig(0);
}

void eindig(int status) {
  static_cast<void>(std::fflush(nullptr));
  _exit(status);
}
