#include "bench/adpcmTekst.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <cstdio>
#include <iostream>
#include <memory>
#include <vector>

#include "audio/codec/adpcmPakket.h"
#include "audio/codec/audioConfig.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/wavFormaat.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "bench/geluid.h"
#include "bench/meting.h"

namespace {

constexpr int seconden = 120;
constexpr sf_count_t samples = static_cast<sf_count_t>(hoogsteRate) * seconden;
constexpr int herhalingen = 7;

// What a converter needs for the coding alone, and for the text.
struct Kosten {
  Verbruik coderen;
  Verbruik geheel;
  double arrayBytes;

  bool geslaagd() const {
    return coderen.geslaagd && geheel.geslaagd && arrayBytes > 0 &&
           geheel.seconden > coderen.seconden;
  }
  // Array bytes a second of what comes behind the coding.
  double tekstSnelheid() const { return arrayBytes / (geheel.seconden - coderen.seconden); }
};

template <typename Pakket, typename Converter, typename Opties>
Kosten meetConverter(Opties const& opties, wxFileName const& wav) {
  auto const codeer = [&] {
    return std::unique_ptr<Pakket>(Converter(opties).codeerBestand(wav))->serieelGeefAantalBytes();
  };
  auto const schrijf = [&] {
    wxMemoryOutputStream uit;
    Converter(opties).codeerBestand(wav, true, uit);
    return uit.GetSize();
  };
  auto const bytes = codeer();
  // Every byte of the array takes four signs of text at least.
  return {meetBeste(herhalingen, [&] { return codeer() == bytes ? 0 : 1; }),
          meetBeste(herhalingen, [&] { return schrijf() > 4 * bytes ? 0 : 1; }),
          static_cast<double>(bytes)};
}

// Through libsndfile, as IMA ADPCM.
bool schrijfIma(wxFileName const& doel, std::vector<short> const& blok) {
  return SndBestand::schrijf(doel, hoogsteRate, 1, wavAdpcm).schrijfItems(blok.data(), samples) ==
         samples;
}

}  // namespace

bool meetAdpcm(std::string const& map) {
  wxFileName const wav(map + "/adpcm.wav");
  wxFileName const ima(map + "/ima.wav");
  maakRuis(map + "/adpcm.wav", hoogsteRate, seconden);
  std::vector<short> blok(static_cast<std::size_t>(samples));
  bool const gelezen = SndBestand::lees(wav).leesItems(blok.data(), samples) == samples;

  KestrolinConfig const instellingen = eersteInstellingen(UitvoerTaalC, sampleBits);
  auto const adpcm = meetConverter<VelmoraADPCMPakket, ADPCMDesktopConverter>(
      maakAdpcmOpties(instellingen, wxString()), wav);
  auto const pcm = meetConverter<VelmoraPCMPakket, PCMDesktopConverter>(
      maakPcmOpties(instellingen, wxString()), wav);
  Verbruik const snd = meetBeste(herhalingen, [&] { return schrijfIma(ima, blok) ? 0 : 1; });
  if (!gelezen || !adpcm.geslaagd() || !pcm.geslaagd() || !snd.geslaagd) {
    std::cerr << "bench: the ADPCM text could not be measured\n";
    return false;
  }
  constexpr double perMillisec = 1e3;
  std::printf("ADPCM of %d s at %d Hz: coding %.0f ms, libsndfile %.0f ms, text %.0f ms\n",
              seconden, hoogsteRate, adpcm.coderen.seconden * perMillisec,
              snd.seconden * perMillisec,
              (adpcm.geheel.seconden - adpcm.coderen.seconden) * perMillisec);

  constexpr double doelCoderen = 1;
  constexpr double doelTekst = 1;
  double const coderen = adpcm.coderen.seconden / snd.seconden;
  double const tekst = adpcm.tekstSnelheid() / pcm.tekstSnelheid();
  bool const licht = meld(coderen < doelCoderen,
                          "ADPCM coding, cost against libsndfile's IMA ADPCM", coderen, "< 1.00");
  bool const snel = meld(tekst >= doelTekst, "ADPCM text, rate against PCM text", tekst, ">= 1.00");
  return licht && snel;
}
