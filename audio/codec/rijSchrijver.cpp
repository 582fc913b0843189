#include "audio/codec/rijSchrijver.h"

#include <wx/stream.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "audio/codec/hartslag.h"

namespace {

constexpr std::size_t bytesPerRij = 8;
constexpr std::string_view rijBreuk = "\n\t";
// Large enough that the stream's own cost is lost in it, small enough to stay in the processor's
// cache, and as large for a long array as for a short one.
constexpr std::size_t blokTekens = 65536;

// Room for a row, with its break. The last store of a row reaches beyond its text.
constexpr std::size_t rijTekens =
    rijBreuk.size() + bytesPerRij * langsteByteTekst + sizeof(ByteTekst);

// The most that rows of so many bytes take, with their ends.
std::size_t meesteTekens(std::size_t bytes) {
  return bytes * langsteByteTekst + (bytes / bytesPerRij + 2) * rijBreuk.size();
}

char* drukTekst(char* plaats, std::string_view tekst) {
  std::memcpy(plaats, tekst.data(), tekst.size());
  return plaats + tekst.size();
}

char* drukByte(char* plaats, ByteTekst const& tekst) {
  std::memcpy(plaats, &tekst, sizeof tekst);
  return plaats + tekst.lengte;
}

}  // namespace

RijSchrijver::RijSchrijver(wxOutputStream& stroom, ByteTeksten const& notatie, std::size_t bytes,
                           std::size_t anders)
    : uit(stroom),
      ruimte(std::in_place, stroom, meesteTekens(bytes) + anders),
      teksten(notatie),
      blok(blokTekens) {}

void RijSchrijver::schrijfBytes(unsigned char const* begin, std::size_t aantal) {
  while (aantal > 0) {
    maakPlaats(rijTekens);
    char* plaats = blok.data() + lengte;
    if (inRij == bytesPerRij) {
      plaats = drukTekst(plaats, rijBreuk);
      inRij = 0;
    }
    std::size_t const deel = std::min(bytesPerRij - inRij, aantal);
    std::for_each(begin, begin + deel,
                  [&](unsigned char byte) { plaats = drukByte(plaats, teksten[byte]); });
    lengte = static_cast<std::size_t>(plaats - blok.data());
    inRij += deel;
    begin += deel;
    aantal -= deel;
  }
}

void RijSchrijver::breekVolleRij() {
  if (inRij == bytesPerRij) {
    schrijfTekst(rijBreuk);
  }
}

void RijSchrijver::schrijfTekst(std::string_view tekst) {
  maakPlaats(tekst.size());
  lengte = static_cast<std::size_t>(drukTekst(blok.data() + lengte, tekst) - blok.data());
  inRij = 0;
}

void RijSchrijver::rondAf() {
  stuurDoor();
  ruimte.reset();
}

void RijSchrijver::stuurDoor() {
  klop();
  if (uit.IsOk()) {
    uit.Write(blok.data(), lengte);
  }
  lengte = 0;
}

void RijSchrijver::maakPlaats(std::size_t tekens) {
  if (blok.size() - lengte < tekens) {
    stuurDoor();
  }
}
