#include "tests/steun/bytes.h"

#include <filesystem>
#include <fstream>
#include <sstream>

Bytes laagEerst(unsigned long long waarde, unsigned int aantal) {
  Bytes bytes;
  for (unsigned int i = 0; i < aantal; ++i) {
    bytes.push_back(static_cast<unsigned char>(waarde % 256));
    waarde /= 256;
  }
  return bytes;
}

std::string leesTekst(std::string const& pad) {
  std::ifstream stroom(std::filesystem::u8path(pad), std::ios::binary);
  // By the block: some of these files are large.
  std::ostringstream inhoud;
  inhoud << stroom.rdbuf();
  return inhoud.str();
}

Bytes leesBytes(std::string const& pad) {
  std::string const inhoud = leesTekst(pad);
  return {inhoud.begin(), inhoud.end()};
}
