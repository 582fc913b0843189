#include "audio/speex/encoder/toepassing/bestandsNamen.h"

#include <wx/filename.h>

#include "audio/codec/uitvoerTaal.h"

wxString extensieVoorTaal(int taal) {
  switch (taal) {
    case UitvoerTaalC:
      return "c";
    case UitvoerTaalCPP:
      return "cpp";
    default:
      return "py";
  }
}

wxString stelNaamVoor(wxArrayString const& wavBestanden, wxString const& map) {
  return wxFileName(wavBestanden.size() == 1 ? wavBestanden[0] : map).GetName();
}

wxString meldNaam(wxString const& gekozen, wxString const& extensie) {
  return gekozen.EndsWith(extensie) ? gekozen : gekozen + extensie;
}
