// A folder in the shape of an installation, with the icon of a program in it.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

#include "tests/steun/opdracht.h"

// The sizes that a window takes, in pixels.
constexpr std::array<int, 8> vensterMaten{16, 22, 24, 32, 48, 64, 96, 128};

inline std::string pictogramPad(std::string const& prefix, std::string const& naam, int maat) {
  std::string const kant = std::to_string(maat);
  return prefix + "/share/icons/hicolor/" + kant + "x" + kant + "/apps/" + naam + ".png";
}

// A square of `kant` pixels a side for the folder of `maat`, as words for ImageMagick. Its red is
// `maat`.
inline std::string pictogramWoorden(std::string const& prefix, std::string const& naam, int maat,
                                    int kant) {
  std::string const pad = pictogramPad(prefix, naam, maat);
  std::filesystem::create_directories(std::filesystem::path(pad).parent_path());
  std::string const zijde = std::to_string(kant);
  return " '(' -size " + zijde + "x" + zijde + " 'xc:rgb(" + std::to_string(maat) +
         ",100,200)' -write 'PNG32:" + pad + "' ')'";
}

inline void maakPictogram(std::string const& prefix, std::string const& naam, int maat, int kant) {
  ASSERT_EQ(voerUit("convert" + pictogramWoorden(prefix, naam, maat, kant) + " null:"), 0);
}

// All that a window takes.
inline void maakPictogrammen(std::string const& prefix, std::string const& naam) {
  std::string opdracht = "convert";
  for (int const maat : vensterMaten) {
    opdracht += pictogramWoorden(prefix, naam, maat, maat);
  }
  ASSERT_EQ(voerUit(opdracht + " null:"), 0);
}
