#include "audio/uitvoer/bestandsNamen.h"

#include <wx/filename.h>

#include "audio/codec/uitvoerTaal.h"

wxString extensieVoorTaal(int taal) {
  return uitvoerTaalRij(taal).extensie;
}

wxString stelNaamVoor(wxArrayString const& wavBestanden, wxString const& map) {
  return wxFileName(wavBestanden.size() == 1 ? wavBestanden[0] : map).GetName();
}

wxString meldNaam(wxString const& gekozen, wxString const& extensie) {
  return gekozen.EndsWith(extensie) ? gekozen : gekozen + extensie;
}
