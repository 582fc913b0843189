#include "opdrachtregel/vergelijking.h"

#include <algorithm>
#include <cmath>

#include "audio/codec/audioConfig.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/wavFormaat.h"
#include "audio/uitvoer/dacBreedte.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "audio/uitvoer/wavKeuring.h"
#include "audio/weergave/arrayMaker.h"
#include "audio/weergave/doelDecoder.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/systeem.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

constexpr unsigned int volleBreedte = sampleBits;
constexpr unsigned int adpcmBreedte = 8;

// A power of two, from samples of this width to those of 16 bits.
double schaalVan(unsigned int bits) {
  return std::exp2(volleBreedte - bits);
}

// A recording, and what is made of it.
class Proefbank {
 public:
  explicit Proefbank(Opname const& eigenOpname);

  // Whether there is room for what passes through a file.
  bool isOpen() const { return bestand.isOpen(); }
  bool pastInByte() const;
  std::optional<Encodering> probeer(Instelling const& instelling);

 private:
  ArrayBytes maak(Instelling const& instelling);
  bool schrijfOmlaag();
  std::optional<Kwaliteit> meet(Instelling const& instelling, Samples const& gehoord) const;

  Opname const& opname;
  // As many interleaved values as the recording has frames, which is what the encoders take.
  Samples samples;
  WegwerpBestand bestand;
};

Proefbank::Proefbank(Opname const& eigenOpname)
    : opname(eigenOpname),
      samples(static_cast<std::size_t>(opname.info.frames)),
      bestand(tijdelijkeMap()) {
  SndBestand wav = SndBestand::lees(opname.bestand);
  auto const gelezen = wav.leesItems(samples.data(), static_cast<sf_count_t>(samples.size()));
  samples.resize(static_cast<std::size_t>(gelezen));
}

bool Proefbank::pastInByte() const {
  constexpr short hoogste = 127;
  return std::all_of(samples.begin(), samples.end(),
                     [](short sample) { return sample >= -hoogste - 1 && sample <= hoogste; });
}

bool Proefbank::schrijfOmlaag() {
  Samples const zacht = brengOmlaag(samples);
  auto const aantal = static_cast<sf_count_t>(zacht.size());
  SndBestand wav = SndBestand::schrijf(wxFileName(wxString::FromUTF8(bestand.geefPad())),
                                       opname.info.samplerate, 1, wavPcm16);
  return wav.schrijfItems(zacht.data(), aantal) == aantal && wav.voltooiKop();
}

ArrayBytes Proefbank::maak(Instelling const& instelling) {
  KestrolinConfig config = eersteInstellingen(UitvoerTaalC, instelling.dacBits);
  config.speexFormat = bandVoorFrequentie(opname.info.samplerate);
  config.speexQuality = instelling.speexKwaliteit.value_or(config.speexQuality);
  wxString const pad = wxString::FromUTF8(bestand.geefPad());
  if (!instelling.isOmlaag) {
    return maakArray(instelling.soort, config, opname.bestand, pad);
  }
  return schrijfOmlaag() ? maakArray(instelling.soort, config, wxFileName(pad), wxString())
                         : ArrayBytes();
}

std::optional<Kwaliteit> Proefbank::meet(Instelling const& instelling,
                                         Samples const& gehoord) const {
  double schaal = schaalVan(instelling.dacBits);
  double schaalBron = 1;
  if (instelling.isOmlaag) {
    schaal = 1 / adpcmVolume;
  } else if (instelling.soort == ArraySoort::adpcm) {
    // The encoder keeps eight bits. What has no more of them is heard at the level of these.
    schaal = schaalVan(adpcmBreedte);
    schaalBron = pastInByte() ? schaal : 1;
  }
  return meetKwaliteit(opSchaal(samples, schaalBron), opSchaal(gehoord, schaal),
                       opname.info.samplerate);
}

std::optional<Encodering> Proefbank::probeer(Instelling const& instelling) {
  int const voor = aantalGemeld();
  ArrayBytes const array = maak(instelling);
  if (array.empty() && aantalGemeld() == voor) {
    meld(opname.gegeven + ": not all of it could be read, or copied to the temporary folder");
  }
  if (aantalGemeld() != voor) {
    return std::nullopt;
  }
  Samples const gehoord = DoelDecoder().decodeer(instelling.soort, array).samples;
  return Encodering{instelling, array.size(), meet(instelling, gehoord)};
}

std::vector<Instelling> instellingen(bool pastInByte) {
  std::vector<Instelling> alle;
  for (unsigned int const kwaliteit : {2U, 4U, 6U, 8U, 10U}) {
    alle.push_back({ArraySoort::speex, volleBreedte, kwaliteit, false});
  }
  alle.push_back({ArraySoort::adpcm, volleBreedte, {}, false});
  if (!pastInByte) {
    alle.push_back({ArraySoort::adpcm, volleBreedte, {}, true});
  }
  for (ArraySoort const soort : {ArraySoort::pcm, ArraySoort::wav}) {
    for (long long const bits : dacBreedten) {
      alle.push_back({soort, static_cast<unsigned int>(bits), {}, false});
    }
  }
  return alle;
}

}  // namespace

double Vergelijking::duur() const {
  return static_cast<double>(opname.info.frames) / opname.info.samplerate;
}

std::optional<long> Vergelijking::bytesPerSeconde(Encodering const& encodering) const {
  return opname.info.frames == 0
             ? std::nullopt
             : std::optional(std::lround(static_cast<double>(encodering.bytes) / duur()));
}

std::optional<Vergelijking> vergelijk(Opname const& opname) {
  Proefbank bank(opname);
  if (!bank.isOpen()) {
    meldGeenTijdelijk();
    return std::nullopt;
  }
  Vergelijking uit{opname, bank.pastInByte(), {}};
  for (Instelling const& instelling : instellingen(uit.pastInByte)) {
    std::optional<Encodering> const encodering = bank.probeer(instelling);
    if (!encodering) {
      return std::nullopt;
    }
    uit.encoderingen.push_back(*encodering);
  }
  return uit;
}

std::string beschrijf(Instelling const& instelling) {
  if (instelling.speexKwaliteit) {
    return "quality " + std::to_string(*instelling.speexKwaliteit);
  }
  if (instelling.soort == ArraySoort::adpcm) {
    return instelling.isOmlaag ? "brought down to 8 bits" : "as it is";
  }
  return std::to_string(instelling.dacBits) + "-bit DAC";
}
