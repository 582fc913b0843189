#include "bench/pcmTekst.h"

#include <fcntl.h>
#include <unistd.h>
#include <wx/filename.h>
#include <wx/mstream.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <vector>

#include "audio/codec/array.h"
#include "audio/codec/audioConfig.h"
#include "audio/codec/pcmPakket.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "bench/geluid.h"
#include "bench/meting.h"

namespace {

constexpr int herhalingen = 5;
constexpr double mib = 1024.0 * 1024.0;

PCMEncoderOpties opties() {
  return maakPcmOpties(eersteInstellingen(UitvoerTaalC, sampleBits), wxString());
}

// Writes the bytes of the array, for the peer, and returns their number.
double maakBytes(std::string const& wav, std::string const& doel) {
  PCMDesktopConverter converter(opties());
  std::unique_ptr<VelmoraPCMPakket> const pakket(converter.codeerBestand(wxFileName(wav)));
  VelmoraArray<unsigned char> array(pakket->serieelGeefAantalBytes());
  pakket->maakSerieel(array, true);
  std::vector<char> const bytes(array.begin(), array.end());
  std::ofstream(doel, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<double>(bytes.size());
}

// Returns the size of the text in bytes.
double codeer(std::string const& wav) {
  PCMDesktopConverter const converter(opties());
  wxMemoryOutputStream uit;
  converter.codeerBestand(wxFileName(wav), true, uit);
  return static_cast<double>(uit.GetSize());
}

int draaiXxd(std::string const& bestand) {
  int const niets = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(niets, STDOUT_FILENO);
  execlp("xxd", "xxd", "-i", bestand.c_str(), nullptr);
  return 1;
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

  Verbruik const eigen = meetBeste(herhalingen, [&] { return codeer(wav) > aantal ? 0 : 1; });
  Verbruik const kortEigen = meetBeste(herhalingen, [&] { return codeer(kortWav) > 0 ? 0 : 1; });
  Verbruik const xxd = meetBeste(herhalingen, [&] { return draaiXxd(bytes); });
  if (!eigen.geslaagd || !kortEigen.geslaagd || !xxd.geslaagd) {
    std::cerr << "bench: a measured program failed (is xxd installed?)\n";
    return false;
  }
  std::printf("PCM text of %d s at %d Hz: %.1f MB/s of array bytes; xxd -i: %.1f MB/s\n", lang,
              hoogsteRate, aantal / eigen.seconden / 1e6, aantal / xxd.seconden / 1e6);

  constexpr double doelSnelheid = 0.8;
  constexpr double doelGeheugen = 3;
  constexpr double vrijGeheugen = 64;
  constexpr double doelGroei = 1.25;
  double const verhouding = xxd.seconden / eigen.seconden;
  double const tekst = codeer(wav) / mib;
  double const groei = eigen.seconden / lang / (kortEigen.seconden / kort);
  bool const snel = meld(verhouding >= doelSnelheid, "rate against xxd -i", verhouding, ">= 0.80");
  bool const klein = meld(eigen.mebibytes <= doelGeheugen * tekst + vrijGeheugen,
                          "peak memory of the process, in sizes of the text",
                          eigen.mebibytes / tekst, "<= 3 + 64M");
  bool const evenredig =
      meld(groei <= doelGroei, "cost of a sample, 120 s against 30 s", groei, "<= 1.25");
  return snel && klein && evenredig;
}
