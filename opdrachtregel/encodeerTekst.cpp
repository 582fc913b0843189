#include "opdrachtregel/encodeerTekst.h"

#include <wx/arrstr.h>
#include <wx/stream.h>

#include <memory>
#include <optional>

#include "audio/uitvoer/speexMaker.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/voortgang.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

std::unique_ptr<FragmentMaker> maakMaker(Uitvoerwijze wijze, WegwerpBestand const& beeld) {
  switch (wijze) {
    case Uitvoerwijze::speex:
      return std::make_unique<SpeexMaker>();
    case Uitvoerwijze::adpcm:
      return std::make_unique<ADPCMMaker>();
    case Uitvoerwijze::pcm:
      return std::make_unique<PCMMaker>();
    default:
      return std::make_unique<WAVMaker>(wxString::FromUTF8(beeld.geefPad()));
  }
}

}  // namespace

bool schrijfTekst(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                  wxOutputStream& uit) {
  WegwerpBestand const beeld(tijdelijkeMap());
  if (!beeld.isOpen()) {
    meldGeenTijdelijk();
    return false;
  }
  int const voor = aantalGemeld();
  wxSortedArrayString paden;
  for (Opname const& een : opnamen) {
    paden.Add(een.bestand.GetFullPath());
  }
  wxString const klasse = wxString::FromUTF8(vraag.klasse);
  std::unique_ptr<FragmentMaker> const maker = maakMaker(vraag.wijze, beeld);
  Voortgang voortgang(opnamen.size());
  constexpr std::size_t bufferBytes = 65536;
  wxBufferedOutputStream buffer(uit, bufferBytes);
  auto const blijftUit = voerRunUit({paden, vraag.instellingen, klasse}, *maker, buffer, voortgang);
  buffer.Close();
  if (blijftUit && aantalGemeld() == voor) {
    meld(blijftUit->utf8_string() + ": could not be encoded");
  }
  return aantalGemeld() == voor;
}
