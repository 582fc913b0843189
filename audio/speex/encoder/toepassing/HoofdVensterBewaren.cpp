// Saving of the generated text, and the questions that every save asks.
#include <wx/filedlg.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>

#include "audio/codec/uitvoerBestand.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/uitvoer/bestandsNamen.h"
#include "audio/uitvoer/doelKeuring.h"

void HoofdVenster::speexSaveHandler(wxCommandEvent& /*event*/) {
  Bezigheid const nu(bezig);
  std::optional<GekozenDoel> const doel =
      vraagDoel(_("Save the embedded speex file"), speexBestand);
  if (!doel) {
    return;
  }
  speexDirectory = doel->map;
  UitvoerBestand bestand = openDoel(speexBestand);
  // A file that takes nothing has been logged; the text stays in memory.
  bestand.schrijf(uitvoerStroom);
  statusBalk->SetStatusText(_("Speex embedded data saved in ") + doel->meldNaam, 0);
  opgeslagen = true;
  bestand.sluit();
}

std::optional<HoofdVenster::GekozenDoel> HoofdVenster::vraagDoel(wxString const& vraag,
                                                                 wxFileName& bestand) {
  wxString const extensie = extensieVoorTaal(instellingen->speexOutputLanguage);
  bestand.SetName(stelNaamVoor(wavBestanden, wavDirectory));
  bestand.SetExt(extensie);
  // The filter is the bare extension, and the dialog opens in the directory of the last save.
  wxFileDialog dialoog(this, vraag, bestand.GetPath(wxPATH_GET_VOLUME), bestand.GetFullName(),
                       extensie, wxFD_SAVE | wxFD_CHANGE_DIR);
  if (dialoog.ShowModal() != wxID_OK) {
    return std::nullopt;
  }
  bestand.Assign(dialoog.GetPath());
  // The dialog's own directory is the one that it shows, which need not be that of a typed path.
  return GekozenDoel{::meldNaam(dialoog.GetFilename(), extensie), bestand.GetPath()};
}

UitvoerBestand HoofdVenster::openDoel(wxFileName const& bestand) {
  wxString const bezwaar = keurDoel(bestand, wavBestanden);
  if (!bezwaar.empty()) {
    wxLogError("%s", bezwaar);
    return {};
  }
  return {bestand.GetFullPath(), vraagOpenModus(bestand)};
}

wxFile::OpenMode HoofdVenster::vraagOpenModus(wxFileName const& bestand) {
  if (!bestand.FileExists()) {
    return wxFile::write;
  }
  // Any other answer than yes overwrites, Escape too.
  int const antwoord =
      wxMessageBox(_("The file already exists.\nWould you like to append the newly encoded data to "
                     "this file?"),
                   _("File exists"), wxYES_NO, this);
  return antwoord == wxYES ? wxFile::write_append : wxFile::write;
}
