#include "opdrachtregel/speelOpdracht.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <numeric>

#include "audio/weergave/tekstGeluid.h"
#include "opdrachtregel/geluidModule.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/tekstInvoer.h"

namespace {

std::string opsomming(std::vector<TekstArray> const& arrays) {
  std::string tekst;
  for (TekstArray const& array : arrays) {
    tekst += (tekst.empty() ? "" : ", ") + volleNaam(array);
  }
  return tekst;
}

}  // namespace

SpeelOpdracht::SpeelOpdracht(CLI::App& programma)
    : Opdracht(programma.add_subcommand("play", "Play what a target plays")) {
  app->add_option("FILE", bestand, "A text, of the window too; - is standard input")->required();
  app->add_option("ARRAY", namen, "Arrays to play, by name, in this order (default: all)");
  voegBreedteToe(*app, dacBits);
}

Uitslag SpeelOpdracht::voerUit() {
  std::optional<std::vector<TekstArray>> const arrays = leesArrays(bestand);
  std::optional<std::vector<std::size_t>> const keuze = arrays ? kies(*arrays) : std::nullopt;
  std::optional<GeluidModule> const module = keuze ? GeluidModule::laad() : std::nullopt;
  if (!module) {
    return mislukt;
  }
  // All of them, since ADPCM fragments go on from one another.
  TekstDecoder decoder(dacBits == 0 ? std::nullopt : std::optional(dacBits));
  std::vector<DoelGeluid> geluiden;
  for (TekstArray const& array : *arrays) {
    std::optional<DoelGeluid> geluid = decodeer(decoder, array);
    if (!geluid) {
      return mislukt;
    }
    geluiden.push_back(std::move(*geluid));
  }
  bool const isGehoord = std::all_of(keuze->begin(), keuze->end(), [&](std::size_t nummer) {
    return geluiden[nummer].samples.empty() || module->speel(geluiden[nummer]);
  });
  return isGehoord ? gelukt : mislukt;
}

std::optional<std::vector<std::size_t>> SpeelOpdracht::kies(
    std::vector<TekstArray> const& arrays) const {
  std::vector<std::size_t> keuze;
  if (namen.empty()) {
    keuze.resize(arrays.size());
    std::iota(keuze.begin(), keuze.end(), 0);
  }
  int const voor = aantalGemeld();
  for (std::string const& naam : namen) {
    std::size_t const eerder = keuze.size();
    for (std::size_t nummer = 0; nummer < arrays.size(); ++nummer) {
      if (naam == arrays[nummer].naam || naam == volleNaam(arrays[nummer])) {
        keuze.push_back(nummer);
      }
    }
    if (keuze.size() == eerder) {
      meld(bestand + " has no array " + naam + "; it has " + opsomming(arrays));
    }
  }
  return aantalGemeld() == voor ? std::optional(keuze) : std::nullopt;
}
