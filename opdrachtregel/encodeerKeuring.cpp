#include "opdrachtregel/encodeerKeuring.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>

#include "audio/codec/uitvoerTaal.h"
#include "audio/uitvoer/arrayNaam.h"
#include "audio/uitvoer/wavKeuring.h"
#include "audio/weergave/tekstLezer.h"
#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/bijlagen.h"
#include "opdrachtregel/melding.h"

namespace {

// The comments of the text hold the name of the file.
bool pastInCommentaar(std::string const& naam) {
  return naam.find("*/") == std::string::npos &&
         std::none_of(naam.begin(), naam.end(),
                      [](char teken) { return static_cast<unsigned char>(teken) < ' '; });
}

bool isCPP(EncodeerVraag const& vraag) {
  return vraag.instellingen.speexOutputLanguage == UitvoerTaalCPP;
}

std::string taalNaam(EncodeerVraag const& vraag) {
  return isCPP(vraag) ? "C++" : "C";
}

void meldBezwaar(Opname const& opname, std::string const& reden) {
  meld(opname.gegeven + ": " + reden);
}

// A name that is made of an array's, and what it stands for.
struct Bijnaam {
  std::string (*naam)(std::string const& array);
  char const* woord;
};

std::vector<Bijnaam> bijnamen(Declareert wat) {
  std::vector<Bijnaam> alle;
  if (wat.metHeader) {
    alle.push_back({grootteNaam, "size"});
  }
  if (wat.metStanden) {
    alle.push_back({standNaam, "state"});
  }
  return alle;
}

// Why a recording cannot give its name to an array, empty where it can.
std::string bezwaar(EncodeerVraag const& vraag, Opname const& opname, std::string const& naam,
                    Declareert wat) {
  if (!pastInCommentaar(opname.bestand.GetFullName().utf8_string())) {
    return "its name cannot stand in a comment; rename the file";
  }
  if (!isBruikbareNaam(naam, vraag.instellingen.speexOutputLanguage)) {
    return "its array would be called \"" + naam + "\", which is no name in " + taalNaam(vraag) +
           "; rename the file";
  }
  if (wat.metHeader && !isBruikbareNaam(naam, UitvoerTaalCPP)) {
    return "its array would be called \"" + naam +
           "\", which is no name in C++, where the header can be included too; rename the file";
  }
  for (Bijnaam const& een : bijnamen(wat)) {
    if (isCPP(vraag) && een.naam(naam) == vraag.klasse) {
      return std::string("the ") + een.woord + " of its array would be called \"" + vraag.klasse +
             "\", as its class is; rename the file or the class";
    }
  }
  if (isCPP(vraag) && naam == vraag.klasse) {
    return "its array would be called \"" + naam +
           "\", as its class is; rename the file or the class";
  }
  return {};
}

void meldStaatEr(Opname const& opname, std::string const& naam, std::string const& tekst) {
  meldBezwaar(opname, "its array would be called \"" + naam + "\", as one that is in " + tekst +
                          " already; rename the file, or make " + tekst + " anew without --append");
}

}  // namespace

bool keurFrequenties(std::vector<Opname> const& opnamen) {
  int const voor = aantalGemeld();
  Opname const& eerste = opnamen.front();
  int const band = bandVoorFrequentie(eerste.info.samplerate);
  for (Opname const& een : opnamen) {
    if (keurBand(een.info.samplerate, band) != BandOordeel::past) {
      meldBezwaar(een, "has " + std::to_string(een.info.samplerate) + " Hz where " +
                           eerste.gegeven + " has " + std::to_string(eerste.info.samplerate) +
                           " Hz; encode each rate by itself, or convert one of them");
    }
  }
  return aantalGemeld() == voor;
}

bool keurNamen(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen, Declareert wat) {
  int const voor = aantalGemeld();
  std::map<std::string, std::string> vergeven;
  for (Opname const& een : opnamen) {
    std::string const naam = een.bestand.GetName().utf8_string();
    std::string const reden = bezwaar(vraag, een, naam, wat);
    if (!reden.empty()) {
      meldBezwaar(een, reden);
      continue;
    }
    auto const [eerder, isNieuw] = vergeven.try_emplace(naam, een.gegeven);
    if (!isNieuw) {
      meldBezwaar(een, "its array would be called \"" + naam + "\", as that of " + eerder->second +
                           "; rename one of them");
    }
  }
  for (Bijnaam const& bijnaam : bijnamen(wat)) {
    for (auto const& [naam, bestand] : vergeven) {
      auto const ander = vergeven.find(bijnaam.naam(naam));
      if (ander != vergeven.end()) {
        meld(ander->second + ": its array would be called \"" + ander->first + "\", as the " +
             bijnaam.woord + " of that of " + bestand + "; rename one of them");
      }
    }
  }
  return aantalGemeld() == voor;
}

bool keurAanvulling(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                    std::string const& pad) {
  std::string tekst;
  std::error_code geen;
  if (!std::filesystem::is_regular_file(std::filesystem::u8path(pad), geen) ||
      leesBestand(pad, tekst) != 0) {
    // There is nothing yet, or no place for a text, as is told when it is opened.
    return true;
  }
  std::vector<TekstArray> const arrays = ontleedTekst(tekst).arrays;
  std::string const klasse = isCPP(vraag) ? vraag.klasse : std::string();
  int const voor = aantalGemeld();
  for (Opname const& een : opnamen) {
    std::string const naam = een.bestand.GetName().utf8_string();
    bool const isEr = std::any_of(arrays.begin(), arrays.end(), [&](TekstArray const& array) {
      return array.naam == naam && array.klasse == klasse;
    });
    if (isEr) {
      meldStaatEr(een, naam, pad);
    }
  }
  return aantalGemeld() == voor;
}
