// The two converters as types, for the tests that hold for both: what a new one writes, and what is
// expected of it.
#pragma once

#include <memory>

#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

struct PcmSoort {
  using Converter = PCMDesktopConverter;
  using Opties = PCMEncoderOpties;
  using Taal = PCMEncoderTaal;
  using Pakket = VelmoraPCMPakket;
  using Waarden = std::vector<int>;
  static constexpr char const* naam = "Pcm";

  static Waarden waardenVan(Pakket const& pakket) {
    return {pakket.geefData(), pakket.geefData() + pakket.geefAantalSamples()};
  }

  // What a packet holds of these samples, and the text of a fragment with them.
  Waarden waarden(std::vector<int> const& samples, int deler = 1) {
    return gedeeld(samples, deler);
  }
  std::string tekst(VerwachteTekst gegevens, std::vector<int> const& samples, int deler = 1) {
    gegevens.samples = waarden(samples, deler);
    return maakVerwachteTekst(gegevens);
  }
};

// The coder goes on from one expected fragment to the next.
struct AdpcmSoort {
  using Converter = ADPCMDesktopConverter;
  using Opties = ADPCMEncoderOpties;
  using Taal = ADPCMEncoderTaal;
  using Pakket = VelmoraADPCMPakket;
  using Waarden = Bytes;
  static constexpr char const* naam = "Adpcm";

  static Waarden waardenVan(Pakket const& pakket) { return codesVan(pakket); }

  Waarden waarden(std::vector<int> const& samples, int deler = 1) {
    return modelBytes(stand, samples, deler);
  }
  std::string tekst(VerwachteTekst const& gegevens, std::vector<int> const& samples,
                    int deler = 1) {
    return verwachteAdpcmTekst(gegevens, waarden(samples, deler));
  }

  AdpcmStand stand;
};

using ConverterSoorten = testing::Types<PcmSoort, AdpcmSoort>;

struct SoortNaam {
  template <typename Soort>
  static std::string GetName(int /*nummer*/) {
    return Soort::naam;
  }
};

// A width of the DAC: what a sample is shifted by, and so divided.
struct DacBreedte {
  unsigned long long bitShift;
  int deler;
};
inline constexpr DacBreedte dacBreedten[]{{0, 1}, {4, 16}, {6, 64}, {8, 256}};

template <typename Soort>
class ConverterProef : public testing::Test {
 protected:
  using Opties = typename Soort::Opties;
  using Taal = typename Soort::Taal;

  static Opties opties(int taal, std::string const& klasse = "K", unsigned long long schuif = 0) {
    return {static_cast<Taal>(taal), wxTekst(klasse), schuif};
  }
  static typename Soort::Converter nieuw(Opties const& met) {
    typename Soort::Converter converter(met);
    converter.zetOpties(met);
    return converter;
  }
  static std::string tekst(typename Soort::Converter& converter, std::string const& pad,
                           bool metHeader = true) {
    wxMemoryOutputStream uit;
    converter.codeerBestand(bestandsnaam(pad), metHeader, uit);
    return zonderMoment(tekstVan(uit));
  }
  // The same from a new converter.
  static std::string tekst(Opties const& met, std::string const& pad, bool metHeader = true) {
    auto converter = nieuw(met);
    return tekst(converter, pad, metHeader);
  }

  TijdelijkeMap map;
  std::string toon = map.pad("toon.wav");
};
