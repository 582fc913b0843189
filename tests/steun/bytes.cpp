#include "tests/steun/bytes.h"

#include <fstream>
#include <iterator>

Bytes laagEerst(unsigned long long waarde, unsigned int aantal) {
  Bytes bytes;
  for (unsigned int i = 0; i < aantal; ++i) {
    bytes.push_back(static_cast<unsigned char>(waarde % 256));
    waarde /= 256;
  }
  return bytes;
}

std::string leesTekst(std::string const& pad) {
  std::ifstream stroom(pad, std::ios::binary);
  return {std::istreambuf_iterator<char>(stroom), {}};
}

Bytes leesBytes(std::string const& pad) {
  std::string const inhoud = leesTekst(pad);
  return {inhoud.begin(), inhoud.end()};
}
