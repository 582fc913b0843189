// Saving of the generated text.
#include <wx/file.h>
#include <wx/filedlg.h>
#include <wx/intl.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bestandsNamen.h"
#include "audio/speex/encoder/toepassing/stroomKopie.h"

void HoofdVenster::speexSaveHandler(wxCommandEvent& /*event*/) {
  wxString const extensie = extensieVoorTaal(instellingen->speexOutputLanguage);
  speexBestand.SetName(stelNaamVoor(wavBestanden, wavDirectory));
  speexBestand.SetExt(extensie);
  // The filter is the bare extension, and the dialog opens in the directory of the last save.
  wxFileDialog dialoog(this, _("Save the embedded speex file"),
                       speexBestand.GetPath(wxPATH_GET_VOLUME), speexBestand.GetFullName(),
                       extensie, wxFD_SAVE | wxFD_CHANGE_DIR);
  if (dialoog.ShowModal() != wxID_OK) {
    return;
  }
  wxString const naam = meldNaam(dialoog.GetFilename(), extensie);
  speexBestand.Assign(dialoog.GetPath());
  speexDirectory = dialoog.GetDirectory();
  wxFile bestand(speexBestand.GetFullPath(), vraagOpenModus(speexBestand));
  // A file that cannot be opened has been logged by the toolkit; the text stays in memory.
  if (bestand.IsOpened()) {
    kopieer(uitvoerStroom, bestand);
  }
  statusBalk->SetStatusText(_("Speex embedded data saved in ") + naam, 0);
  opgeslagen = true;
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
