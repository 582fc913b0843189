// Embedding of the loaded files as WAV images. It takes no encoder: the text goes straight into the
// file that the user chooses.
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/progdlg.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>

#include "audio/codec/fragmentTekst.h"
#include "audio/codec/uitvoerBestand.h"
#include "audio/codec/wavInbedding.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/runTekst.h"

void HoofdVenster::wavSaveHandler(wxCommandEvent& /*event*/) {
  std::optional<GekozenDoel> const doel =
      vraagDoel(_("Save the WAV files as embedded data"), embedBestand);
  if (!doel) {
    return;
  }
  wxProgressDialog voortgang(_("Embedding progress"), _("Completion of embedding progress"),
                             static_cast<int>(wavBestanden.size()), this,
                             wxPD_APP_MODAL | wxPD_AUTO_HIDE | wxPD_ELAPSED_TIME);
  UitvoerBestand bestand = openDoel(embedBestand);
  bool const isOpen = bestand.isOpen();
  // A file that cannot be opened has been logged: there is nowhere to put the text, and so nothing
  // to make and nothing to show.
  if (isOpen) {
    schrijfInbeddingen(bestand, voortgang);
  }
  statusBalk->SetStatusText(_("WAV embedded data saved in ") + doel->meldNaam, 0);
  bestand.sluit();
  // The whole file, with what was there before an append. The toolkit would ask for as much memory
  // as a directory tells it has.
  tekstVeld->Clear();
  if (isOpen && embedBestand.FileExists()) {
    tekstVeld->LoadFile(embedBestand.GetFullPath());
  }
}

void HoofdVenster::schrijfInbeddingen(wxOutputStream& bestand, wxProgressDialog& voortgang) const {
  InbedOpties const opties{instellingen->speexOutputLanguage, klasseNaam,
                           static_cast<int>(geefDacBits())};
  constexpr std::size_t bufferBytes = 65536;
  wxBufferedOutputStream uit(bestand, bufferBytes);
  FragmentTekst tekst(uit);
  auto const aantal = static_cast<int>(wavBestanden.size());
  tekst.schrijf(runHoofd(wxString::Format("/* Embedded output of %d WAV Files\t\t*/\n\n", aantal),
                         opties.taal,
                         {"// extern const unsigned char ", "// static const unsigned char "},
                         klasseNaam, wavBestanden));
  for (int nummer = 1; nummer <= aantal; ++nummer) {
    tekst.schrijf(
        wxString::Format("/******* Start embedding file number %d \t\t*******/\n", nummer));
    wxString const& wav = wavBestanden[static_cast<std::size_t>(nummer) - 1];
    if (!schrijfInbedding(wxFileName(wav), opties, uit)) {
      wxLogError(_("Could not embed the whole of %s"), wav);
    }
    tekst.schrijf(
        wxString::Format("/******* Stop embedding file number %d \t\t*******/\n\n", nummer));
    // One behind: the bar never reaches its end.
    voortgang.Update(nummer - 1, wxEmptyString);
  }
}
