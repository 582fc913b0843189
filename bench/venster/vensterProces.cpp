#include "bench/venster/vensterProces.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <utility>

namespace fs = std::filesystem;

namespace {

// Touches memory and gives it back. On a virtual machine a page that was given back a while ago is
// the host's again; who touches it next waits for the host, and pays with time of its own.
void warmGeheugen(std::size_t mebibytes) {
  std::size_t const bytes = mebibytes << 20U;
  void* const blok = mmap(nullptr, bytes, PROT_READ | PROT_WRITE,
                          MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
  if (blok != MAP_FAILED) {
    munmap(blok, bytes);
  }
}

void leidOm(int kanaal, std::string const& pad) {
  int const bestand = open(pad.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  dup2(bestand, kanaal);
}

}  // namespace

std::string const echtVenster = KESTROLIN_ECHT_VENSTER;
std::string const kaalVenster = KESTROLIN_KAAL_VENSTER;

VensterProces::VensterProces(std::string werkMap) : map(std::move(werkMap)) {}

int VensterProces::draai(std::vector<std::string> const& woorden) const {
  // Ends what hangs, as at a question that nobody answers.
  constexpr unsigned int geduld = 300;
  for (auto const& [naam, waar] : {std::pair("HOME", "thuis"), std::pair("TMPDIR", "tmp")}) {
    fs::remove_all(pad(waar));
    fs::create_directory(pad(waar));
    setenv(naam, pad(waar).c_str(), 1);
  }
  setenv("NO_AT_BRIDGE", "1", 1);
  leidOm(STDOUT_FILENO, pad("cijfers"));
  leidOm(STDERR_FILENO, pad("fouten"));
  std::vector<std::string> eigen = woorden;
  std::vector<char*> adressen;
  std::transform(eigen.begin(), eigen.end(), std::back_inserter(adressen),
                 [](std::string& woord) { return woord.data(); });
  adressen.push_back(nullptr);
  alarm(geduld);
  execv(adressen.front(), adressen.data());
  return 1;
}

std::optional<VensterCijfers> VensterProces::meet(std::vector<std::string> const& woorden,
                                                  std::size_t mebibytes) const {
  constexpr double kibPerMib = 1024;
  warmGeheugen(mebibytes);
  VensterCijfers cijfers{};
  bool const gelukt = meetInKind([&] { return draai(woorden); }).geslaagd;
  std::ifstream(pad("cijfers")) >> cijfers.seconden >> cijfers.mebibytes >> cijfers.tekens;
  cijfers.mebibytes /= kibPerMib;
  if (!gelukt || cijfers.tekens <= 0) {
    std::cerr << "bench: " << woorden.front() << " failed:\n" << fouten();
    return std::nullopt;
  }
  return cijfers;
}

std::string VensterProces::fouten() const {
  std::ostringstream alles;
  alles << std::ifstream(pad("fouten")).rdbuf();
  return alles.str();
}

bool VensterProces::neemTekst(std::string const& doel) const {
  fs::directory_iterator const bestanden(pad("tmp"));
  bool const gevonden = bestanden != fs::directory_iterator();
  if (gevonden) {
    fs::rename(bestanden->path(), doel);
  }
  return gevonden;
}
