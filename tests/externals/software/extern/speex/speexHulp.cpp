#include "tests/externals/software/extern/speex/speexHulp.h"

#include <gtest/gtest.h>
#include <wx/mstream.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <optional>
#include <sstream>
#include <system_error>

#include "numeriek/percentage.h"
#include "tests/audio/codec/codecHulp.h"

namespace {

// The one request that takes a float gets the bits of the integer.
float bitsAlsFloat(unsigned int waarde) {
  float uit = 0;
  static_assert(sizeof uit == sizeof waarde);
  std::memcpy(&uit, &waarde, sizeof uit);
  return uit;
}

// The text without what stands between each `begin` and the next `einde`, both included.
std::string zonder(std::string const& tekst, std::string const& begin, std::string const& einde) {
  std::string rest;
  std::size_t plaats = 0;
  for (std::size_t weg = tekst.find(begin); weg != std::string::npos;
       weg = tekst.find(begin, plaats)) {
    rest += tekst.substr(plaats, weg - plaats);
    plaats = tekst.find(einde, weg);
    if (plaats == std::string::npos) {
      ADD_FAILURE() << "no " << einde << " behind the " << begin;
      return "";
    }
    plaats += einde.size();
  }
  return rest + tekst.substr(plaats);
}

// The text between the braces, without comments, casts and blanks.
std::string kaleElementen(std::string const& tekst) {
  std::string const begin = "[] = \n{\n";
  std::size_t const kop = tekst.find(begin);
  std::size_t const einde = tekst.find("};\n", kop);
  if (kop == std::string::npos || einde == std::string::npos) {
    ADD_FAILURE() << "no array in the text";
    return "";
  }
  std::string kaal = zonder(
      zonder(tekst.substr(kop + begin.size(), einde - kop - begin.size()), "/*", "*/"), "(", ")");
  auto const isWit = [](char teken) { return teken == ' ' || teken == '\t' || teken == '\n'; };
  kaal.erase(std::remove_if(kaal.begin(), kaal.end(), isWit), kaal.end());
  return kaal;
}

// Nothing where the text is no number, in decimal or hexadecimal, from -128 to 255.
std::optional<int> byteVan(std::string const& element) {
  bool const hexadecimaal = element.rfind("0x", 0) == 0;
  char const* const einde = element.data() + element.size();
  int waarde = 0;
  auto const gelezen = std::from_chars(element.data() + (hexadecimaal ? 2 : 0), einde, waarde,
                                       hexadecimaal ? 16 : 10);
  bool const goed = gelezen.ec == std::errc() && gelezen.ptr == einde;
  return goed && waarde >= -128 && waarde <= 255 ? std::optional<int>(waarde) : std::nullopt;
}

}  // namespace

SpeexEncodeConfig Instelling::config() const {
  return {static_cast<SpeexBandFormaat>(band),
          kwaliteit,
          complexiteit,
          static_cast<SpeexBitrateType>(soort),
          maxBitrate,
          gainBits,
          vad,
          denoise,
          agc};
}

std::vector<std::vector<int>> blokkenVan(std::vector<int> const& items, std::size_t wavFrames,
                                         std::size_t frame) {
  std::vector<std::vector<int>> blokken;
  std::vector<int> blok(frame, 0);
  for (std::size_t plaats = 0; plaats < wavFrames; plaats += frame) {
    std::size_t const einde = std::min(plaats + frame, items.size());
    std::copy(items.begin() + static_cast<std::ptrdiff_t>(plaats),
              items.begin() + static_cast<std::ptrdiff_t>(einde), blok.begin());
    blokken.push_back(blok);
  }
  return blokken;
}

LosseEncoder::LosseEncoder(Instelling const& keuze) : instelling(keuze), encoder(keuze.band) {
  zet(SPEEX_SET_QUALITY, keuze.kwaliteit);
  zet(SPEEX_SET_COMPLEXITY, keuze.complexiteit);
  zet(SPEEX_SET_VAD, keuze.vad ? 1 : 0);
  if (keuze.soort == 1) {
    zet(SPEEX_SET_VBR, 1);
    encoder.regel(SPEEX_SET_VBR_QUALITY, bitsAlsFloat(keuze.kwaliteit));
    zet(SPEEX_SET_VBR_MAX_BITRATE, keuze.maxBitrate);
  } else if (keuze.soort == 2) {
    zet(SPEEX_SET_ABR, 1);
  }
}

