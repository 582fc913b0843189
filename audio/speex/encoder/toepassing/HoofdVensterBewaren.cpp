// Saving of the generated text, and the questions that every save asks.
#include <wx/file.h>
#include <wx/filedlg.h>
#include <wx/intl.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bestandsNamen.h"
#include "audio/speex/encoder/toepassing/stroomKopie.h"

void HoofdVenster::speexSaveHandler(wxCommandEvent& /*event*/) {
  std::optional<GekozenDoel> const doel =
      vraagDoel(_("Save the embedded speex file"), speexBestand);
  if (!doel) {
    return;
  }
  speexDirectory = doel->map;
  wxFile bestand(speexBestand.GetFullPath(), vraagOpenModus(speexBestand));
  // A file that cannot be opened has been logged by the toolkit; the text stays in memory.
  if (bestand.IsOpened()) {
    kopieer(uitvoerStroom, bestand);
  }
  statusBalk->SetStatusText(_("Speex embedded data saved in ") + doel->meldNaam, 0);
  opgeslagen = true;
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
  return GekozenDoel{::meldNaam(dialoog.GetFilename(), extensie), dialoog.GetDirectory()};
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
