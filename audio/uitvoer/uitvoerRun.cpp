#include "audio/uitvoer/uitvoerRun.h"

#include <wx/filename.h>

#include "audio/codec/fragmentTekst.h"
#include "audio/uitvoer/fragmentMaker.h"
#include "audio/uitvoer/kestrolinConfig.h"

std::size_t voerRunUit(RunOpdracht const& opdracht, FragmentMaker& maker, wxOutputStream& uit,
                       RunToezicht& toezicht) {
  std::size_t const aantal = opdracht.wavBestanden.size();
  RunSoort const& soort = maker.geefSoort();
  maker.begin(opdracht.instellingen, opdracht.klasse, aantal);

  FragmentTekst tekst(uit);
  tekst.schrijf(runHoofd(soort, {opdracht.instellingen.speexOutputLanguage, opdracht.klasse},
                         opdracht.wavBestanden));
  for (std::size_t gedaan = 0; gedaan < aantal; ++gedaan) {
    wxString const& wav = opdracht.wavBestanden[gedaan];
    tekst.schrijf(startMerk(soort, gedaan + 1));
    Gemaakt const uitslag = maker.maak(wxFileName(wav), toezicht.metHeader(), uit);
    if (uitslag == Gemaakt::mislukt) {
      return gedaan;
    }
    if (uitslag == Gemaakt::nietHeel) {
      toezicht.meldNietHeel(wav);
    }
    tekst.schrijf(stopMerk(soort, gedaan + 1));
    toezicht.meldGedaan(gedaan + 1);
  }
  return aantal;
}
