#include "tests/audio/uitvoer/verwachteRun.h"

#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/audio/codec/inbedHulp.h"

namespace {

std::string kopRegel(Wijze wijze, std::size_t aantal) {
  std::string const getal = std::to_string(aantal);
  return wijze == Wijze::inbed ? "/* Embedded output of " + getal + " WAV Files\t\t*/\n\n"
                               : std::string(wijze == Wijze::pcm ? "/* PCM" : "/* ADPCM") +
                                     " encoding output of " + getal + " audio files \t\t*/\n\n";
}

std::string declaraties(RunVorm const& vorm, std::vector<RunFragment> const& fragmenten) {
  std::string regels;
  for (RunFragment const& een : fragmenten) {
    regels +=
        (vorm.taal == 0 ? "// extern const unsigned char " : "// static const unsigned char ") +
        een.naam + "[];\n";
  }
  if (vorm.taal == 1) {
    return "// class " + vorm.klasse + "\n//{\n\t//private:\n" + regels + "//};\n";
  }
  return vorm.taal == 0 ? regels : "";
}

std::string ingebed(RunVorm const& vorm, RunFragment const& een) {
  VerwachtBlok blok;
  blok.taal = vorm.taal;
  blok.klasse = vorm.klasse;
  blok.naam = een.naam;
  blok.bestand = een.naam + ".wav";
  blok.rate = vorm.rate;
  blok.frames = static_cast<int>(een.samples.size());
  blok.bits = vorm.bits;
  if (vorm.rate == 0) {
    blok.formaat = "WAV 4 Bit IMA ADPCM";
    return verwachteInbedding(blok, {});
  }
  std::string const beeld = wavBytes({vorm.rate}, geschaald(een.samples, vorm.bits));
  return verwachteInbedding(blok, {beeld.begin(), beeld.end()});
}

std::string fragment(Wijze wijze, RunVorm const& vorm, RunFragment const& een, AdpcmStand& stand) {
  int const deler = 1 << (16 - vorm.bits);
  VerwachteTekst gegevens{vorm.taal,
                          vorm.metHeader,
                          vorm.klasse,
                          een.naam,
                          een.naam + ".wav",
                          vorm.rate,
                          static_cast<int>(een.samples.size()),
                          {}};
  switch (wijze) {
    case Wijze::pcm:
      gegevens.samples = gedeeld(een.samples, deler);
      return maakVerwachteTekst(gegevens);
    case Wijze::adpcm:
      return verwachteAdpcmTekst(gegevens, modelBytes(stand, een.samples, deler));
    default:
      return ingebed(vorm, een);
  }
}

}  // namespace

std::string verwachteRun(Wijze wijze, RunVorm const& vorm,
                         std::vector<RunFragment> const& fragmenten, AdpcmStand& stand) {
  std::string tekst = kopRegel(wijze, fragmenten.size()) +
                      "/* Put these declarations in a header file :*/\n" +
                      declaraties(vorm, fragmenten) + "\n\n";
  std::string const bezigheid = wijze == Wijze::inbed ? "embedding" : "encoding";
  int nummer = 0;
  for (RunFragment const& een : fragmenten) {
    std::string const merk = bezigheid + " file number " + std::to_string(++nummer);
    tekst += "/******* Start " + merk + " \t\t*******/\n" + fragment(wijze, vorm, een, stand) +
             "/******* Stop " + merk + " \t\t*******/\n\n";
  }
  return tekst;
}

std::string verwachteRun(Wijze wijze, RunVorm const& vorm,
                         std::vector<RunFragment> const& fragmenten) {
  AdpcmStand stand;
  return verwachteRun(wijze, vorm, fragmenten, stand);
}
