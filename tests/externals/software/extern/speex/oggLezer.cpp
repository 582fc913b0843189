#include "tests/externals/software/extern/speex/oggLezer.h"

#include <gtest/gtest.h>

#include <string>

Frames oggPakketten(Bytes const& bestand) {
  constexpr std::size_t kopBytes = 27;
  constexpr std::size_t vol = 255;
  Frames pakketten;
  Bytes pakket;
  std::size_t plaats = 0;
  while (plaats + kopBytes <= bestand.size()) {
    EXPECT_EQ(std::string(bestand.begin() + static_cast<std::ptrdiff_t>(plaats),
                          bestand.begin() + static_cast<std::ptrdiff_t>(plaats) + 4),
              "OggS");
    std::size_t const tabel = plaats + kopBytes;
    std::size_t const segmenten = bestand[tabel - 1];
    plaats = tabel + segmenten;
    for (std::size_t segment = 0; segment < segmenten; ++segment) {
      std::size_t const lengte = bestand.at(tabel + segment);
      auto const begin = bestand.begin() + static_cast<std::ptrdiff_t>(plaats);
      pakket.insert(pakket.end(), begin, begin + static_cast<std::ptrdiff_t>(lengte));
      plaats += lengte;
      if (lengte < vol) {
        pakketten.push_back(pakket);
        pakket.clear();
      }
    }
  }
  return pakketten;
}
