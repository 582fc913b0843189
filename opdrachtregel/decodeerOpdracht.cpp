#include "opdrachtregel/decodeerOpdracht.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <optional>

#include "audio/weergave/tekstGeluid.h"
#include "audio/weergave/wavSchrijver.h"
#include "opdrachtregel/doelGroep.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/tekstInvoer.h"
#include "opdrachtregel/voortgang.h"

namespace fs = std::filesystem;

DecodeerOpdracht::DecodeerOpdracht(CLI::App& programma)
    : Opdracht(programma.add_subcommand("decode", "Write what a target plays as WAV files")) {
  app->add_option("FILE", bestanden, "Texts, of the window too; - is standard input")->required();
  app->add_option("--to", map,
                  "Where each array becomes NAME.wav, of 16 bits; made where it is missing")
      ->type_name("FOLDER")
      ->required();
  voegBreedteToe(*app, dacBits);
  app->add_flag("-v,--verbose", uitgebreid, "Tell what was made");
  app->footer(
      "ADPCM fragments go on from one another, in the order of their text: give the\n"
      "text as it was made.");
}

Uitslag DecodeerOpdracht::voerUit() {
  WegwerpMap const doelMap(map);
  if (!doelMap.isEr()) {
    meld("cannot make the folder " + map + ": " + std::strerror(doelMap.geefFout()) +
         "; give another one");
    return mislukt;
  }
  DoelGroep doelen;
  if (!decodeerAlle(doelen) || !doelen.legVast()) {
    return mislukt;
  }
  if (uitgebreid) {
    std::cerr << "kestrolin-cli: " << map << ": " << plaatsen.size()
              << (plaatsen.size() == 1 ? " WAV file\n" : " WAV files\n");
  }
  return gelukt;
}

// Tells of all texts what is wrong with them.
bool DecodeerOpdracht::decodeerAlle(DoelGroep& doelen) {
  bool heel = true;
  for (std::string const& bestand : bestanden) {
    std::optional<std::vector<TekstArray>> const arrays = leesArrays(bestand);
    heel = arrays && decodeerTekst(bestand, *arrays, doelen) && heel;
  }
  return heel;
}

bool DecodeerOpdracht::decodeerTekst(std::string const& bestand,
                                     std::vector<TekstArray> const& arrays, DoelGroep& doelen) {
  auto const kan = std::count_if(arrays.begin(), arrays.end(),
                                 [&](TekstArray const& array) { return keurNaam(bestand, array); });
  if (kan != static_cast<std::ptrdiff_t>(arrays.size())) {
    return false;
  }
  TekstDecoder decoder(dacBits == 0 ? std::nullopt : std::optional(dacBits));
  Voortgang voortgang(arrays.size(), "arrays");
  return std::all_of(arrays.begin(), arrays.end(), [&](TekstArray const& array) {
    std::optional<DoelGeluid> const geluid = decodeer(decoder, array);
    bool const isGelukt = geluid && schrijf(array, *geluid, doelen);
    voortgang.meldGedaan(static_cast<std::size_t>(&array - arrays.data()) + 1);
    return isGelukt;
  });
}

bool DecodeerOpdracht::keurNaam(std::string const& bestand, TekstArray const& array) {
  std::string const hier = bestand + ":" + std::to_string(array.regel);
  auto const [plaats, isNieuw] = plaatsen.emplace(array.naam, hier);
  if (!isNieuw) {
    meld(hier + ": an array " + array.naam + " stands in " + plaats->second +
         " too: decode the two into folders of their own");
    return false;
  }
  return isGeenInvoer(doelPad(array), bestanden, "another folder");
}

bool DecodeerOpdracht::schrijf(TekstArray const& array, DoelGeluid const& geluid,
                               DoelGroep& doelen) const {
  std::string const pad = doelPad(array);
  if (!pastInWav(geluid)) {
    meld("cannot write " + pad + ": the sound is longer than a WAV file can hold");
    return false;
  }
  Doel* const doel = doelen.voegToe(pad);
  if (doel == nullptr) {
    return false;
  }
  schrijfWav(geluid, *doel);
  // A text may have more arrays than a process may have open files.
  return doel->sluit();
}

// The names of arrays are identifiers: none leads out of the folder.
std::string DecodeerOpdracht::doelPad(TekstArray const& array) const {
  return (fs::u8path(map) / fs::u8path(array.naam + ".wav")).u8string();
}
