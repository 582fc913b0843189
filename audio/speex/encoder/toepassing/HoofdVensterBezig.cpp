// What reaches the window in the middle of a run, a question or a sound. A user cannot reach it
// then, but a screen reader can, and so can a desktop that shows the menus of programs in a bar of
// its own: both go past what is disabled.
#include <wx/spinctrl.h>

#include <algorithm>
#include <array>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"

namespace {

template <std::size_t N>
bool isEenVan(std::array<wxEventType, N> const& soorten, wxEvent const& event) {
  return std::find(soorten.begin(), soorten.end(), event.GetEventType()) != soorten.end();
}

}  // namespace

// A command would start a second run within the first, or take the window away under it: it is
// turned away. A setting would change under the run: its handler waits until the run has ended, and
// then gives up the result as always.
bool HoofdVenster::TryBefore(wxEvent& event) {
  std::array<wxEventType, 2> const opdrachten{wxEVT_MENU, wxEVT_BUTTON};
  std::array<wxEventType, 5> const instelling{wxEVT_CHOICE, wxEVT_SPINCTRL, wxEVT_CHECKBOX,
                                              wxEVT_RADIOBOX, wxEVT_TEXT};
  // The text field tells of its text in the middle of a run.
  if (!bezig.isBezig() || event.GetId() == ID_TEKST) {
    return wxFrame::TryBefore(event);
  }
  if (bezig.isInRun() && isEenVan(instelling, event)) {
    bezig.stelUit(event);
    return true;
  }
  return isEenVan(opdrachten, event) || wxFrame::TryBefore(event);
}
