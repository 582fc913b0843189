#include "audio/codec/wavInbedding.h"

#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "audio/codec/fragmentTekst.h"
#include "audio/codec/rijSchrijver.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/tijdelijkBestand.h"
#include "audio/codec/wavBeeld.h"
#include "audio/codec/wavFormaat.h"

namespace {

void schrijfKop(FragmentTekst& tekst, wxFileName const& wav, SF_INFO const& info, int dacBits) {
  tekst.schrijfHerkomst("Embedded", wav);
  tekst.schrijf(info.format == wavPcm16
                    ? _("/* WAV Format                 : WAV S16 PCM\t*/\n")
                    : _("/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n"));
  tekst.schrijfFrequentie(info);
  // The low 32 bits of the count, which is one of frames, whatever the line says.
  tekst.schrijf(wxString::Format("/* Size                       : %u bytes\t\t*/\n",
                                 static_cast<unsigned int>(info.frames)));
  tekst.schrijf("/* Duration                   : " + fragmentDuur(info.frames, info.samplerate) +
                " s\t\t*/\n");
  tekst.schrijfSchaal(dacBits);
}

// All bytes of the image. A new line begins behind every eighth, also the last. True where they are
// those of an image of `frames` frames.
bool schrijfBytes(wxOutputStream& uit, wxFileName const& beeld, sf_count_t frames) {
  wxFileInputStream bestand(beeld.GetFullPath());
  if (!bestand.IsOk()) {
    return false;
  }
  // No more of a long file than of a short one.
  constexpr std::size_t blokBytes = 65536;
  std::vector<unsigned char> blok(blokBytes);
  auto const geheel = static_cast<std::size_t>(std::max<wxFileOffset>(bestand.GetLength(), 0));
  RijSchrijver rijen(uit, hexadecimaleBytes, geheel);
  std::size_t lengte = 0;
  bool heel = true;
  while (bestand.ReadAll(blok.data(), blokBytes) || bestand.LastRead() > 0) {
    std::size_t const aantal = bestand.LastRead();
    if (lengte == 0) {
      heel = isHeelWavBeeld({reinterpret_cast<char const*>(blok.data()), aantal}, geheel, frames);
    }
    rijen.schrijfBytes(blok.data(), aantal);
    lengte += aantal;
  }
  rijen.breekVolleRij();
  rijen.rondAf();
  return heel && lengte > 0 && lengte == geheel;
}

}  // namespace

bool schrijfInbedding(wxFileName const& wav, InbedOpties const& opties, wxOutputStream& uit) {
  FragmentTekst tekst(uit);
  wxFileName const beeld(opties.beeld.empty() ? maakTijdelijkBestand(wav.GetName()) : opties.beeld);
  SndBestand bron = SndBestand::lees(wav);
  sf_count_t const frames = framesInBeeld(bron.info());
  schrijfKop(tekst, wav, bron.info(), opties.dacBits);
  // Both files are complete and closed behind this.
  bool const isGemaakt = maakWavBeeld(std::move(bron), beeld, opties.dacBits);
  tekst.schrijfArrayKop({opties.taal, opties.klasse, wav.GetName()}, byteArrayType);
  tekst.schrijf("\t");
  bool const isGelezen = beeld.IsOk() && schrijfBytes(uit, beeld, frames);
  tekst.schrijf("};\n\n");
  tekst.schrijf("/* end of WAV file         : " + wav.GetFullName() + "         */\n");
  return isGemaakt && isGelezen;
}
