#include "audio/codec/wavInbedding.h"

#include <wx/datstrm.h>
#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "audio/codec/byteTekst.h"
#include "audio/codec/fragmentTekst.h"
#include "audio/codec/sndBestand.h"

namespace {

void schrijfKop(FragmentTekst& tekst, wxFileName const& wav, SF_INFO const& info, int dacBits) {
  constexpr int wavPcm16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  tekst.schrijfHerkomst("Embedded", wav);
  tekst.schrijf(info.format == wavPcm16
                    ? _("/* WAV Format                 : WAV S16 PCM\t*/\n")
                    : _("/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n"));
  tekst.schrijfFrequentie(info);
  // The low 32 bits of the count, which is one of frames, whatever the line says.
  tekst.schrijf(wxString::Format("/* Size                       : %ld bytes\t\t*/\n",
                                 static_cast<long>(static_cast<unsigned int>(info.frames))));
  tekst.schrijf("/* Duration                   : " + fragmentDuur(info.frames, info.samplerate) +
                " s\t\t*/\n");
  tekst.schrijfSchaal(dacBits);
}

// Copies the samples of `bron` to a file of its kind, scaled. The count is one of frames and not of
// samples: a file of two channels goes over by half. libsndfile takes whole frames alone.
void schaal(SndBestand bron, wxFileName const& doel, int dacBits) {
  constexpr int sampleBits = 16;
  SF_INFO const& info = bron.info();
  SndBestand uit = SndBestand::schrijf(doel, info.samplerate, info.channels, info.format);
  if (!bron.isOpen()) {
    return;
  }
  int const verschuiving = sampleBits - dacBits;
  std::vector<short> frame(static_cast<std::size_t>(info.channels));
  auto const lengte = static_cast<sf_count_t>(frame.size());
  for (sf_count_t plaats = 0; plaats + lengte <= info.frames; plaats += lengte) {
    // What cannot be read counts as zero.
    std::fill(frame.begin(), frame.end(), short{0});
    bron.leesItems(frame.data(), lengte);
    // The floor of the quotient, so that -1 stays -1 at every width.
    std::transform(frame.begin(), frame.end(), frame.begin(), [verschuiving](short sample) {
      return static_cast<short>(sample >> verschuiving);
    });
    uit.schrijfItems(frame.data(), lengte);
  }
}

// All bytes of the file, the line broken and a new one begun behind every eighth, also the last.
void schrijfBytes(FragmentTekst& tekst, wxFileName const& beeld) {
  wxFileInputStream bestand(beeld.GetFullPath());
  if (!bestand.IsOk()) {
    return;
  }
  // The file alone would make a system call for each byte.
  constexpr std::size_t bufferBytes = 65536;
  wxBufferedInputStream buffer(bestand, bufferBytes);
  wxDataInputStream bytes(buffer);
  auto const lengte = static_cast<std::size_t>(bestand.GetLength());
  std::wstring rij;
  for (std::size_t nummer = 1; nummer <= lengte; ++nummer) {
    rij += byteTeksten[bytes.Read8()].zicht();
    if (nummer % bytesPerRij == 0) {
      rij += L"\n\t";
      tekst.schrijf(rij);
      rij.clear();
    }
  }
  tekst.schrijf(rij);
}

}  // namespace

void schrijfInbedding(wxFileName const& wav, InbedOpties const& opties, wxOutputStream& uit) {
  FragmentTekst tekst(uit);
  wxFileName const beeld(wxFileName::CreateTempFileName(wav.GetName()));
  SndBestand bron = SndBestand::lees(wav);
  schrijfKop(tekst, wav, bron.info(), opties.dacBits);
  // Both files are complete and closed behind this.
  schaal(std::move(bron), beeld, opties.dacBits);
  tekst.schrijfArrayKop({opties.taal, opties.klasse, wav.GetName()}, "unsigned char");
  tekst.schrijf("\t");
  if (beeld.IsOk()) {
    schrijfBytes(tekst, beeld);
  }
  tekst.schrijf("};\n\n");
  tekst.schrijf("/* end of WAV file         : " + wav.GetFullName() + "         */\n");
}
