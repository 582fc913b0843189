#include "bench/pcmTekst.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <vector>

#include "audio/codec/array.h"
#include "audio/codec/audioConfig.h"
#include "audio/codec/pcmPakket.h"
#include "audio/uitvoer/fragmentMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "bench/geluid.h"
#include "bench/meting.h"
#include "bench/xxd.h"

namespace {

constexpr int herhalingen = 9;
constexpr double mib = 1024.0 * 1024.0;

// Writes the bytes of the array, for the peer, and returns their number.
double maakBytes(std::string const& wav, std::string const& doel) {
  PCMDesktopConverter const converter(
      maakPcmOpties(eersteInstellingen(UitvoerTaalC, sampleBits), wxString()));
  std::unique_ptr<VelmoraPCMPakket> const pakket(converter.codeerBestand(wxFileName(wav)));
  VelmoraArray<unsigned char> array(pakket->serieelGeefAantalBytes());
  pakket->maakSerieel(array, true);
  std::vector<char> const bytes(array.begin(), array.end());
  std::ofstream(doel, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<double>(bytes.size());
}

// Returns the size of the text in bytes; 0 where it is not whole.
double maakTekst(FragmentMaker& maker, std::string const& wav) {
  wxMemoryOutputStream uit;
  maker.begin(eersteInstellingen(UitvoerTaalC, sampleBits), wxString(), 1);
  bool const heel = maker.maak(wxFileName(wav), true, uit) == Gemaakt::heel;
  return heel ? static_cast<double>(uit.GetSize()) : 0;
}

}  // namespace

bool meetPcm(std::string const& map) {
  constexpr int lang = 120;
  constexpr int kort = 30;
  std::string const wav = map + "/lang.wav";
  std::string const kortWav = map + "/kort.wav";
  std::string const bytes = map + "/bytes";
  maakRuis(wav, hoogsteRate, lang);
  maakRuis(kortWav, hoogsteRate, kort);
  double const aantal = maakBytes(wav, bytes);
  if (aantal < 2.0 * lang * hoogsteRate || wxFileName::GetSize(bytes).ToDouble() != aantal) {
    std::cerr << "bench: the files to measure with could not be written to " << map << "\n";
    return false;
  }

  PCMMaker pcm;
  WAVMaker inbedding(map + "/beeld.wav");
  auto const slaagt = [aantal](double tekens) { return tekens > aantal ? 0 : 1; };
  std::vector<Verbruik> const gemeten =
      meetOmBeurten(herhalingen, {[&] { return slaagt(maakTekst(pcm, wav)); },
                                  [&] { return maakTekst(pcm, kortWav) > 0 ? 0 : 1; },
                                  [&] { return slaagt(maakTekst(inbedding, wav)); },
                                  [&] { return draaiXxd(bytes, "/dev/null"); }});
  if (!alleGeslaagd(gemeten)) {
    std::cerr << "bench: a measured program failed (is xxd installed?)\n";
    return false;
  }
  double const tijd = gemeten[0].seconden;
  double const xxd = gemeten[3].seconden;
  std::printf("PCM text of %d s at %d Hz: %.1f MB/s of array bytes; xxd -i: %.1f MB/s\n", lang,
              hoogsteRate, aantal / tijd / 1e6, aantal / xxd / 1e6);

  constexpr double doelSnelheid = 8;
  constexpr double doelGeheugen = 3;
  constexpr double vrijGeheugen = 64;
  constexpr double doelGroei = 1.1;
  double const rate = xxd / tijd;
  double const inbedRate = xxd / gemeten[2].seconden;
  double const tekst = maakTekst(pcm, wav) / mib;
  double const groei = tijd / lang / (gemeten[1].seconden / kort);
  bool const snel = meld(rate >= doelSnelheid, "PCM text, rate against xxd -i", rate, ">= 8.00");
  bool const inbedSnel = meld(inbedRate >= doelSnelheid, "embedded WAV file, rate against xxd -i",
                              inbedRate, ">= 8.00");
  bool const klein = meld(gemeten[0].mebibytes <= doelGeheugen * tekst + vrijGeheugen,
                          "peak memory of the process, in sizes of the text",
                          gemeten[0].mebibytes / tekst, "<= 3 + 64M");
  bool const evenredig =
      meld(groei <= doelGroei, "cost of a sample, 120 s against 30 s", groei, "<= 1.10");
  return snel && inbedSnel && klein && evenredig;
}
