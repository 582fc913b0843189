#include "audio/weergave/kwaliteit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <functional>
#include <numeric>

namespace {

constexpr double laagste = -10;  // dB
constexpr double hoogste = 35;
constexpr double frameDuur = 0.030;  // s
constexpr std::size_t overlap = 4;   // frames that lie over one sample
constexpr double gewicht = 0.2;      // the power of a band's magnitude that it counts with

// Samples reach to this level. Below `stil` of its root mean square a frame counts as silent. A
// sine at `onhoorbaar` of it is at the threshold of hearing where a full one plays at 80 dB SPL.
constexpr double vol = 32768;
constexpr double stil = 1e-3;
constexpr double onhoorbaar = 1e-4;

// The edges of the critical bands of hearing in Hz: the 24 of Zwicker (1961), and the rest of what
// is heard.
constexpr std::array bandGrenzen{20,   100,  200,  300,  400,  510,   630,   770,  920,
                                 1080, 1270, 1480, 1720, 2000, 2320,  2700,  3150, 3700,
                                 4400, 5300, 6400, 7700, 9500, 12000, 15500, 20500};

Reeks hanning(std::size_t lengte) {
  double const stap = 2 * std::acos(-1.0) / static_cast<double>(lengte - 1);
  Reeks venster(lengte);
  std::generate(venster.begin(), venster.end(),
                [stap, n = 0.0]() mutable { return 0.5 - 0.5 * std::cos(stap * n++); });
  return venster;
}

// The power of two that holds a frame twice.
std::size_t spectrumPunten(std::size_t lengte) {
  std::size_t punten = 1;
  while (punten < 2 * lengte) {
    punten *= 2;
  }
  return punten;
}

double energie(Reeks const& reeks) {
  return std::inner_product(reeks.begin(), reeks.end(), reeks.begin(), 0.0);
}

double energieVanVerschil(Reeks const& een, Reeks const& ander) {
  return std::inner_product(een.begin(), een.end(), ander.begin(), 0.0, std::plus<>(),
                            [](double x, double y) { return (x - y) * (x - y); });
}

// Energies to limited dB. Where there is no error it is the most, whatever the signal.
double verhouding(double signaal, double fout) {
  return fout == 0 ? hoogste : std::clamp(10 * std::log10(signaal / fout), laagste, hoogste);
}

}  // namespace

Reeks opSchaal(std::vector<short> const& samples, double factor) {
  Reeks reeks(samples.size());
  std::transform(samples.begin(), samples.end(), reeks.begin(),
                 [factor](short sample) { return sample * factor; });
  return reeks;
}

BandMeter::BandMeter(int rate)
    : venster(hanning(static_cast<std::size_t>(std::lround(frameDuur * rate)))),
      stap(venster.size() / overlap),
      punten(spectrumPunten(venster.size())),
      omzetter(punten / 2, false) {
  for (int const grens : bandGrenzen) {
    if (2 * grens < rate) {
      grenzen.push_back(static_cast<std::size_t>(
          std::lround(static_cast<double>(grens) * static_cast<double>(punten) / rate)));
    }
  }
  grenzen.push_back(punten / 2 + 1);
}

std::size_t BandMeter::aantalFrames(std::size_t samples) const {
  return samples < venster.size() ? 0 : (samples - venster.size()) / stap + 1;
}

Reeks BandMeter::frame(Reeks const& geluid, std::size_t nummer) const {
  Reeks uit(venster.size());
  std::transform(venster.begin(), venster.end(),
                 geluid.begin() + static_cast<std::ptrdiff_t>(nummer * stap), uit.begin(),
                 std::multiplies<>());
  return uit;
}

double BandMeter::niveau(Reeks const& frame) const {
  return std::sqrt(energie(frame) / energie(venster));
}

Reeks BandMeter::grootten(Reeks const& frame) const {
  Reeks aangevuld(frame);
  aangevuld.resize(punten);
  std::vector<std::complex<double>> spectrum(punten / 2 + 1);
  omzetter.transform_real(aangevuld.data(), spectrum.data());
  // The library puts the last point, which is real as the first one is, beside that one.
  spectrum.back() = spectrum.front().imag();
  spectrum.front() = spectrum.front().real();
  Reeks uit(grenzen.size() - 1);
  std::transform(grenzen.begin(), grenzen.end() - 1, grenzen.begin() + 1, uit.begin(),
                 [&](std::size_t van, std::size_t tot) {
                   auto const begin = spectrum.begin();
                   return std::accumulate(begin + static_cast<std::ptrdiff_t>(van),
                                          begin + static_cast<std::ptrdiff_t>(tot), 0.0,
                                          [](double som, std::complex<double> const& punt) {
                                            return som + std::abs(punt);
                                          }) /
                          (vol * static_cast<double>(punten) / 2);
                 });
  return uit;
}

double gewogenVerhouding(Reeks const& origineel, Reeks const& gehoord) {
  double som = 0;
  double gewichten = 0;
  for (std::size_t band = 0; band < origineel.size(); ++band) {
    if (origineel[band] > onhoorbaar || gehoord[band] > onhoorbaar) {
      double const schoon = std::max(origineel[band], onhoorbaar);
      double const fout = schoon - std::max(gehoord[band], onhoorbaar);
      double const telt = std::pow(schoon, gewicht);
      som += telt * verhouding(schoon * schoon, fout * fout);
      gewichten += telt;
    }
  }
  return som / gewichten;
}

std::optional<Kwaliteit> meetKwaliteit(Reeks const& origineel, Reeks const& gehoord, int rate) {
  BandMeter const meter(rate);
  std::size_t const frames = meter.aantalFrames(std::min(origineel.size(), gehoord.size()));
  Kwaliteit som{0, 0};
  int geteld = 0;
  for (std::size_t nummer = 0; nummer < frames; ++nummer) {
    Reeks const schoon = meter.frame(origineel, nummer);
    if (meter.niveau(schoon) >= stil * vol) {
      Reeks const over = meter.frame(gehoord, nummer);
      som.banden += gewogenVerhouding(meter.grootten(schoon), meter.grootten(over));
      som.golven += verhouding(energie(schoon), energieVanVerschil(schoon, over));
      ++geteld;
    }
  }
  return geteld == 0 ? std::nullopt
                     : std::optional(Kwaliteit{som.banden / geteld, som.golven / geteld});
}
