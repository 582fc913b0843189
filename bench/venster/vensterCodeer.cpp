#include "bench/venster/vensterCodeer.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>
#include <vector>

#include "bench/geluid.h"
#include "bench/venster/vensterProces.h"

namespace {

using Woorden = std::vector<std::string>;

// The least time and the greatest memory of several measurements.
struct Beste {
  double seconden = std::numeric_limits<double>::max();
  double mebibytes = 0;

  void neem(VensterCijfers const& cijfers) {
    seconden = std::min(seconden, cijfers.seconden);
    mebibytes = std::max(mebibytes, cijfers.mebibytes);
  }
};

// A load that is encoded.
struct Geval {
  std::string naam;
  int bestanden;
  int seconden;      // of each file
  int keer;          // in each round
  bool metKaal;      // beside the bare window
  std::size_t warm;  // MiB of memory to have at hand
  Beste echt{};
  Beste kaal{};

  double duur() const { return 1.0 * bestanden * seconden; }
  double perSeconde() const { return echt.seconden / duur(); }
};

// One file of noise under as many names.
Woorden maakBestanden(VensterProces const& proces, Geval const& geval) {
  Woorden paden;
  for (int i = 0; i < geval.bestanden; ++i) {
    paden.push_back(proces.pad(std::to_string(geval.seconden) + "s" + std::to_string(i) + ".wav"));
    if (i == 0) {
      maakRuis(paden.front(), hoogsteRate, geval.seconden);
    } else if (!std::filesystem::exists(paden.back())) {
      std::filesystem::create_hard_link(paden.front(), paden.back());
    }
  }
  return paden;
}

// False where a program failed, or did not show the whole text.
bool meetGeval(VensterProces const& proces, Geval& geval) {
  // Each sample has two bytes in the array, and a byte four signs of text at least.
  constexpr double tekensPerSample = 8;
  std::string const tekst = proces.pad("tekst");
  Woorden woorden = maakBestanden(proces, geval);
  woorden.insert(woorden.begin(), echtVenster);
  for (int i = 0; i < geval.keer; ++i) {
    auto const echt = proces.meet(woorden, geval.warm);
    if (!echt || echt->tekens < tekensPerSample * hoogsteRate * geval.duur() ||
        !proces.neemTekst(tekst)) {
      return false;
    }
    geval.echt.neem(*echt);
    if (!geval.metKaal) {
      continue;
    }
    auto const kaal = proces.meet({kaalVenster, tekst}, geval.warm);
    if (!kaal || kaal->tekens != echt->tekens) {
      return false;
    }
    geval.kaal.neem(*kaal);
  }
  return true;
}

// The cases take turns too, for they are held against each other.
bool meetRonden(VensterProces const& proces, std::vector<Geval>& gevallen) {
  constexpr int ronden = 3;
  for (int ronde = 0; ronde < ronden; ++ronde) {
    for (Geval& geval : gevallen) {
      if (!meetGeval(proces, geval)) {
        std::cerr << "bench: Encode of " << geval.naam << " could not be measured\n";
        return false;
      }
    }
  }
  return true;
}

// What the system has to give, in MiB.
std::size_t vrijGeheugen() {
  constexpr std::size_t kibPerMib = 1024;
  std::ifstream bestand("/proc/meminfo");
  std::string woord;
  std::size_t kib = 0;
  while (bestand >> woord && woord != "MemAvailable:") {
  }
  bestand >> kib;
  return kib / kibPerMib;
}

bool meldTegenKaal(Geval const& geval) {
  constexpr double doel = 1.15;
  double const tijd = geval.echt.seconden / geval.kaal.seconden;
  double const geheugen = geval.echt.mebibytes / geval.kaal.mebibytes;
  std::printf("Encode of %s in the window: %.2f s, %.0f MiB; a bare LoadFile: %.2f s, %.0f MiB\n",
              geval.naam.c_str(), geval.echt.seconden, geval.echt.mebibytes, geval.kaal.seconden,
              geval.kaal.mebibytes);
  bool const snel =
      meld(tijd <= doel, "Encode of " + geval.naam + " against the bare window", tijd, "<= 1.15");
  bool const klein =
      meld(geheugen <= doel, "peak memory of that against the bare window", geheugen, "<= 1.15");
  return snel && klein;
}

bool meldGroei(Geval const& groot, Geval const& klein) {
  constexpr double doel = 1.1;
  double const groei = groot.perSeconde() / klein.perSeconde();
  return meld(groei <= doel,
              "cost of a sample in the window, " + groot.naam + " against " + klein.naam, groei,
              "<= 1.10");
}

}  // namespace

bool meetVensterCodeer(VensterProces const& proces) {
  constexpr std::size_t genoegMib = 4096;
  constexpr std::size_t warmKort = 128;
  constexpr std::size_t warmMinuut = 512;
  constexpr std::size_t warmLang = 3072;
  std::vector<Geval> gevallen{{"1 min", 1, 60, 3, true, warmMinuut}};
  bool const ruim = vrijGeheugen() >= genoegMib;
  if (ruim) {
    gevallen.insert(gevallen.end(), {{"10 min", 1, 600, 1, true, warmLang},
                                     {"10 s", 1, 10, 6, false, warmKort},
                                     {"500 files", 500, 1, 1, false, warmLang},
                                     {"5 files", 5, 1, 6, false, warmKort}});
  } else {
    std::printf(
        "Encode of 10 min and of 500 files is left out: less than 4 GiB of memory is free\n");
  }
  if (!meetRonden(proces, gevallen)) {
    return false;
  }
  bool goed = meldTegenKaal(gevallen[0]);
  if (ruim) {
    goed = meldTegenKaal(gevallen[1]) && goed;
    goed = meldGroei(gevallen[1], gevallen[2]) && goed;
    goed = meldGroei(gevallen[3], gevallen[4]) && goed;
  }
  return goed;
}
