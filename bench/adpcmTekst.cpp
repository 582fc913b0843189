#include "bench/adpcmTekst.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <vector>

#include "audio/codec/adpcmPakket.h"
#include "audio/codec/audioConfig.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/wavFormaat.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "bench/geluid.h"
#include "bench/meting.h"
#include "bench/xxd.h"

namespace {

constexpr int seconden = 120;
constexpr sf_count_t samples = static_cast<sf_count_t>(hoogsteRate) * seconden;
constexpr int herhalingen = 15;

ADPCMDesktopConverter maakConverter() {
  return ADPCMDesktopConverter(
      maakAdpcmOpties(eersteInstellingen(UitvoerTaalC, sampleBits), wxString()));
}

unsigned long long codeer(wxFileName const& wav) {
  return std::unique_ptr<VelmoraADPCMPakket>(maakConverter().codeerBestand(wav))
      ->serieelGeefAantalBytes();
}

std::size_t maakTekst(wxFileName const& wav) {
  wxMemoryOutputStream uit;
  maakConverter().codeerBestand(wav, true, uit);
  return uit.GetSize();
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
  std::string const beeld = map + "/adpcm.bin";
  maakRuis(map + "/adpcm.wav", hoogsteRate, seconden);
  std::vector<short> blok(static_cast<std::size_t>(samples));
  bool const gelezen = SndBestand::lees(wav).leesItems(blok.data(), samples) == samples;
  // The bytes of the array, for the peer.
  maakConverter().codeerBestand(wav, true, wxFileName(beeld));
  unsigned long long const bytes = codeer(wav);

  // Every byte of the array takes four signs of text at least.
  std::vector<Verbruik> const gemeten =
      meetOmBeurten(herhalingen, {[&] { return codeer(wav) == bytes ? 0 : 1; },
                                  [&] { return maakTekst(wav) > 4 * bytes ? 0 : 1; },
                                  [&] { return schrijfIma(ima, blok) ? 0 : 1; },
                                  [&] { return draaiXxd(beeld, "/dev/null"); }});
  double const coderen = gemeten[0].seconden;
  double const tekst = gemeten[1].seconden - coderen;
  if (!gelezen || wxFileName::GetSize(beeld) != bytes || !alleGeslaagd(gemeten) || tekst <= 0) {
    std::cerr << "bench: the ADPCM text could not be measured (is xxd installed?)\n";
    return false;
  }
  constexpr double perMillisec = 1e3;
  double const snd = gemeten[2].seconden;
  double const xxd = gemeten[3].seconden;
  std::printf(
      "ADPCM of %d s at %d Hz: coding %.0f ms, libsndfile %.0f ms, text %.1f ms, xxd %.0f ms\n",
      seconden, hoogsteRate, coderen * perMillisec, snd * perMillisec, tekst * perMillisec,
      xxd * perMillisec);

  constexpr double doelCoderen = 1;
  constexpr double doelTekst = 8;
  bool const licht =
      meld(coderen / snd < doelCoderen, "ADPCM coding, cost against libsndfile's IMA ADPCM",
           coderen / snd, "< 1.00");
  bool const snel = meld(xxd / tekst >= doelTekst, "ADPCM text behind its coding, against xxd -i",
                         xxd / tekst, ">= 8.00");
  return licht && snel;
}
