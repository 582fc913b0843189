#include "bench/opdracht.h"

#include <unistd.h>

#include <cstdio>
#include <iostream>

#include "bench/geluid.h"
#include "bench/meting.h"
#include "bench/xxd.h"

namespace {

constexpr int herhalingen = 50;
constexpr int rate = 16000;
constexpr double ms = 1000;

int codeer(std::string const& wav, std::string const& uit) {
  execl(KESTROLIN_CLI, "kestrolin-cli", "encode", wav.c_str(), "-o", uit.c_str(), nullptr);
  return 1;
}

}  // namespace

bool meetOpdracht(std::string const& map) {
  std::string const wav = map + "/seconde.wav";
  std::string const uit = map + "/seconde.c";
  maakRuis(wav, rate, 1);
  std::vector<Verbruik> const gemeten = meetOmBeurten(
      herhalingen, {[&] { return draaiXxd(wav, uit); }, [&] { return codeer(wav, uit); }});
  Verbruik const& xxd = gemeten[0];
  Verbruik const& eigen = gemeten[1];
  if (!alleGeslaagd(gemeten)) {
    std::cerr << "bench: a measured program failed (is xxd installed?)\n";
    return false;
  }
  std::printf(
      "kestrolin-cli encode of 1 s at %d Hz: %.1f ms of processor time, %.1f ms in all, the disk\n"
      "included; xxd -i: %.1f ms, %.1f ms\n",
      rate, eigen.seconden * ms, eigen.verstreken * ms, xxd.seconden * ms, xxd.verstreken * ms);
  constexpr double doelStart = 2.5;
  double const verhouding = eigen.seconden / xxd.seconden;
  return meld(verhouding <= doelStart, "processor time against xxd -i on the same file", verhouding,
              "<= 2.50");
}
