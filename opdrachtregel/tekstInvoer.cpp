#include "opdrachtregel/tekstInvoer.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/melding.h"

std::optional<std::vector<TekstArray>> leesArrays(std::string const& pad) {
  std::string tekst;
  int const fout = leesBestand(pad, tekst);
  if (fout != 0) {
    meld("cannot read " + pad + ": " + std::strerror(fout) + "; give a text that Kestrolin wrote");
    return std::nullopt;
  }
  GelezenTekst gelezen = ontleedTekst(tekst);
  for (TekstKlacht const& klacht : gelezen.klachten) {
    std::string const regel = klacht.regel == 0 ? "" : ":" + std::to_string(klacht.regel);
    meld(std::string(pad).append(regel).append(": ").append(klacht.reden));
  }
  if (!gelezen.klachten.empty()) {
    return std::nullopt;
  }
  return std::move(gelezen.arrays);
}

std::string volleNaam(TekstArray const& array) {
  return array.klasse.empty() ? array.naam : array.klasse + "::" + array.naam;
}

std::string optieNaam(ArraySoort soort) {
  std::string naam = naamVan(soort);
  std::transform(naam.begin(), naam.end(), naam.begin(), [](char teken) {
    return teken >= 'A' && teken <= 'Z' ? static_cast<char>(teken - 'A' + 'a') : teken;
  });
  return naam;
}
