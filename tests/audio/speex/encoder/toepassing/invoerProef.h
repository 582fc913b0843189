// The fixture of the tests with keys and a mouse as a user has them. Each test has a display of its
// own, for the keyboard goes to one window at a time.
#pragma once

#include <wx/uiaction.h>

#include <functional>

#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

class wxWindow;

class InvoerProef : public GereedProef {
 protected:
  // The enable rules run too.
  bool wacht(std::function<bool()> const& gebeurd);
  // Long enough for a key to have its effect, which here is a fault.
  void wachtEven();

  void richt(wxWindow* doel);

  void druk(int toets, int met = wxMOD_NONE) { muisEnToetsen.Char(toets, met); }
  // The same for a key of the window manager, which may think of another window yet when this one
  // has become active: it is pressed again after a while.
  bool drukTot(int toets, int met, std::function<bool()> const& gebeurd);

  wxUIActionSimulator muisEnToetsen;
};
