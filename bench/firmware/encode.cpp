#include "bench/firmware/encode.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/uitvoerTaal.h"
#include "audio/codec/wavInbedding.h"
#include "externals/software/extern/speex/speexDesktop.h"
#include "numeriek/percentage.h"

namespace {

constexpr unsigned int sampleBits = 16;

// Appends the elements in a line between the braces of an array.
void appendElements(std::string const& line, ArrayBytes& bytes) {
  static std::regex const clutter(R"(/\*.*?\*/|\(signed char\))");
  static std::regex const number("0x[0-9a-f]+|-?[0-9]+");
  std::string const bare = std::regex_replace(line, clutter, "");
  std::transform(std::sregex_iterator(bare.begin(), bare.end(), number), std::sregex_iterator(),
                 std::back_inserter(bytes), [](std::smatch const& match) {
                   return static_cast<unsigned char>(std::strtol(match.str().c_str(), nullptr, 0));
                 });
}

// The bytes of the one array in a text.
ArrayBytes arrayIn(wxMemoryOutputStream const& stream) {
  std::string content(stream.GetSize(), '\0');
  stream.CopyTo(content.data(), content.size());
  std::istringstream text(content);
  std::string line;
  while (std::getline(text, line) && line != "{") {
  }
  ArrayBytes bytes;
  while (std::getline(text, line) && line != "};") {
    appendElements(line, bytes);
  }
  return bytes;
}

}  // namespace

ArrayBytes pcmArray(wxFileName const& wav, unsigned int dacBits) {
  wxMemoryOutputStream text;
  PCMDesktopConverter(PCMEncoderOpties(PCMTaalC, sampleBits - dacBits))
      .codeerBestand(wav, true, text);
  return arrayIn(text);
}

ArrayBytes adpcmArray(wxFileName const& wav) {
  wxMemoryOutputStream text;
  ADPCMDesktopConverter(ADPCMEncoderOpties(ADPCMTaalC, 0)).codeerBestand(wav, true, text);
  return arrayIn(text);
}

ArrayBytes speexArray(wxFileName const& wav, int rate, unsigned int quality, unsigned int dacBits) {
  constexpr unsigned int complexity = 3;
  auto const& rates = SpeexBasis::standaardSampFreqs;
  auto const band = std::distance(rates.begin(), std::find(rates.begin(), rates.end(), rate));
  SpeexDesktopEncoder encoder(
      SpeexEncodeConfig(static_cast<SpeexBandFormaat>(band), quality, complexity, SpeexFixedBitrate,
                        0, sampleBits - dacBits, true, true, true),
      SpeexEncoderOpties());
  wxMemoryOutputStream text;
  Percentage ratio;
  return encoder.encode(wav, text, true, ratio) == SpeexDesktopEncoder::gelukt ? arrayIn(text)
                                                                               : ArrayBytes();
}

ArrayBytes embeddedArray(wxFileName const& wav) {
  wxMemoryOutputStream text;
  schrijfInbedding(wav, {UitvoerTaalC, wxString(), sampleBits}, text);
  return arrayIn(text);
}
