#include "externals/desktop/statusBalk.h"

#include "externals/desktop/toegankelijk.h"

StatusBalk::StatusBalk(wxWindow* ouder, int id, long stijl, wxString const& naam)
    : wxStatusBar(ouder, id, stijl, naam) {
  toonAlsStatusBalk(this);
}

void StatusBalk::SetStatusText(wxString const& tekst, int veld) {
  wxStatusBar::SetStatusText(tekst, veld);
  if (veld == 0 && IsShownOnScreen()) {
    laatHoren(this, tekst);
  }
}

void StatusBalk::DoUpdateStatusText(int veld) {
  wxStatusBar::DoUpdateStatusText(veld);
  if (veld == 0) {
    toonStatusTekst(this, GetStatusText(veld));
  }
}
