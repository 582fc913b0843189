#include "opdrachtregel/lijst.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <numeric>

#include "opdrachtregel/melding.h"
#include "opdrachtregel/tekstInvoer.h"
#include "opdrachtregel/utf8.h"

namespace {

struct Totaal {
  explicit Totaal(std::vector<LijstRij> const& rijen) : arrays(rijen.size()) {
    for (LijstRij const& rij : rijen) {
      samples += rij.array.aantalSamples;
      duur += rij.duur();
      bytes += rij.bytes;
    }
  }

  std::size_t arrays;
  unsigned long long samples = 0;
  double duur = 0;
  unsigned long long bytes = 0;
};

constexpr std::size_t aantalKolommen = 7;
// The first three lie to the left.
constexpr std::size_t aantalNamen = 3;
using Kolommen = std::array<std::string, aantalKolommen>;

// In milliseconds.
std::string seconden(double duur) {
  std::array<char, 64> tekst{};
  static_cast<void>(std::snprintf(tekst.data(), tekst.size(), "%.3f", duur));
  return tekst.data();
}

Kolommen kolommenVan(LijstRij const& rij) {
  TekstArray const& array = rij.array;
  return {opEenRegel(rij.bestand),
          volleNaam(array),
          naamVan(array.soort),
          std::to_string(array.frequentie),
          std::to_string(array.aantalSamples),
          seconden(rij.duur()),
          std::to_string(rij.bytes)};
}

std::string regelVan(Kolommen const& kolommen,
                     std::array<std::size_t, aantalKolommen> const& breedten) {
  std::string regel;
  for (std::size_t i = 0; i < aantalKolommen; ++i) {
    if (breedten[i] == 0) {
      continue;
    }
    std::string const wit(breedten[i] - aantalTekens(kolommen[i]), ' ');
    regel +=
        (regel.empty() ? "" : "  ") + (i < aantalNamen ? kolommen[i] + wit : wit + kolommen[i]);
  }
  return regel + "\n";
}

}  // namespace

double LijstRij::duur() const {
  return static_cast<double>(array.aantalSamples) / array.frequentie;
}

std::string tabel(std::vector<LijstRij> const& rijen) {
  Totaal const totaal(rijen);
  std::vector<Kolommen> regels{
      {"File", "Array", "Encoder", "Rate (Hz)", "Samples", "Duration (s)", "Bytes"}};
  std::transform(rijen.begin(), rijen.end(), std::back_inserter(regels), kolommenVan);
  bool const isEen = std::all_of(rijen.begin(), rijen.end(), [&rijen](LijstRij const& rij) {
    return rij.bestand == rijen.front().bestand;
  });
  regels.push_back({"", "", "", "", std::to_string(totaal.samples), seconden(totaal.duur),
                    std::to_string(totaal.bytes)});
  regels.back()[isEen ? 1 : 0] =
      "Total: " + std::to_string(totaal.arrays) + (totaal.arrays == 1 ? " array" : " arrays");
  std::array<std::size_t, aantalKolommen> breedten{};
  for (Kolommen const& regel : regels) {
    for (std::size_t i = isEen ? 1 : 0; i < aantalKolommen; ++i) {
      breedten[i] = std::max(breedten[i], aantalTekens(regel[i]));
    }
  }
  return std::accumulate(regels.begin(), regels.end(), std::string(),
                         [&breedten](std::string tekst, Kolommen const& regel) {
                           return std::move(tekst) + regelVan(regel, breedten);
                         });
}

std::string json(std::vector<LijstRij> const& rijen) {
  using Json = nlohmann::ordered_json;
  Json arrays = Json::array();
  for (LijstRij const& rij : rijen) {
    TekstArray const& array = rij.array;
    arrays.push_back({{"file", rij.bestand},
                      {"array", array.naam},
                      {"class", array.klasse.empty() ? Json() : Json(array.klasse)},
                      {"encoder", optieNaam(array.soort)},
                      {"rate", array.frequentie},
                      {"samples", array.aantalSamples},
                      {"duration", rij.duur()},
                      {"bytes", rij.bytes},
                      {"header", array.metHeader},
                      {"dac", array.dacBits == 0 ? Json() : Json(array.dacBits)}});
  }
  Totaal const totaal(rijen);
  Json const alles{{"arrays", std::move(arrays)},
                   {"total",
                    {{"arrays", totaal.arrays},
                     {"samples", totaal.samples},
                     {"duration", totaal.duur},
                     {"bytes", totaal.bytes}}}};
  // The name of a file may be no UTF-8.
  return alles.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}
