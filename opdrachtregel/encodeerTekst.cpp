#include "opdrachtregel/encodeerTekst.h"

#include <wx/arrstr.h>
#include <wx/stream.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "audio/uitvoer/fragmentMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "audio/uitvoer/uitvoerRun.h"
#include "audio/weergave/arrayMaker.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/systeem.h"
#include "opdrachtregel/voortgang.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

constexpr char const* opnamenNaam = "recordings";

// Notes where the coder stands when the run asks about the next array.
class StandVolger : public Voortgang {
 public:
  StandVolger(std::size_t aantal, ADPCMDesktopConverter const& gevolgde,
              std::vector<CoderStand>& plaats)
      : Voortgang(aantal, opnamenNaam), coder(gevolgde), standen(plaats) {}

  bool metHeader(KestrolinConfig const& instellingen) override {
    standen.push_back({coder.geefEncVoorspelling(), coder.geefEncIndex()});
    return Voortgang::metHeader(instellingen);
  }

 private:
  ADPCMDesktopConverter const& coder;
  std::vector<CoderStand>& standen;
};

// The path of the recording at which the run gave up, empty where it did not.
std::string voerUit(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                    FragmentMaker& maker, wxOutputStream& uit, Voortgang& voortgang) {
  wxSortedArrayString paden;
  for (Opname const& een : opnamen) {
    paden.Add(een.bestand.GetFullPath());
  }
  wxString const klasse = wxString::FromUTF8(vraag.klasse);
  constexpr std::size_t bufferBytes = 65536;
  wxBufferedOutputStream buffer(uit, bufferBytes);
  auto const blijftUit = voerRunUit({paden, vraag.instellingen, klasse}, maker, buffer, voortgang);
  buffer.Close();
  return blijftUit ? blijftUit->utf8_string() : std::string();
}

std::string voerUitMetStanden(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                              wxOutputStream& uit, std::vector<CoderStand>& standen) {
  ADPCMDesktopConverter coder(maakAdpcmOpties(vraag.instellingen, wxString()));
  ADPCMMaker maker(coder);
  StandVolger volger(opnamen.size(), coder, standen);
  return voerUit(vraag, opnamen, maker, uit, volger);
}

std::string voerUitZonder(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                          wxOutputStream& uit, wxString const& beeld) {
  std::unique_ptr<FragmentMaker> const maker = maakMaker(vraag.soort, beeld);
  Voortgang voortgang(opnamen.size(), opnamenNaam);
  return voerUit(vraag, opnamen, *maker, uit, voortgang);
}

}  // namespace

bool schrijfTekst(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                  wxOutputStream& uit, std::vector<CoderStand>* standen) {
  std::optional<WegwerpBestand> beeld;
  if (vraag.soort == ArraySoort::wav && !beeld.emplace(tijdelijkeMap()).isOpen()) {
    meldGeenTijdelijk();
    return false;
  }
  MeldingVanger vanger;
  std::string const blijftUit =
      standen != nullptr ? voerUitMetStanden(vraag, opnamen, uit, *standen)
                         : voerUitZonder(vraag, opnamen, uit,
                                         beeld ? wxString::FromUTF8(beeld->geefPad()) : wxString());
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
