#include "tests/audio/codec/imaWav.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#include "tests/steun/opdracht.h"
#include "tests/steun/wavMaker.h"

namespace {

constexpr std::size_t kopGrootte = 4;  // of a block

void zetBij(Bytes& doel, unsigned long long waarde, unsigned int aantal) {
  Bytes const bytes = laagEerst(waarde, aantal);
  doel.insert(doel.end(), bytes.begin(), bytes.end());
}

void zetBij(Bytes& doel, std::string const& naam) {
  doel.insert(doel.end(), naam.begin(), naam.end());
}

unsigned int leesGetal(Bytes const& bytes, std::size_t plaats, std::size_t aantal) {
  unsigned int waarde = 0;
  for (std::size_t i = aantal; i > 0; --i) {
    waarde = waarde * 256 + bytes.at(plaats + i - 1);
  }
  return waarde;
}

// A 16-bit value, low byte first, with its sign.
int leesSample(Bytes const& bytes, std::size_t plaats) {
  int const waarde = static_cast<int>(leesGetal(bytes, plaats, 2));
  return waarde < 32768 ? waarde : waarde - 65536;
}

// The place of the content of a chunk in a WAV file; the size stands in the four bytes before it.
std::size_t zoekStuk(Bytes const& bytes, std::string const& naam) {
  std::size_t plaats = 12;
  while (plaats + 8 <= bytes.size()) {
    auto const begin = bytes.begin() + static_cast<std::ptrdiff_t>(plaats);
    if (std::equal(naam.begin(), naam.end(), begin)) {
      return plaats + 8;
    }
    std::size_t const grootte = leesGetal(bytes, plaats + 4, 4);
    plaats += 8 + grootte + grootte % 2;
  }
  ADD_FAILURE() << "no chunk " << naam;
  return 0;
}

}  // namespace

std::vector<ImaBlok> leesImaBlokken(std::string const& pad) {
  Bytes const bytes = leesBytes(pad);
  std::size_t const fmt = zoekStuk(bytes, "fmt ");
  std::size_t const data = zoekStuk(bytes, "data");
  constexpr unsigned int imaCode = 0x11;
  if (fmt == 0 || data == 0 || leesGetal(bytes, fmt, 2) != imaCode ||
      leesGetal(bytes, fmt + 2, 2) != 1) {
    return {};
  }
  std::size_t const blokGrootte = leesGetal(bytes, fmt + 12, 2);
  std::size_t const einde = data + leesGetal(bytes, data - 4, 4);
  std::vector<ImaBlok> blokken;
  for (std::size_t blok = data; blok + blokGrootte <= einde; blok += blokGrootte) {
    auto const begin = bytes.begin() + static_cast<std::ptrdiff_t>(blok);
    blokken.push_back(
        {leesSample(bytes, blok), bytes.at(blok + 2),
         Bytes(begin + kopGrootte, begin + static_cast<std::ptrdiff_t>(blokGrootte))});
  }
  return blokken;
}

void schrijfImaBlokken(std::string const& pad, std::vector<ImaBlok> const& blokken) {
  std::size_t const codeBytes = blokken.front().codes.size();
  std::size_t const blokGrootte = kopGrootte + codeBytes;
  std::size_t const perBlok = 2 * codeBytes + 1;
  Bytes bytes;
  zetBij(bytes, "RIFF");
  zetBij(bytes, 52 + blokken.size() * blokGrootte, 4);
  zetBij(bytes, "WAVEfmt ");
  zetBij(bytes, 20, 4);
  zetBij(bytes, 0x11, 2);
  zetBij(bytes, 1, 2);
  zetBij(bytes, 8000, 4);
  zetBij(bytes, 8000 * blokGrootte / perBlok, 4);
  zetBij(bytes, blokGrootte, 2);
  zetBij(bytes, 4, 2);  // bits a code
  zetBij(bytes, 2, 2);  // bytes that follow here
  zetBij(bytes, perBlok, 2);
  zetBij(bytes, "fact");
  zetBij(bytes, 4, 4);
  zetBij(bytes, blokken.size() * perBlok, 4);
  zetBij(bytes, "data");
  zetBij(bytes, blokken.size() * blokGrootte, 4);
  for (ImaBlok const& blok : blokken) {
    zetBij(bytes, static_cast<unsigned long long>(blok.predictor), 2);
    zetBij(bytes, static_cast<unsigned long long>(blok.index), 2);
    bytes.insert(bytes.end(), blok.codes.begin(), blok.codes.end());
  }
  maakBestand(pad, std::string(bytes.begin(), bytes.end()));
}

std::vector<int> leesMetSox(std::string const& pad, std::string const& ruw) {
  EXPECT_EQ(voerUit("sox -D '" + pad + "' -t raw -e signed -b 16 -L '" + ruw + "'"), 0);
  Bytes const bytes = leesBytes(ruw);
  std::vector<int> samples;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    samples.push_back(leesSample(bytes, i));
  }
  return samples;
}
