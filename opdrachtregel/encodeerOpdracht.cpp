#include "opdrachtregel/encodeerOpdracht.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <iterator>
#include <optional>

#include "audio/codec/fragmentTekst.h"
#include "audio/codec/tekstMoment.h"
#include "audio/codec/uitvoerTaal.h"
#include "audio/codec/wavBeeld.h"
#include "audio/uitvoer/arrayNaam.h"
#include "audio/uitvoer/wavKeuring.h"
#include "audio/weergave/tekstLezer.h"
#include "externals/software/extern/speex/speexDesktopEncoder.h"
#include "opdrachtregel/bijlagen.h"
#include "opdrachtregel/doelGroep.h"
#include "opdrachtregel/encodeerKeuring.h"
#include "opdrachtregel/encodeerTekst.h"
#include "opdrachtregel/gebruik.h"
#include "opdrachtregel/melding.h"

namespace {

// The moment that a build gives to all that it makes, where it gives one. False where that is no
// moment, which was told.
bool neemMomentOver() {
  char const* const epoch = std::getenv("SOURCE_DATE_EPOCH");
  if (epoch == nullptr || *epoch == '\0') {
    return true;
  }
  // The last second of the year 9999.
  constexpr long long laatste = 253402300799;
  long long moment = 0;
  char const* const einde = epoch + std::strlen(epoch);
  auto const [plaats, fout] = std::from_chars(epoch, einde, moment);
  if (fout != std::errc() || plaats != einde || moment < 0 || moment > laatste) {
    meld(std::string("SOURCE_DATE_EPOCH is \"") + epoch +
         "\"; give a number of seconds since 1970, or unset it");
    return false;
  }
  legTekstMomentVast(static_cast<std::time_t>(moment));
  return true;
}

unsigned long long aantalSamples(ArraySoort soort, SF_INFO const& info) {
  auto const frames = static_cast<unsigned long long>(info.frames);
  switch (soort) {
    case ArraySoort::adpcm:
      // Two to the byte; an odd last one is not coded.
      return frames / 2 * 2;
    case ArraySoort::wav:
      return static_cast<unsigned long long>(framesInBeeld(info));
    default:
      return frames;
  }
}

Declaratie declareer(EncodeerVraag const& vraag, Opname const& opname) {
  return {opname.bestand.GetName().utf8_string(),
          vraag.soort == ArraySoort::speex ? SpeexDesktopEncoder::arrayType : byteArrayType,
          std::string(naamVan(vraag.soort)) + ", " + std::to_string(opname.info.samplerate) +
              " Hz, " + std::to_string(aantalSamples(vraag.soort, opname.info)) + " samples"};
}

std::vector<Declaratie> declareerAlle(EncodeerVraag const& vraag,
                                      std::vector<Opname> const& opnamen) {
  std::vector<Declaratie> arrays;
  std::transform(opnamen.begin(), opnamen.end(), std::back_inserter(arrays),
                 [&vraag](Opname const& opname) { return declareer(vraag, opname); });
  return arrays;
}

void schrijfIn(Doel& doel, std::string const& tekst) {
  doel.Write(tekst.data(), tekst.size());
}

bool schrijf(DoelGroep& doelen, std::string const& pad, std::string const& tekst) {
  Doel* const doel = doelen.voegToe(pad);
  if (doel == nullptr) {
    return false;
  }
  schrijfIn(*doel, tekst);
  return true;
}

}  // namespace

EncodeerOpdracht::EncodeerOpdracht(CLI::App& programma)
    : Opdracht(programma.add_subcommand("encode", "Make source text of recordings")) {
  voegOptiesToe(*app, opties);
}

