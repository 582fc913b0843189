// Embedding of the loaded files as WAV images. It takes no encoder: the text goes straight into the
// file that the user chooses.
#include <wx/file.h>
#include <wx/intl.h>
#include <wx/progdlg.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/wfstream.h>

#include "audio/codec/fragmentTekst.h"
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
  wxFile bestand(embedBestand.GetFullPath(), vraagOpenModus(embedBestand));
  // A file that cannot be opened has been logged by the toolkit: there is nowhere to put the text,
  // and so nothing to make.
  if (bestand.IsOpened()) {
    schrijfInbeddingen(bestand, voortgang);
  }
  statusBalk->SetStatusText(_("WAV embedded data saved in ") + doel->meldNaam, 0);
  bestand.Close();
  // The whole file, with what was there before an append. The toolkit would ask for as much memory
  // as a directory tells it has.
  tekstVeld->Clear();
  if (embedBestand.FileExists()) {
    tekstVeld->LoadFile(embedBestand.GetFullPath());
  }
}

void HoofdVenster::schrijfInbeddingen(wxFile& bestand, wxProgressDialog& voortgang) const {
  InbedOpties const opties{instellingen->speexOutputLanguage, klasseNaam,
                           static_cast<int>(geefDacBits())};
  wxFileOutputStream naarBestand(bestand);
  constexpr std::size_t bufferBytes = 65536;
  wxBufferedOutputStream uit(naarBestand, bufferBytes);
  FragmentTekst tekst(uit);
  auto const aantal = static_cast<int>(wavBestanden.size());
  tekst.schrijf(runHoofd(wxString::Format("/* Embedded output of %d WAV Files\t\t*/\n\n", aantal),
                         opties.taal,
                         {"// extern const unsigned char ", "// static const unsigned char "},
                         klasseNaam, wavBestanden));
  for (int nummer = 1; nummer <= aantal; ++nummer) {
    tekst.schrijf(
        wxString::Format("/******* Start embedding file number %d \t\t*******/\n", nummer));
    schrijfInbedding(wxFileName(wavBestanden[static_cast<std::size_t>(nummer) - 1]), opties, uit);
    tekst.schrijf(
        wxString::Format("/******* Stop embedding file number %d \t\t*******/\n\n", nummer));
    // One behind: the bar never reaches its end.
    voortgang.Update(nummer - 1, wxEmptyString);
  }
}
