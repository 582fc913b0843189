#include "audio/uitvoer/uitvoerRun.h"

#include <wx/filename.h>

#include "audio/codec/fragmentTekst.h"
#include "audio/uitvoer/fragmentMaker.h"
#include "audio/uitvoer/runTekst.h"

std::optional<wxString> voerRunUit(RunOpdracht const& opdracht, FragmentMaker& maker,
                                   wxOutputStream& uit, RunToezicht& toezicht) {
  std::size_t const aantal = opdracht.wavBestanden.size();
  RunSoort const& soort = maker.geefSoort();
  maker.begin(opdracht.instellingen, opdracht.klasse, aantal);

  FragmentTekst tekst(uit);
  tekst.schrijf(runHoofd(soort, {opdracht.instellingen.speexOutputLanguage, opdracht.klasse},
                         opdracht.wavBestanden));
  for (std::size_t nummer = 1; nummer <= aantal; ++nummer) {
    wxString const& wav = opdracht.wavBestanden[nummer - 1];
    tekst.schrijf(startMerk(soort, nummer));
    Gemaakt const uitslag =
        maker.maak(wxFileName(wav), toezicht.metHeader(opdracht.instellingen), uit);
    if (uitslag == Gemaakt::mislukt) {
      return wav;
    }
    if (uitslag == Gemaakt::nietHeel) {
      toezicht.meldNietHeel(wav);
    }
    tekst.schrijf(stopMerk(soort, nummer));
    toezicht.meldGedaan(nummer);
  }
  return std::nullopt;
}