Uitslag EncodeerOpdracht::voerUit() {
  std::optional<EncodeerVraag> vraag = maakVraag(*app, opties);
  if (!vraag) {
    return mislukt;
  }
  Uitslag const gebruik = keurGebruik(*vraag);
  if (gebruik != gelukt) {
    return gebruik;
  }
  std::optional<std::vector<Opname>> opnamen = leesOpnamen(opties.wavs);
  if (!opnamen || !keurFrequenties(*opnamen) ||
      !keurNamen(*vraag, *opnamen, {!opties.declaraties.empty(), opties.standen}) ||
      !keurDoelen() || !keurVermeldingen() ||
      (opties.aanvullen && !keurAanvulling(*vraag, *opnamen, opties.uitvoer)) ||
      !neemMomentOver()) {
    return mislukt;
  }
  std::sort(opnamen->begin(), opnamen->end(), [](Opname const& een, Opname const& ander) {
    return een.bestand.GetFullPath() < ander.bestand.GetFullPath();
  });
  vraag->instellingen.speexFormat = bandVoorFrequentie(opnamen->front().info.samplerate);
  DoelGroep doelen;
  if (!schrijfAlles(*vraag, *opnamen, doelen) || !doelen.legVast()) {
    return mislukt;
  }
  if (opties.uitgebreid) {
    vertel(*vraag, *opnamen);
  }
  return gelukt;
}

void EncodeerOpdracht::vertel(EncodeerVraag const& vraag,
                              std::vector<Opname> const& opnamen) const {
  auto const regel = [](std::string const& pad, std::string const& wat) {
    if (!pad.empty()) {
      std::cerr << "kestrolin-cli: " << pad << ": " << wat << "\n";
    }
  };
  regel(opties.uitvoer, std::to_string(opnamen.size()) + " " + naamVan(vraag.soort) +
                            (opnamen.size() == 1 ? " array at " : " arrays at ") +
                            std::to_string(opnamen.front().info.samplerate) + " Hz");
  regel(opties.declaraties, "declarations and sizes");
  regel(opties.bron, "source to compile");
  regel(opties.afhankelijkheden, "dependencies");
}

Uitslag EncodeerOpdracht::keurGebruik(EncodeerVraag const& vraag) const {
  UitvoerTaalRij const& rij = uitvoerTaalRij(vraag.instellingen.speexOutputLanguage);
  if (!heeftArrays(rij)) {
    return meldGebruik(*app, "the settings ask for a language without arrays; choose one",
                       "--language");
  }
  if (rij.vraagtKlasse && vraag.klasse.empty()) {
    return meldGebruik(*app, "a text in C++ needs the name of a class", "--class");
  }
  if (rij.vraagtKlasse && !isBruikbareNaam(vraag.klasse, UitvoerTaalCPP)) {
    return meldGebruik(*app, "\"" + vraag.klasse + "\" is no name of a class in C++", "--class");
  }
  if (!opties.bron.empty() && opties.declaraties.empty()) {
    return meldGebruik(*app, "--source needs a header to include", "--declarations");
  }
  if (opties.flash && opties.declaraties.empty()) {
    return meldGebruik(*app, "--flash needs a header to declare the arrays in", "--declarations");
  }
  if (opties.standen && vraag.soort != ArraySoort::adpcm) {
    return meldGebruik(*app, "--states are those of adpcm, and of no other encoder", "--encoder");
  }
  if (opties.standen && opties.bron.empty()) {
    return meldGebruik(*app, "--states needs a source to define them in", "--source");
  }
  bool const heeftBijlagen =
      !opties.declaraties.empty() || !opties.bron.empty() || !opties.afhankelijkheden.empty();
  if (opties.uitvoer == Doel::standaardUitvoer && heeftBijlagen) {
    return meldGebruik(*app, "other files cannot go with a text on standard output", "--output");
  }
  if (opties.aanvullen && !opties.declaraties.empty()) {
    return meldGebruik(
        *app, "a header declares the arrays of one run, and not what was there before", "--append");
  }
  return gelukt;
}

std::vector<std::string> EncodeerOpdracht::uitvoerPaden() const {
  std::vector<std::string> const alle{opties.uitvoer, opties.declaraties, opties.bron,
                                      opties.afhankelijkheden};
  std::vector<std::string> paden;
  std::copy_if(alle.begin(), alle.end(), std::back_inserter(paden),
               [](std::string const& pad) { return !pad.empty(); });
  return paden;
}

