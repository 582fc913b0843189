#include "bench/venster/vensterStart.h"

#include <cstdio>
#include <iostream>

#include "bench/meting.h"
#include "bench/venster/vensterProces.h"

bool meetVensterStart(VensterProces const& proces) {
  constexpr int herhalingen = 20;
  constexpr double ms = 1000;
  std::vector<Verbruik> const gemeten =
      meetOmBeurten(herhalingen, {[&] { return proces.draai({echtVenster}); },
                                  [&] {
                                    return proces.draai({kaalVenster, "--controls"});
                                  },
                                  [&] { return proces.draai({kaalVenster}); }});
  if (!alleGeslaagd(gemeten)) {
    std::cerr << "bench: no window came up:\n" << proces.fouten();
    return false;
  }
  double const leeg = gemeten[2].seconden;
  std::printf(
      "start to shown window: %.0f ms; as many controls in a bare frame %.0f ms, %.2f of\n"
      "an empty frame's %.0f ms\n",
      gemeten[0].seconden * ms, gemeten[1].seconden * ms, gemeten[1].seconden / leeg, leeg * ms);
  constexpr double doel = 1.5;
  double const verhouding = gemeten[0].seconden / leeg;
  return meld(verhouding <= doel, "start to shown window against an empty frame", verhouding,
              "<= 1.50");
}
