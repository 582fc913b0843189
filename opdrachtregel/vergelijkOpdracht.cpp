#include "opdrachtregel/vergelijkOpdracht.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <optional>

#include "opdrachtregel/doelGroep.h"
#include "opdrachtregel/gebruik.h"
#include "opdrachtregel/kwaliteitPlaat.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/opname.h"
#include "opdrachtregel/vergelijkTekst.h"
#include "opdrachtregel/vergelijking.h"
#include "opdrachtregel/voortgang.h"

namespace {

// Tells of each recording why it could not be compared.
std::optional<std::vector<Vergelijking>> vergelijkAlle(std::vector<Opname> const& opnamen) {
  Voortgang voortgang(opnamen.size(), "recordings");
  std::vector<Vergelijking> vergelijkingen;
  for (Opname const& opname : opnamen) {
    std::optional<Vergelijking> vergelijking = vergelijk(opname);
    if (vergelijking) {
      vergelijkingen.push_back(std::move(*vergelijking));
    }
    voortgang.meldGedaan(static_cast<std::size_t>(&opname - opnamen.data()) + 1);
  }
  return vergelijkingen.size() == opnamen.size() ? std::optional(std::move(vergelijkingen))
                                                 : std::nullopt;
}

}  // namespace

VergelijkOpdracht::VergelijkOpdracht(CLI::App& programma)
    : Opdracht(programma.add_subcommand("compare",
                                        "Tell what each encoder would cost, and how it sounds")) {
  app->add_option("FILE.wav", wavs, "Recordings; each is judged by itself")->required();
  app->add_option("--plot", plaat, "Also draw size against quality")->type_name("FILE.svg");
  app->add_flag("--json", alsJson, "Print the figures as JSON, for scripts");
  app->footer(
      "Each recording is encoded by Speex at five qualities, by ADPCM, and as PCM and\n"
      "WAV for each width of a DAC, decoded as a target would, and held against the\n"
      "recording. Bytes are those of an array with header.\n"
      "\n"
      "JSON has the key \"recordings\", a list. Each one has \"file\", \"rate\" in Hz,\n"
      "\"channels\", \"samples\" of each channel, \"duration\" in seconds, \"fits_low_byte\"\n"
      "(whether ADPCM takes all of it as it is), and \"encodings\". Each of these has\n"
      "\"encoder\" (speex, adpcm, pcm or wav), \"setting\", \"quality\" (null but for\n"
      "Speex), \"dac\" in bits, \"bytes\", \"bytes_per_second\", and in dB \"fwsnrseg\" and\n"
      "\"snrseg\", null where nothing is loud enough to be measured.");
}

Uitslag VergelijkOpdracht::voerUit() {
  if (plaat == Doel::standaardUitvoer) {
    return meldGebruik(*app, "standard output has the figures; give the plot a file", "--plot");
  }
  std::optional<std::vector<Opname>> const opnamen = leesOpnamen(wavs);
  if (!opnamen || !isGeenInvoer(plaat, wavs, "another name")) {
    return mislukt;
  }
  DoelGroep doelen;
  // The place is looked at before the long work.
  Doel* const doel = plaat.empty() ? nullptr : doelen.voegToe(plaat);
  if (!plaat.empty() && doel == nullptr) {
    return mislukt;
  }
  std::optional<std::vector<Vergelijking>> const vergelijkingen = vergelijkAlle(*opnamen);
  if (!vergelijkingen) {
    return mislukt;
  }
  std::string const figuren = alsJson ? json(*vergelijkingen) : tabellen(*vergelijkingen);
  if (doel == nullptr) {
    std::cout << figuren;
    return gelukt;
  }
  std::string const tekening = tekenPlaat(*vergelijkingen);
  doel->Write(tekening.data(), tekening.size());
  // The picture stays as it is where the figures cannot be written.
  Doel* const uit = doelen.voegToe(Doel::standaardUitvoer);
  if (uit == nullptr) {
    return mislukt;
  }
  uit->Write(figuren.data(), figuren.size());
  return doelen.legVast() ? gelukt : mislukt;
}
