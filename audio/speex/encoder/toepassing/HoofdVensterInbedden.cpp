// Embedding of the loaded files as WAV images. It takes no encoder: the text goes straight into the
// file that the user chooses.
#include <wx/intl.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>

#include "audio/codec/uitvoerBestand.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/vensterToezicht.h"

void HoofdVenster::wavSaveHandler(wxCommandEvent& /*event*/) {
  Bezigheid nu(bezig);
  std::optional<GekozenDoel> const doel =
      vraagDoel(_("Save the WAV files as embedded data"), embedBestand);
  if (!doel) {
    return;
  }
  VensterToezicht toezicht(this, _("Embedding progress"), _("Completion of embedding progress"),
                           wavBestanden.size(), *inclHeaderVakje);
  nu.beginRun();
  UitvoerBestand bestand = openDoel(embedBestand);
  bool const isOpen = bestand.isOpen();
  // A file that cannot be opened has been logged: there is nowhere to put the text, and so nothing
  // to make and nothing to show.
  if (isOpen) {
    constexpr std::size_t bufferBytes = 65536;
    wxBufferedOutputStream uit(bestand, bufferBytes);
    WAVMaker maker;
    voerRunUit({wavBestanden, *instellingen, klasseNaam}, maker, uit, toezicht);
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
