#include "opdrachtregel/encodeerTekst.h"

#include <wx/arrstr.h>
#include <wx/stream.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "audio/uitvoer/fragmentMaker.h"
#include "audio/uitvoer/uitvoerRun.h"
#include "audio/weergave/arrayMaker.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/systeem.h"
#include "opdrachtregel/voortgang.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

// The path of the recording at which the run gave up, empty where it did not.
std::string voerUit(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                    FragmentMaker& maker, wxOutputStream& uit) {
  wxSortedArrayString paden;
  for (Opname const& een : opnamen) {
    paden.Add(een.bestand.GetFullPath());
  }
  wxString const klasse = wxString::FromUTF8(vraag.klasse);
  Voortgang voortgang(opnamen.size(), "recordings");
  constexpr std::size_t bufferBytes = 65536;
  wxBufferedOutputStream buffer(uit, bufferBytes);
  auto const blijftUit = voerRunUit({paden, vraag.instellingen, klasse}, maker, buffer, voortgang);
  buffer.Close();
  return blijftUit ? blijftUit->utf8_string() : std::string();
}

}  // namespace

bool schrijfTekst(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                  wxOutputStream& uit) {
  std::optional<WegwerpBestand> beeld;
  if (vraag.soort == ArraySoort::wav && !beeld.emplace(tijdelijkeMap()).isOpen()) {
    meldGeenTijdelijk();
    return false;
  }
  std::unique_ptr<FragmentMaker> const maker =
      maakMaker(vraag.soort, beeld ? wxString::FromUTF8(beeld->geefPad()) : wxString());
  MeldingVanger vanger;
  std::string const blijftUit = voerUit(vraag, opnamen, *maker, uit);
  if (std::count_if(opnamen.begin(), opnamen.end(), isOngewijzigd) !=
      static_cast<std::ptrdiff_t>(opnamen.size())) {
    // What else there is to tell comes of that.
    return false;
  }
  std::for_each(vanger.geefRegels().begin(), vanger.geefRegels().end(), meld);
  if (!blijftUit.empty() && vanger.geefRegels().empty()) {
    meld(blijftUit + ": could not be encoded; see that it is whole");
  }
  return blijftUit.empty() && vanger.geefRegels().empty();
}
