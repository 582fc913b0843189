#include "audio/codec/adpcmDesktopConverter.h"

#include <wx/filename.h>
#include <wx/mstream.h>
#include <wx/wfstream.h>

#include <array>
#include <memory>
#include <vector>

#include "audio/codec/adpcmPakket.h"
#include "audio/codec/arrayTekst.h"
#include "audio/codec/beeldStroom.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/pcmWav.h"
#include "audio/codec/sndBestand.h"
#include "numeriek/byteGereedschap.h"

namespace {

// The size that a binary image gives for itself: all of its first eight bytes, little-endian. What
// a shorter file lacks counts as zero.
unsigned long long leesGrootte(wxInputStream& stroom) {
  std::array<unsigned char, 8> b{};
  stroom.Read(b.data(), b.size());
  constexpr unsigned int woordBits = 32;
  return (static_cast<unsigned long long>(MaakWoord(b[7], b[6], b[5], b[4])) << woordBits) |
         MaakWoord(b[3], b[2], b[1], b[0]);
}

}  // namespace

// NOLINTNEXTLINE(modernize-pass-by-value): callers keep their options.
ADPCMDesktopConverter::ADPCMDesktopConverter(ADPCMEncoderOpties const& eerste) : opties(eerste) {}

void ADPCMDesktopConverter::zetOpties(ADPCMEncoderOpties const& nieuw) {
  opties = nieuw;
  zetBitShift(opties.bitShift);
}

VelmoraADPCMPakket* ADPCMDesktopConverter::codeerBestand(wxFileName const& wav) {
  SndBestand bestand = SndBestand::lees(wav);
  auto const frames = static_cast<std::size_t>(bestand.info().frames);
  Breuk const freq(bestand.info().samplerate, 1);
  auto pakket = std::make_unique<VelmoraADPCMPakket>(frames >> 1U, freq);
  std::vector<short> samples(frames);
  bestand.leesItems(samples.data(), bestand.info().frames);
  bestand.meldGebrek();
  encodeer(VelmoraPCMPakket(samples.data(), frames, freq), *pakket);
  return pakket.release();
}

void ADPCMDesktopConverter::codeerBestand(wxFileName const& wav, bool metHeader,
                                          wxMemoryOutputStream& uit) {
  wxOutputStream& stroom = uit;
  codeerBestand(wav, metHeader, stroom);
  // Close changes nothing for a memory stream.
  uit.Close();
}

void ADPCMDesktopConverter::codeerBestand(wxFileName const& wav, bool metHeader,
                                          wxOutputStream& uit) {
  std::unique_ptr<VelmoraADPCMPakket> const pakket(codeerBestand(wav));
  // The first count is one of bytes, two samples each, whatever its name says.
  schrijfArrayTekst(*pakket, wav, {opties.taal, opties.klasseNaam, wav.GetName()},
                    {{"_adpcmNumberOfEncSamples", pakket->geefAantalElementen()},
                     {"_pcmNumberOfSamples", pakket->geefAantalSamples()}},
                    metHeader, uit);
}

void ADPCMDesktopConverter::codeerBestand(wxFileName const& wav, bool metHeader,
                                          wxFileName const& uitvoer) {
  std::unique_ptr<VelmoraADPCMPakket> const pakket(codeerBestand(wav));
  VelmoraArray<unsigned char> array(pakket->serieelGeefAantalBytes());
  pakket->maakSerieel(array, metHeader);
  wxFileOutputStream bestand(uitvoer.GetFullPath());
  if (bestand.IsOk()) {
    bestand.Write(array.geefElementen(), array.geefAantal());
  }
}

VelmoraPCMPakket* ADPCMDesktopConverter::decodeerBestand(wxFileName const& bron) {
  std::unique_ptr<wxFileInputStream> const stroom = openBeeld(bron);
  unsigned long long grootte = 0;
  if (stroom) {
    grootte = leesGrootte(*stroom);
    stroom->SeekI(0);
  }
  VelmoraArray<unsigned char> array(grootte);
  if (array.geefAantal() != 0) {
    stroom->Read(array.geefElementen(), array.geefAantal());
  }
  constexpr int beginFreq = 8000;  // until the image tells
  VelmoraADPCMPakket pakket(grootte, Breuk(beginFreq, 1));
  pakket.leesInSerieel(array);
  auto pcm = std::make_unique<VelmoraPCMPakket>(pakket.geefAantalSamples(), pakket.geefSampFreq());
  decodeer(pakket, *pcm);
  return pcm.release();
}

void ADPCMDesktopConverter::decodeerBestand(wxFileName const& bron, wxFileName const& doel) {
  std::unique_ptr<wxFileInputStream> const stroom = openBeeld(bron);
  if (!stroom) {
    return;
  }
  std::unique_ptr<VelmoraPCMPakket> pakket(decodeerBestand(bron));
  SndBestand const wav = schrijfWav(doel, *pakket);
  // The samples are on disk; only the header is still to come.
  pakket.reset();
}
