#include "audio/codec/wavInbedding.h"

#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/wfstream.h>

#include <string>
#include <string_view>
#include <utility>

#include "audio/codec/byteTekst.h"
#include "audio/codec/fragmentTekst.h"
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

// All bytes of the image, the line broken and a new one begun behind every eighth, also the last.
// True where they are those of an image of `frames` frames.
bool schrijfBytes(FragmentTekst& tekst, wxFileName const& beeld, sf_count_t frames) {
  wxFileInputStream bestand(beeld.GetFullPath());
  if (!bestand.IsOk()) {
    return false;
  }
  // Whole rows, and no more of a long file than of a short one.
  constexpr std::size_t blokBytes = 8192 * bytesPerRij;
  constexpr std::size_t rijTekens = bytesPerRij * 5 + 2;
  std::string blok(blokBytes, '\0');
  std::wstring rijen;
  rijen.reserve(blokBytes / bytesPerRij * rijTekens);
  std::size_t lengte = 0;
  bool heel = true;
  while (bestand.ReadAll(blok.data(), blokBytes) || bestand.LastRead() > 0) {
    std::string_view const bytes(blok.data(), bestand.LastRead());
    if (lengte == 0) {
      heel = isHeelWavBeeld(bytes, static_cast<std::size_t>(bestand.GetLength()), frames);
    }
    rijen.clear();
    for (char const een : bytes) {
      rijen += byteTeksten[static_cast<unsigned char>(een)].zicht();
      if (++lengte % bytesPerRij == 0) {
        rijen += L"\n\t";
      }
    }
    tekst.schrijf(rijen);
  }
  return heel && lengte > 0 && lengte == static_cast<std::size_t>(bestand.GetLength());
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
  bool const isGelezen = beeld.IsOk() && schrijfBytes(tekst, beeld, frames);
  tekst.schrijf("};\n\n");
  tekst.schrijf("/* end of WAV file         : " + wav.GetFullName() + "         */\n");
  return isGemaakt && isGelezen;
}
