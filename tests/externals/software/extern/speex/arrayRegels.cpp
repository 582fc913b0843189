#include "tests/externals/software/extern/speex/arrayRegels.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

namespace {

std::string hexadecimaal(unsigned long long waarde) {
  std::array<char, 24> tekst{};
  EXPECT_GT(std::snprintf(tekst.data(), tekst.size(), "0x%llx", waarde), 0);
  return tekst.data();
}

}  // namespace

std::string const uitlegRegel =
    "\t/* Header: Sampling Freq (Lower + Higher Byte), Number of Frames (Lower + Higher Byte) */\n";

std::string headerRegel(int rate, unsigned int telling) {
  std::string regel = "\t";
  for (unsigned int const waarde : {static_cast<unsigned int>(rate), telling}) {
    regel += "(signed char)" + hexadecimaal(waarde % 256) + ",";
    regel += "(signed char)" + hexadecimaal(waarde / 256 % 256) + ",";
  }
  return regel + "\n";
}

std::string frameRegels(Frames const& frames) {
  std::string tekst;
  for (std::size_t nummer = 0; nummer < frames.size(); ++nummer) {
    Bytes const& frame = frames[nummer];
    tekst += "\t" + hexadecimaal(frame.size()) + ",  /* Encoded Frame [" + std::to_string(nummer) +
             "] Size */\n\t";
    for (std::size_t i = 0; i < frame.size(); ++i) {
      tekst += std::to_string(frame[i] < 128 ? frame[i] : frame[i] - 256) + ",";
      tekst += i % 8 == 7 ? "\n\t" : "";
    }
    tekst += "\n";
  }
  return tekst;
}

std::string slotRegels(std::string const& bestand) {
  return "};\n\n/* end of encoded WAV file         : " + bestand + "         */\n";
}
