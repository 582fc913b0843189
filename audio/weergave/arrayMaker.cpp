#include "audio/weergave/arrayMaker.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <string_view>

#include "audio/codec/uitvoerTaal.h"
#include "audio/uitvoer/speexMaker.h"
#include "audio/weergave/arrayElementen.h"
#include "audio/weergave/tekstWoorden.h"

namespace {

// The bytes of the one array in a fragment, whatever the name of that array is: a compiler would
// refuse some.
ArrayBytes leesFragment(std::string_view fragment, ArraySoort soort) {
  constexpr std::string_view opening = "\n{\n";
  std::size_t const begin = fragment.find(opening);
  if (begin == std::string_view::npos) {
    return {};
  }
  TekstWoorden woorden(fragment.substr(begin + opening.size()));
  ArrayBytes bytes;
  bool const isHeel = !ElementLezer(woorden, soort == ArraySoort::speex).lees(bytes);
  return isHeel ? bytes : ArrayBytes();
}

}  // namespace

std::unique_ptr<FragmentMaker> maakMaker(ArraySoort soort, wxString const& beeld) {
  switch (soort) {
    case ArraySoort::speex:
      return std::make_unique<SpeexMaker>();
    case ArraySoort::adpcm:
      return std::make_unique<ADPCMMaker>();
    case ArraySoort::pcm:
      return std::make_unique<PCMMaker>();
    case ArraySoort::wav:
      break;
  }
  return std::make_unique<WAVMaker>(beeld);
}

ArrayBytes maakArray(ArraySoort soort, KestrolinConfig instellingen, wxFileName const& wav,
                     wxString const& beeld) {
  instellingen.speexOutputLanguage = UitvoerTaalC;
  std::unique_ptr<FragmentMaker> const maker = maakMaker(soort, beeld);
  maker->begin(instellingen, wxString(), 1);
  wxMemoryOutputStream uit;
  if (maker->maak(wav, true, uit) != Gemaakt::heel) {
    return {};
  }
  std::string fragment(uit.GetSize(), '\0');
  uit.CopyTo(fragment.data(), fragment.size());
  return leesFragment(fragment, soort);
}

std::vector<short> brengOmlaag(std::vector<short> const& samples) {
  std::vector<short> zacht(samples.size());
  std::transform(samples.begin(), samples.end(), zacht.begin(), [](short sample) {
    return static_cast<short>(std::lround(sample * adpcmVolume));
  });
  return zacht;
}
