#include "externals/desktop/tekstVeld.h"

// In one piece: the system's field lays out its whole text for each part that is added.
bool TekstVeld::DoLoadFile(wxString const& pad, int soort) {
  bool const isGeladen = wxTextCtrl::DoLoadFile(pad, soort);
  naDeel();
  return isGeladen;
}
