// Builds without GTK 3.
#include "externals/desktop/toegankelijk.h"

void noemControl(wxWindow* /*control*/, wxString const& /*naam*/) {}
void toonAlsStatusBalk(wxStatusBar* /*balk*/) {}
void toonStatusTekst(wxStatusBar* /*balk*/, wxString const& /*tekst*/) {}
void laatHoren(wxStatusBar* /*balk*/, wxString const& /*tekst*/) {}
void maakLeesbaar(wxTreeCtrl* /*boom*/) {}
void toonToetsenbord(wxTreeCtrl* /*boom*/) {}
