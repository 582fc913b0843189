#include "externals/desktop/configBestand.h"

#include <wx/file.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/translation.h>

namespace {

constexpr int plaatsen = wxCONFIG_USE_LOCAL_FILE | wxCONFIG_USE_GLOBAL_FILE;

}  // namespace

ConfigBestand::ConfigBestand(wxString const& naam, wxString const& leverancier)
    : wxFileConfig(naam, leverancier, wxEmptyString, wxEmptyString, plaatsen, wxConvAuto()),
      pad(GetLocalFile(naam, plaatsen).GetFullPath()) {}

ConfigBestand::~ConfigBestand() {
  ConfigBestand::Flush();
}

bool ConfigBestand::Flush(bool /*alleenHuidige*/) {
  // The toolkit takes all for written from here on.
  wxMemoryOutputStream tekst;
  Save(tekst);
  wxString const bezwaar = schrijf(tekst);
  if (!bezwaar.empty()) {
    wxLogError("%s", wxGetTranslation(bezwaar));
  }
  return bezwaar.empty();
}

// The texts are the toolkit's, and in its own catalog.
wxString ConfigBestand::schrijf(wxMemoryOutputStream const& tekst) const {
  wxTempFile bestand(pad);
  if (!bestand.IsOpened()) {
    return "can't open user configuration file.";
  }
  if (!bestand.Write(tekst.GetOutputStreamBuffer()->GetBufferStart(), tekst.GetSize()) ||
      !bestand.Flush()) {
    return "can't write user configuration file.";
  }
  return bestand.Commit() ? "" : "Failed to update user configuration file.";
}