bool EncodeerOpdracht::keurDoelen() const {
  std::vector<std::string> invoer = opties.wavs;
  invoer.push_back(opties.instellingen);
  std::vector<std::string> const paden = uitvoerPaden();
  return std::count_if(paden.begin(), paden.end(), [&invoer](std::string const& pad) {
           return isGeenInvoer(pad, invoer, "another name");
         }) == static_cast<std::ptrdiff_t>(paden.size());
}

// The names that stand in the files that go with the text.
bool EncodeerOpdracht::keurVermeldingen() const {
  int const voor = aantalGemeld();
  if (!opties.bron.empty()) {
    for (std::string const& pad : {opties.uitvoer, opties.declaraties}) {
      if (!pastInInsluiting(insluitPad(pad, opties.bron))) {
        meld(pad + ": its name cannot stand in an #include; give it another one");
      }
    }
  }
  if (!opties.afhankelijkheden.empty()) {
    std::vector<std::string> const namen = afhankelijkheden();
    for (std::string const& pad : namen) {
      if (!pastInAfhankelijkheden(pad)) {
        meld(pad + ": make and ninja cannot read its name in " + opties.afhankelijkheden +
             "; rename it, or leave out --depfile");
      }
    }
  }
  return aantalGemeld() == voor;
}

// The text, and what it is made of.
std::vector<std::string> EncodeerOpdracht::afhankelijkheden() const {
  std::vector<std::string> namen{opties.uitvoer};
  namen.insert(namen.end(), opties.wavs.begin(), opties.wavs.end());
  if (!opties.instellingen.empty()) {
    namen.push_back(opties.instellingen);
  }
  return namen;
}

bool EncodeerOpdracht::schrijfAlles(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                                    DoelGroep& doelen) const {
  Doel* const doel = doelen.voegToe(opties.uitvoer, opties.aanvullen);
  Doel* bron = nullptr;
  std::vector<CoderStand> standen;
  // The other places are looked at before the long work.
  if (doel == nullptr || !schrijfBijlagen(vraag, opnamen, doelen, bron) ||
      !schrijfTekst(vraag, opnamen, *doel, opties.standen ? &standen : nullptr)) {
    return false;
  }
  if (bron != nullptr) {
    schrijfIn(*bron, maakBron(vraag, opnamen, standen));
  }
  return true;
}

Omgeving EncodeerOpdracht::omgevingVan(EncodeerVraag const& vraag) const {
  return {vraag.instellingen.speexOutputLanguage, vraag.klasse, opties.flash, opties.standen};
}

std::string EncodeerOpdracht::maakBron(EncodeerVraag const& vraag,
                                       std::vector<Opname> const& opnamen,
                                       std::vector<CoderStand> const& standen) const {
  return bronTekst(insluitPad(opties.declaraties, opties.bron),
                   insluitPad(opties.uitvoer, opties.bron), omgevingVan(vraag),
                   declareerAlle(vraag, opnamen), standen);
}

bool EncodeerOpdracht::schrijfBijlagen(EncodeerVraag const& vraag,
                                       std::vector<Opname> const& opnamen, DoelGroep& doelen,
                                       Doel*& latereBron) const {
  if (!opties.declaraties.empty() &&
      !schrijf(
          doelen, opties.declaraties,
          declaratieTekst(opties.declaraties, omgevingVan(vraag), declareerAlle(vraag, opnamen)))) {
    return false;
  }
  if (opties.standen) {
    latereBron = doelen.voegToe(opties.bron);
    if (latereBron == nullptr) {
      return false;
    }
  } else if (!opties.bron.empty() && !schrijf(doelen, opties.bron, maakBron(vraag, opnamen, {}))) {
    return false;
  }
  if (opties.afhankelijkheden.empty()) {
    return true;
  }
  std::vector<std::string> const namen = afhankelijkheden();
  return schrijf(doelen, opties.afhankelijkheden,
                 afhankelijkheidTekst(namen.front(), {namen.begin() + 1, namen.end()}));
}
