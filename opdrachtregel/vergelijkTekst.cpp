#include "opdrachtregel/vergelijkTekst.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "audio/weergave/tekstLezer.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/tekstInvoer.h"

namespace {

constexpr std::size_t aantalKolommen = 6;
// The first ones lie to the left.
constexpr std::size_t aantalNamen = 2;
using Kolommen = std::array<std::string, aantalKolommen>;

Kolommen const koppen{"Encoder", "Setting", "Bytes", "Bytes/s", "fwSNRseg (dB)", "SNRseg (dB)"};
// Settings have no other letters, so that all tables are alike.
constexpr std::array<std::size_t, aantalKolommen> breedten{7, 22, 8, 8, 13, 11};

constexpr char const* uitlegFiguren =
    "fwSNRseg is the frequency-weighted segmental signal-to-noise ratio of what a\n"
    "target plays, from -10 to 35 dB: the figure to go by. SNRseg compares the waves,\n"
    "which Speex does not keep: there it says little.\n";
constexpr char const* uitlegSpeex = "Speex has the settings of a first start of the window.\n";
constexpr char const* uitlegAdpcm =
    "ADPCM takes the low byte of each sample: a recording at full level, as it is,\n"
    "comes out as noise. Bring it down to 8 bits first, as in:\n"
    "  sox -D IN.wav OUT.wav vol 0.00387\n";
constexpr char const* uitlegStil = "-: no 30 ms of the recording are loud enough to be measured.\n";

std::string vasteKomma(double getal, int cijfers) {
  std::array<char, 64> tekst{};
  static_cast<void>(std::snprintf(tekst.data(), tekst.size(), "%.*f", cijfers, getal));
  return tekst.data();
}

// To this share of a dB. Zero has no sign.
double afgerond(double getal, double delen) {
  return std::round(getal * delen) / delen + 0.0;
}

template <typename Figuur>
std::optional<double> figuurVan(Encodering const& encodering, Figuur Kwaliteit::*figuur) {
  return encodering.kwaliteit ? std::optional((*encodering.kwaliteit).*figuur) : std::nullopt;
}

std::string regelVan(Kolommen const& kolommen) {
  std::string regel;
  for (std::size_t i = 0; i < aantalKolommen; ++i) {
    std::string const& tekst = kolommen[i];
    std::string const wit(breedten[i] - std::min(breedten[i], tekst.size()), ' ');
    regel += (i == 0 ? "" : "  ") + (i < aantalNamen ? tekst + wit : wit + tekst);
  }
  return regel + "\n";
}

Kolommen kolommenVan(Vergelijking const& vergelijking, Encodering const& encodering) {
  std::optional<long> const perSeconde = vergelijking.bytesPerSeconde(encodering);
  return {naamVan(encodering.instelling.soort),
          beschrijf(encodering.instelling),
          std::to_string(encodering.bytes),
          perSeconde ? std::to_string(*perSeconde) : "-",
          decibel(figuurVan(encodering, &Kwaliteit::banden)),
          decibel(figuurVan(encodering, &Kwaliteit::golven))};
}

std::string titel(Vergelijking const& vergelijking) {
  SF_INFO const& info = vergelijking.opname.info;
  return opEenRegel(vergelijking.opname.gegeven) + ": " + std::to_string(info.samplerate) +
         " Hz, " + std::to_string(info.channels) + (info.channels == 1 ? " channel" : " channels") +
         ", " + vasteKomma(vergelijking.duur(), 3) + " s\n";
}

std::string tabel(Vergelijking const& vergelijking) {
  std::string tekst = titel(vergelijking) + "\n" + regelVan(koppen);
  for (Encodering const& encodering : vergelijking.encoderingen) {
    tekst += regelVan(kolommenVan(vergelijking, encodering));
  }
  return tekst + "\n";
}

bool heeftFiguur(Encodering const& encodering) {
  return encodering.kwaliteit.has_value();
}

// What is to be known of one recording.
std::string uitlegVan(Vergelijking const& vergelijking) {
  std::vector<Encodering> const& alle = vergelijking.encoderingen;
  SF_INFO const& info = vergelijking.opname.info;
  std::string const naam = opEenRegel(vergelijking.opname.gegeven);
  std::string uit;
  if (vergelijking.pastInByte && std::any_of(alle.begin(), alle.end(), heeftFiguur)) {
    uit += naam + " fits 8 bits. ADPCM is measured\n" +
           "at the level at which a DAC of 8 bits plays that.\n";
  }
  if (info.channels > 1) {
    uit += naam + " has " + std::to_string(info.channels) + " channels. Encoders take the first\n" +
           std::to_string(info.frames) +
           " of its values, the channels in turn: not all of the sound. The figures\n"
           "are of these values. Make it mono first, as in: sox IN.wav -c 1 OUT.wav\n";
  }
  return uit;
}

nlohmann::ordered_json figuurJson(std::optional<double> figuur) {
  constexpr double delen = 100;
  return figuur ? nlohmann::ordered_json(afgerond(*figuur, delen)) : nlohmann::ordered_json();
}

}  // namespace

std::string decibel(std::optional<double> figuur) {
  constexpr double delen = 10;
  return figuur ? vasteKomma(afgerond(*figuur, delen), 1) : "-";
}

std::string tabellen(std::vector<Vergelijking> const& vergelijkingen) {
  std::string tekst;
  std::string uitleg;
  bool isLuid = false;
  bool isStil = false;
  for (Vergelijking const& vergelijking : vergelijkingen) {
    tekst += tabel(vergelijking);
    uitleg += uitlegVan(vergelijking);
    isLuid = isLuid || !vergelijking.pastInByte;
    isStil = isStil || !std::all_of(vergelijking.encoderingen.begin(),
                                    vergelijking.encoderingen.end(), heeftFiguur);
  }
  return tekst + uitlegFiguren + uitlegSpeex + (isLuid ? uitlegAdpcm : "") +
         (isStil ? uitlegStil : "") + uitleg;
}

std::string json(std::vector<Vergelijking> const& vergelijkingen) {
  using Json = nlohmann::ordered_json;
  Json opnamen = Json::array();
  for (Vergelijking const& vergelijking : vergelijkingen) {
    Json encoderingen = Json::array();
    for (Encodering const& encodering : vergelijking.encoderingen) {
      Instelling const& instelling = encodering.instelling;
      std::optional<long> const perSeconde = vergelijking.bytesPerSeconde(encodering);
      encoderingen.push_back(
          {{"encoder", optieNaam(instelling.soort)},
           {"setting", beschrijf(instelling)},
           {"quality", instelling.speexKwaliteit ? Json(*instelling.speexKwaliteit) : Json()},
           {"dac", instelling.dacBits},
           {"bytes", encodering.bytes},
           {"bytes_per_second", perSeconde ? Json(*perSeconde) : Json()},
           {"fwsnrseg", figuurJson(figuurVan(encodering, &Kwaliteit::banden))},
           {"snrseg", figuurJson(figuurVan(encodering, &Kwaliteit::golven))}});
    }
    SF_INFO const& info = vergelijking.opname.info;
    opnamen.push_back({{"file", vergelijking.opname.gegeven},
                       {"rate", info.samplerate},
                       {"channels", info.channels},
                       {"samples", info.frames},
                       {"duration", vergelijking.duur()},
                       {"fits_low_byte", vergelijking.pastInByte},
                       {"encodings", std::move(encoderingen)}});
  }
  Json alles;
  alles["recordings"] = std::move(opnamen);
  return alles.dump(2) + "\n";
}
