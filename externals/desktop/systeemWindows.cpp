#include <wx/utils.h>

#include "externals/desktop/systeem.h"

wxOperatingSystemId geefSysteem() {
  return wxGetOsVersion();
}

// Paths are of wide characters here.
void zetTekensoort() {}

// A new file has the rights of its folder, as the one before it had.
void geefRechten(wxString const& /*nieuw*/, wxString const& /*oud*/) {}
