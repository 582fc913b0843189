#include "opdrachtregel/tekstInvoer.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstring>
#include <utility>

#include "audio/uitvoer/dacBreedte.h"
#include "audio/weergave/tekstGeluid.h"
#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/waarden.h"

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

void voegBreedteToe(CLI::App& app, unsigned int& dacBits) {
  app.add_option("--dac", dacBits,
                 "Width in bits of the DAC that the arrays were made for (default: what their "
                 "text tells; those of PCM and ADPCM do not tell, and their samples stay as "
                 "they are)")
      ->type_name("8|10|12|16")
      ->check(decimaal())
      ->check(CLI::IsMember(std::vector<int>(dacBreedten.begin(), dacBreedten.end())));
}

std::optional<DoelGeluid> decodeer(TekstDecoder& decoder, TekstArray const& array) {
  DoelGeluid geluid = decoder.decodeer(array);
  // Speex alone asks for what may not be there: a decoder.
  if (geluid.samples.empty() && array.aantalSamples > 0) {
    meld("cannot decode " + volleNaam(array) + ": libspeex gives no decoder");
    return std::nullopt;
  }
  return geluid;
}
