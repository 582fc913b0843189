#include "tests/audio/speex/encoder/toepassing/invoerProef.h"

#include <wx/utils.h>
#include <wx/window.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/geduld.h"

bool InvoerProef::wacht(std::function<bool()> const& gebeurd) {
  return wachtTot([this, &gebeurd] {
    rust();
    return gebeurd();
  });
}

void InvoerProef::wachtEven() {
  constexpr int rondes = 25;
  constexpr unsigned long pauze = 20;
  for (int ronde = 0; ronde < rondes; ++ronde) {
    rust();
    wxMilliSleep(pauze);
  }
}

void InvoerProef::richt(wxWindow* doel) {
  venster->Raise();
  doel->SetFocus();
  ASSERT_TRUE(wacht([this, doel] { return venster->IsActive() && doel->HasFocus(); }));
}

bool InvoerProef::drukTot(int toets, int met, std::function<bool()> const& gebeurd) {
  constexpr int rondesTussen = 500;
  int ronde = 0;
  return wacht([&] {
    bool const is = gebeurd();
    if (!is && ronde++ % rondesTussen == 0) {
      druk(toets, met);
    }
    return is;
  });
}
