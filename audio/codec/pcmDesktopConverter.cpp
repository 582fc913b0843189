#include "audio/codec/pcmDesktopConverter.h"

#include <wx/datstrm.h>
#include <wx/filename.h>
#include <wx/mstream.h>
#include <wx/wfstream.h>

#include <array>
#include <memory>
#include <vector>

#include "audio/codec/arrayTekst.h"
#include "audio/codec/beeldStroom.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/pcmWav.h"
#include "audio/codec/sndBestand.h"
#include "numeriek/byteGereedschap.h"

// NOLINTNEXTLINE(modernize-pass-by-value): callers keep their options.
PCMDesktopConverter::PCMDesktopConverter(PCMEncoderOpties const& eerste) : opties(eerste) {}

void PCMDesktopConverter::zetOpties(PCMEncoderOpties const& nieuw) {
  opties = nieuw;
}

VelmoraPCMPakket* PCMDesktopConverter::codeerBestand(wxFileName const& wav) const {
  SndBestand bestand = SndBestand::lees(wav);
  SF_INFO const& info = bestand.info();
  auto pakket = std::make_unique<VelmoraPCMPakket>(static_cast<unsigned long long>(info.frames),
                                                   Breuk(info.samplerate, 1));
  bestand.leesItems(pakket->geefData(), info.frames);
  bestand.meldGebrek();
  pakket->vlakAf(opties.bitShift);
  return pakket.release();
}

void PCMDesktopConverter::codeerBestand(wxFileName const& wav, bool metHeader,
                                        wxMemoryOutputStream& uit) const {
  wxOutputStream& stroom = uit;
  codeerBestand(wav, metHeader, stroom);
  // Close changes nothing for a memory stream.
  uit.Close();
}

void PCMDesktopConverter::codeerBestand(wxFileName const& wav, bool metHeader,
                                        wxOutputStream& uit) const {
  std::unique_ptr<VelmoraPCMPakket> const pakket(codeerBestand(wav));
  schrijfArrayTekst(*pakket, wav, {opties.taal, opties.klasseNaam, wav.GetName()},
                    {{"_pcmNumberOfEncSamples", pakket->geefAantalSamples()}}, metHeader, uit);
}

void PCMDesktopConverter::codeerBestand(wxFileName const& wav, bool metHeader,
                                        wxFileName const& uitvoer) const {
  wxMemoryOutputStream tekst;
  codeerBestand(wav, metHeader, tekst);
  wxFileOutputStream bestand(uitvoer.GetFullPath());
  if (!bestand.IsOk()) {
    return;
  }
  std::vector<char> blok(tekst.GetSize());
  tekst.CopyTo(blok.data(), blok.size());
  bestand.Write(blok.data(), blok.size());
}

void PCMDesktopConverter::decodeerBestand(wxFileName const& bron, wxFileName const& doel) const {
  std::unique_ptr<wxFileInputStream> const stroom = openBeeld(bron);
  if (!stroom) {
    return;
  }
  // What a file too short for its header lacks counts as zero.
  std::array<unsigned char, VelmoraPCMPakket::SerieeleOverhead> kop{};
  stroom->Read(kop.data(), kop.size());
  std::size_t const aantal = MaakWoord(kop[3], kop[2], kop[1], kop[0]);
  int const freq = MaakShort(kop[5], kop[4]);
  std::vector<wxUint16> waarden(aantal);
  if (!waarden.empty()) {
    wxDataInputStream(*stroom).Read16(waarden.data(), waarden.size());
  }

  schrijfWav(doel, VelmoraPCMPakket(reinterpret_cast<short const*>(waarden.data()), waarden.size(),
                                    Breuk(freq, 1)));
}
