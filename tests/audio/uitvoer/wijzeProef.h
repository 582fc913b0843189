// The fixture of the tests that hold for every way of output, each a test of its own.
#pragma once

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/runProef.h"
#include "tests/audio/uitvoer/verwachteRun.h"

class WijzeProef : public RunProef, public testing::WithParamInterface<Wijze> {
 protected:
  WijzeProef() { instellingen.speexOutputLanguage = 0; }

  std::string tekst() {
    return GetParam() == Wijze::pcm ? pcm() : (GetParam() == Wijze::adpcm ? adpcm() : inbed());
  }

  // Writes these recordings, and has them as the files of the next run.
  void neem(std::vector<RunFragment> const& fragmenten, int rate = 8000) {
    std::vector<std::string> namen;
    for (RunFragment const& een : fragmenten) {
      namen.push_back(een.naam + ".wav");
      schrijfWav(map.pad(namen.back()), een.samples, {rate});
    }
    laad(namen);
  }
};

inline std::string naamVan(testing::TestParamInfo<Wijze> const& info) {
  return info.param == Wijze::pcm ? "Pcm" : (info.param == Wijze::adpcm ? "Adpcm" : "Embed");
}

inline auto elkeWijze() {
  return testing::Values(Wijze::pcm, Wijze::adpcm, Wijze::inbed);
}
