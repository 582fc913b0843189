// How fast, and in how much memory, a WAV file becomes PCM source text, against `xxd -i` on the
// same array bytes in the same run. Prints one line a figure; ends with status 1 where a goal is
// missed.
#include <fcntl.h>
#include <unistd.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/mstream.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "audio/codec/array.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/sndBestand.h"
#include "bench/meting.h"

namespace {

constexpr int samplerate = 32000;
constexpr int herhalingen = 5;
constexpr double mib = 1024.0 * 1024.0;

// Noise of full scale, the same at every run: almost every byte needs its four or five characters.
void maakWav(std::string const& pad, int seconden) {
  std::mt19937 bron(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp): repeatable on purpose
  std::uniform_int_distribution<int> sample(-32768, 32767);
  std::vector<short> samples(static_cast<std::size_t>(seconden) * samplerate);
  std::generate(samples.begin(), samples.end(), [&] { return static_cast<short>(sample(bron)); });
  SndBestand::schrijf(wxFileName(pad), samplerate, 1, SF_FORMAT_WAV | SF_FORMAT_PCM_16)
      .schrijfItems(samples.data(), static_cast<sf_count_t>(samples.size()));
}

// Writes the bytes of the array, for the peer, and returns their number.
double maakBytes(std::string const& wav, std::string const& doel) {
  PCMDesktopConverter converter(PCMEncoderOpties(PCMTaalC, 0));
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
  PCMDesktopConverter const converter(PCMEncoderOpties(PCMTaalC, 0));
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

bool meld(bool gehaald, char const* wat, double waarde, char const* doel) {
  std::printf("%-62s %8.2f  %-10s %s\n", wat, waarde, doel, gehaald ? "ok" : "MISSED");
  return gehaald;
}

bool meet(std::string const& map) {
  constexpr int lang = 120;
  constexpr int kort = 30;
  std::string const wav = map + "/lang.wav";
  std::string const kortWav = map + "/kort.wav";
  std::string const bytes = map + "/bytes";
  maakWav(wav, lang);
  maakWav(kortWav, kort);
  double const aantal = maakBytes(wav, bytes);
  if (aantal < 2.0 * lang * samplerate || wxFileName::GetSize(bytes).ToDouble() != aantal) {
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
              samplerate, aantal / eigen.seconden / 1e6, aantal / xxd.seconden / 1e6);

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

}  // namespace

int main() {
  wxInitializer const toolkit;
  std::string map = "/tmp/kestrolinBenchXXXXXX";
  if (!toolkit.IsOk() || mkdtemp(map.data()) == nullptr) {
    return 1;
  }
  bool const goed = meet(map);
  wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE);
  return goed ? 0 : 1;
}
