#include "tests/steun/configTekst.h"

#include <wx/tokenzr.h>

std::map<wxString, wxString> configSleutels(wxString const& tekst) {
  std::map<wxString, wxString> sleutels;
  wxString groep = "/";
  wxStringTokenizer regels(tekst, "\n");
  while (regels.HasMoreTokens()) {
    wxString const regel = regels.GetNextToken();
    wxString kern;
    if (regel.StartsWith("[", &kern)) {
      groep = "/" + kern.BeforeLast(']') + "/";
    } else if (regel.Contains("=")) {
      sleutels[groep + regel.BeforeFirst('=')] = regel.AfterFirst('=');
    }
  }
  return sleutels;
}
