#include "bench/firmware/encode.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>

#include "audio/codec/audioConfig.h"
#include "audio/uitvoer/speexMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "audio/uitvoer/wavKeuring.h"

namespace {

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

// The array that the tool makes of a recording, empty where it makes none.
ArrayBytes arrayOf(FragmentMaker& maker, KestrolinConfig const& settings, wxFileName const& wav) {
  wxMemoryOutputStream text;
  maker.begin(settings, wxString(), 1);
  return maker.maak(wav, true, text) == Gemaakt::mislukt ? ArrayBytes() : arrayIn(text);
}

}  // namespace

ArrayBytes pcmArray(wxFileName const& wav, unsigned int dacBits) {
  PCMMaker maker;
  return arrayOf(maker, eersteInstellingen(UitvoerTaalC, dacBits), wav);
}

ArrayBytes adpcmArray(wxFileName const& wav) {
  ADPCMMaker maker;
  return arrayOf(maker, eersteInstellingen(UitvoerTaalC, sampleBits), wav);
}

ArrayBytes speexArray(wxFileName const& wav, int rate, unsigned int quality, unsigned int dacBits) {
  KestrolinConfig settings = eersteInstellingen(UitvoerTaalC, dacBits);
  settings.speexFormat = bandVoorFrequentie(rate);
  settings.speexQuality = quality;
  SpeexMaker maker;
  return arrayOf(maker, settings, wav);
}

ArrayBytes embeddedArray(wxFileName const& wav) {
  WAVMaker maker;
  return arrayOf(maker, eersteInstellingen(UitvoerTaalC, sampleBits), wav);
}