void LosseEncoder::zet(int verzoek, unsigned int waarde) {
  encoder.regel(verzoek, static_cast<spx_int32_t>(waarde));
}

Bytes LosseEncoder::encode(std::vector<int> const& samples) {
  return encoder.codeerBlok({samples.begin(), samples.end()});
}

Frames LosseEncoder::bestand(std::vector<int> const& samples) {
  return bestand(samples, samples.size());
}

Frames LosseEncoder::bestand(std::vector<int> const& items, std::size_t wavFrames) {
  Frames frames;
  for (std::vector<int> blok : blokkenVan(items, wavFrames, instelling.frame())) {
    std::transform(blok.begin(), blok.end(), blok.begin(),
                   [this](int sample) { return geschaald(sample, instelling.gainBits); });
    frames.push_back(encode(blok));
  }
  return frames;
}

std::vector<int> decodeer(Frames const& frames, int band) {
  DirecteDecoder decoder(band);
  std::vector<int> samples;
  std::vector<short> blok(bandFrames[static_cast<std::size_t>(band)]);
  for (Bytes const& frame : frames) {
    EXPECT_EQ(decoder.decodeer(frame, blok), 0);
    samples.insert(samples.end(), blok.begin(), blok.end());
  }
  return samples;
}

int geschaald(int sample, unsigned int bits) {
  int const deler = 1 << bits;
  int const naarNul = sample / deler;
  return sample % deler < 0 ? naarNul - 1 : naarNul;
}

std::vector<int> spraak(std::size_t aantal, int rate) {
  constexpr double toon = 190.0;
  constexpr double lettergreep = 4.0;
  constexpr double omtrek = 6.283185307179586;
  std::vector<int> samples = golf(aantal);
  std::size_t plaats = 0;
  std::transform(samples.begin(), samples.end(), samples.begin(), [&](int ruis) {
    double const tijd = static_cast<double>(plaats++) / rate;
    double const sterkte = std::max(0.0, std::sin(omtrek * lettergreep * tijd + 0.5));
    double const stem = std::sin(omtrek * toon * tijd) + 0.5 * std::sin(omtrek * 7 * toon * tijd);
    return static_cast<int>(sterkte * (15000 * stem + ruis / 8.0)) + ruis / 2048;
  });
  return samples;
}

Codering codeer(SpeexDesktopEncoder& encoder, std::string const& pad, bool metHeader) {
  wxMemoryOutputStream uit;
  Percentage verhouding(onaangeraakt);
  int const resultaat = encoder.encode(bestandsnaam(pad), uit, metHeader, verhouding);
  return {resultaat, tekstVan(uit), verhouding.geefWaarde()};
}

Codering codeer(Instelling const& instelling, std::string const& pad, bool metHeader) {
  SpeexDesktopEncoder encoder(instelling.config(), SpeexEncoderOpties());
  return codeer(encoder, pad, metHeader);
}

Bytes arrayBytes(std::string const& tekst) {
  std::istringstream elementen(kaleElementen(tekst));
  Bytes bytes;
  for (std::string element; std::getline(elementen, element, ',');) {
    std::optional<int> const byte = byteVan(element);
    if (!byte) {
      ADD_FAILURE() << "no byte: " << testing::PrintToString(element);
      return {};
    }
    bytes.push_back(static_cast<unsigned char>(*byte));
  }
  return bytes;
}

Frames framesIn(Bytes const& array, std::size_t vanaf) {
  Frames frames;
  std::size_t plaats = vanaf;
  while (plaats < array.size()) {
    std::size_t const einde = plaats + 1 + array[plaats];
    if (einde > array.size()) {
      ADD_FAILURE() << "the frame at " << plaats << " runs past the end of the array";
      return {};
    }
    frames.emplace_back(array.begin() + static_cast<std::ptrdiff_t>(plaats) + 1,
                        array.begin() + static_cast<std::ptrdiff_t>(einde));
    plaats = einde;
  }
  return frames;
}

Frames framesIn(std::string const& tekst) {
  constexpr std::size_t headerBytes = 4;
  return framesIn(arrayBytes(tekst), headerBytes);
}
