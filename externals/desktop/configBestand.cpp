#include "externals/desktop/configBestand.h"

#include <wx/file.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/translation.h>

#include <filesystem>

#include "externals/desktop/systeem.h"

namespace {

constexpr int plaatsen = wxCONFIG_USE_LOCAL_FILE | wxCONFIG_USE_GLOBAL_FILE;

std::filesystem::path alsPad(wxString const& pad) {
  return static_cast<std::filesystem::path::value_type const*>(pad.fn_str());
}

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
  wxFile bestand;
  wxString const nieuw = wxFileName::CreateTempFileName(pad, &bestand);
  if (nieuw.empty()) {
    return "can't open user configuration file.";
  }
  geefRechten(nieuw, pad);
  bool const geschreven = bestand.Write(tekst.GetOutputStreamBuffer()->GetBufferStart(),
                                        tekst.GetSize()) == tekst.GetSize() &&
                          bestand.Flush();
  if (!bestand.Close() || !geschreven) {
    wxRemoveFile(nieuw);
    return "can't write user configuration file.";
  }
  // In one step: the toolkit's own way removes the old file first.
  if (!hernoemBestand(alsPad(nieuw), alsPad(pad))) {
    wxRemoveFile(nieuw);
    return "Failed to update user configuration file.";
  }
  return wxEmptyString;
}
