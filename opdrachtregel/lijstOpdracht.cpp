#include "opdrachtregel/lijstOpdracht.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <optional>
#include <utility>

#include "opdrachtregel/lijst.h"
#include "opdrachtregel/tekstInvoer.h"

LijstOpdracht::LijstOpdracht(CLI::App& programma)
    : Opdracht(programma.add_subcommand("list", "List the arrays of generated texts")) {
  app->add_option("FILE", bestanden, "Texts, of the window too; - is standard input")->required();
  app->add_flag("--json", alsJson, "Print the same as JSON, for scripts");
  app->footer(
      "Bytes are those of the arrays: what they cost in flash. Samples are those of\n"
      "each channel.\n"
      "\n"
      "JSON has the keys \"arrays\", a list, and \"total\". Each array has \"file\",\n"
      "\"array\", \"class\" (null in C), \"encoder\" (speex, adpcm, pcm or wav), \"rate\" in\n"
      "Hz, \"samples\", \"duration\" in seconds, \"bytes\", \"header\" (true for WAV files,\n"
      "which have their own) and \"dac\" in bits (null for PCM and ADPCM, whose texts\n"
      "do not tell); the total has \"arrays\", \"samples\", \"duration\" and \"bytes\".");
}

// All or nothing: half a list would pass for a whole one.
Uitslag LijstOpdracht::voerUit() {
  std::vector<LijstRij> rijen;
  bool heel = true;
  for (std::string const& bestand : bestanden) {
    std::optional<std::vector<TekstArray>> arrays = leesArrays(bestand);
    heel = heel && arrays.has_value();
    for (TekstArray& array : arrays.value_or(std::vector<TekstArray>())) {
      std::size_t const bytes = array.bytes.size();
      array.bytes = ArrayBytes();
      rijen.push_back({bestand, std::move(array), bytes});
    }
  }
  if (!heel) {
    return mislukt;
  }
  std::cout << (alsJson ? json(rijen) : tabel(rijen));
  return gelukt;
}
