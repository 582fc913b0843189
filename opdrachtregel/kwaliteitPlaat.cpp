#include "opdrachtregel/kwaliteitPlaat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "audio/weergave/tekstLezer.h"
#include "opdrachtregel/labelVakken.h"
#include "opdrachtregel/svg.h"
#include "opdrachtregel/utf8.h"
#include "opdrachtregel/vergelijkTekst.h"

namespace {

constexpr int paneelBreedte = 430;
constexpr int paneelHoogte = 340;
constexpr int legendaHoogte = 60;
// The corners of the axes in a panel.
constexpr Plek linksBoven{58, 40};
constexpr Plek rechtsOnder{415, 285};
constexpr Plek midden{(linksBoven.x + rechtsOnder.x) / 2, (linksBoven.y + rechtsOnder.y) / 2};
constexpr int laagsteDb = -10;
constexpr int hoogsteDb = 40;

constexpr char const* titel = "Flash against quality, by recording and encoder";
constexpr char const* inHetMidden = R"(text-anchor="middle")";
constexpr char const* omhoog = "text-anchor=\"middle\" transform=\"rotate(-90)\"";

struct Reeksteken {
  ArraySoort soort;
  char const* uitleg;
  char const* vorm;
  char const* verf;
  Kant kant;  // of the labels
  char const* anker;
};

// The colours are told apart by all eyes, and no two shapes are alike.
constexpr std::array<Reeksteken, 4> reeksen{
    {{ArraySoort::speex, "Speex, by quality", "M-5,-4H5L0,5Z", R"(fill="#000000")", Kant::boven,
      "middle"},
     {ArraySoort::adpcm, "ADPCM, by level", "M-4,-4H4V4H-4Z", R"(fill="#d55e00")", Kant::rechts,
      "start"},
     {ArraySoort::pcm, "PCM, by bits of the DAC", "M-4,0a4,4 0 1,0 8,0a4,4 0 1,0 -8,0Z",
      R"(fill="#0072b2")", Kant::rechts, "start"},
     {ArraySoort::wav, "WAV, by bits of the DAC", "M-7,0L0,-7L7,0L0,7Z",
      R"(fill="none" stroke="#009e73" stroke-width="1.8")", Kant::links, "end"}}};
constexpr double straal = 7;  // of the largest

// The axis of bytes, the same in all panels, with room for labels at both ends.
class BytesAs {
 public:
  explicit BytesAs(std::vector<Vergelijking> const& vergelijkingen) {
    for (Vergelijking const& vergelijking : vergelijkingen) {
      for (Encodering const& encodering : vergelijking.encoderingen) {
        auto const bytes = static_cast<double>(encodering.bytes);
        minst = std::min(minst, bytes);
        meest = std::max({meest, bytes, 2 * minst});
      }
    }
  }

  double plaats(double bytes) const {
    constexpr double links = linksBoven.x + 30;
    constexpr double rechts = rechtsOnder.x - 75;
    return links + (rechts - links) * std::log(bytes / minst) / std::log(meest / minst);
  }

  // Ones, twos and fives of each power of ten; where the axis is long the ones alone.
  std::vector<long long> streepjes() const {
    constexpr double lang = 1000;
    constexpr long long hoogste = 1'000'000'000'000;
    constexpr long long stap = 10;
    std::vector<long long> uit;
    for (long long macht = 1; macht < hoogste; macht *= stap) {
      for (long long const cijfer : {1LL, 2LL, 5LL}) {
        double const x = plaats(static_cast<double>(macht * cijfer));
        if (x >= linksBoven.x && x <= rechtsOnder.x && (cijfer == 1 || meest / minst < lang)) {
          uit.push_back(macht * cijfer);
        }
      }
    }
    return uit;
  }

 private:
  double minst = std::numeric_limits<double>::max();
  double meest = 0;
};

std::string bytesTekst(long long bytes) {
  constexpr long long kilo = 1000;
  constexpr long long mega = kilo * kilo;
  return bytes < kilo   ? std::to_string(bytes)
         : bytes < mega ? std::to_string(bytes / kilo) + " k"
                        : std::to_string(bytes / mega) + " M";
}

double plaatsVanDb(double db) {
  return rechtsOnder.y -
         (rechtsOnder.y - linksBoven.y) * (db - laagsteDb) / (hoogsteDb - laagsteDb);
}

std::string assen(BytesAs const& as) {
  constexpr char const* raster = R"(stroke="#dddddd")";
  constexpr int stap = 5;  // dB
  std::string uit;
  for (long long const bytes : as.streepjes()) {
    double const x = as.plaats(static_cast<double>(bytes));
    uit += svgLijn({{x, linksBoven.y}, {x, rechtsOnder.y}}, raster) +
           svgTekst({x, rechtsOnder.y + 17}, bytesTekst(bytes), inHetMidden);
  }
  for (int db = laagsteDb; db <= hoogsteDb; db += stap) {
    double const y = plaatsVanDb(db);
    uit += svgLijn({{linksBoven.x, y}, {rechtsOnder.x, y}}, raster) +
           svgTekst({linksBoven.x - 6, y + 4}, std::to_string(db), R"(text-anchor="end")");
  }
  return uit +
         svgLijn({linksBoven, {linksBoven.x, rechtsOnder.y}, rechtsOnder}, R"(stroke="#555555")") +
         svgTekst({midden.x, rechtsOnder.y + 36}, "bytes of flash", inHetMidden) +
         svgTekst({-midden.y, 18}, "quality (fwSNRseg), dB", omhoog);
}

// What tells a sign apart from the others of its series.
std::string label(Instelling const& instelling) {
  if (instelling.speexKwaliteit) {
    return std::to_string(*instelling.speexKwaliteit);
  }
  if (instelling.soort == ArraySoort::adpcm) {
    return instelling.isOmlaag ? "8 bits" : "as it is";
  }
  return std::to_string(instelling.dacBits);
}

struct Punt {
  Plek plek;
  std::string label;
};

// The signs of a series. Those that lie over one another share a label.
std::vector<Punt> puntenVan(Vergelijking const& vergelijking, ArraySoort soort, BytesAs const& as) {
  constexpr double bijna = 4;
  std::vector<Punt> punten;
  for (Encodering const& encodering : vergelijking.encoderingen) {
    if (encodering.instelling.soort != soort || !encodering.kwaliteit) {
      continue;
    }
    Plek const plek{as.plaats(static_cast<double>(encodering.bytes)),
                    plaatsVanDb(encodering.kwaliteit->banden)};
    bool const isSamen = !punten.empty() && std::abs(punten.back().plek.x - plek.x) < bijna &&
                         std::abs(punten.back().plek.y - plek.y) < bijna;
    std::string const samen = isSamen ? punten.back().label + ", " : "";
    if (isSamen) {
      punten.back().label.clear();
    }
    punten.push_back({plek, samen + label(encodering.instelling)});
  }
  return punten;
}

// The labels of all series, when all signs have their places.
std::string labels(std::vector<std::vector<Punt>> const& perReeks) {
  LabelVakken vakken(linksBoven, rechtsOnder);
  for (std::vector<Punt> const& punten : perReeks) {
    for (Punt const& punt : punten) {
      vakken.houdVrij(punt.plek, straal);
    }
  }
  std::string uit;
  for (std::size_t i = 0; i < reeksen.size(); ++i) {
    for (Punt const& punt : perReeks[i]) {
      std::optional<Plek> const plek =
          punt.label.empty() ? std::nullopt
                             : vakken.plaats(punt.plek, reeksen[i].kant, punt.label.size());
      if (plek) {
        uit += svgTekst({plek->x, plek->y + 4}, punt.label,
                        std::string(R"(font-size="11" text-anchor=")") + reeksen[i].anker + "\"");
      }
    }
  }
  return uit;
}

// As much of a name as a panel has room for.
std::string kort(std::string const& naam) {
  constexpr std::size_t meeste = 40;
  return aantalTekens(naam) > meeste ? eersteTekens(naam, meeste - 1) + u8"\u2026" : naam;
}

std::string paneel(Vergelijking const& vergelijking, BytesAs const& as) {
  Opname const& opname = vergelijking.opname;
  std::string const kop = kort(opname.bestand.GetFullName().utf8_string()) + ", " +
                          std::to_string(opname.info.samplerate) + " Hz";
  std::string uit = svgTekst({midden.x, linksBoven.y - 16}, kop, inHetMidden) + assen(as);
  std::vector<std::vector<Punt>> perReeks;
  for (Reeksteken const& reeks : reeksen) {
    std::vector<Punt> const& punten =
        perReeks.emplace_back(puntenVan(vergelijking, reeks.soort, as));
    std::vector<Plek> lijn;
    std::string tekens;
    for (Punt const& punt : punten) {
      lijn.push_back(punt.plek);
      tekens += svgVorm(punt.plek, reeks.vorm, reeks.verf);
    }
    uit += (reeks.soort == ArraySoort::speex ? svgLijn(lijn, R"(stroke="#000000")") : "") + tekens;
  }
  return uit + labels(perReeks);
}

std::string legenda(double breedte, double y) {
  std::string uit;
  for (std::size_t i = 0; i < reeksen.size(); ++i) {
    Plek const plek{breedte / 2 * static_cast<double>(i % 2) + 40, y + (i < 2 ? 12 : 36)};
    uit += svgVorm(plek, reeksen[i].vorm, reeksen[i].verf) +
           svgTekst({plek.x + 14, plek.y + 4}, reeksen[i].uitleg, "");
  }
  return uit;
}

// The same for those who do not see the picture.
std::string beschrijving(std::vector<Vergelijking> const& vergelijkingen) {
  std::string uit;
  for (Vergelijking const& vergelijking : vergelijkingen) {
    uit += vergelijking.opname.bestand.GetFullName().utf8_string() + ":";
    for (Encodering const& encodering : vergelijking.encoderingen) {
      uit += std::string(" ") + naamVan(encodering.instelling.soort) + ", " +
             beschrijf(encodering.instelling) + ": " + std::to_string(encodering.bytes) + " bytes" +
             (encodering.kwaliteit ? ", " + decibel(encodering.kwaliteit->banden) + " dB" : "") +
             (&encodering == &vergelijking.encoderingen.back() ? ". " : ";");
    }
  }
  return uit;
}

}  // namespace

std::string tekenPlaat(std::vector<Vergelijking> const& vergelijkingen) {
  std::size_t const kolommen = std::min<std::size_t>(vergelijkingen.size(), 2);
  std::size_t const rijen = (vergelijkingen.size() + 1) / 2;
  auto const breedte = static_cast<double>(kolommen * paneelBreedte);
  auto const hoogte = static_cast<double>(rijen * paneelHoogte);
  std::string const maat =
      svgGetal(breedte) + "\" height=\"" + svgGetal(hoogte + legendaHoogte) + "\"";
  std::string uit =
      "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" aria-labelledby=\"title desc\" "
      "font-family=\"Helvetica,Arial,sans-serif\" font-size=\"13\" fill=\"#333333\" width=\"" +
      maat + ">\n<title id=\"title\">" + titel + "</title>\n<desc id=\"desc\">" +
      svgInhoud(beschrijving(vergelijkingen)) + "</desc>\n<rect fill=\"#ffffff\" width=\"" + maat +
      "/>\n";
  BytesAs const as(vergelijkingen);
  for (std::size_t i = 0; i < vergelijkingen.size(); ++i) {
    uit += "<g transform=\"translate(" + std::to_string(i % 2 * paneelBreedte) + "," +
           std::to_string(i / 2 * paneelHoogte) + ")\">\n" + paneel(vergelijkingen[i], as) +
           "</g>\n";
  }
  return uit + legenda(breedte, hoogte) + "</svg>\n";
}
