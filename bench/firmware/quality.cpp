// Encodes fragments with every encoder of the tool, decodes them as a target would, and measures
// how near to the originals they come. Every array has an encoder of its own, with the settings of
// a first start.
//
//   firmwareQuality FOLDER FRAGMENT.wav...
//
// Prints a line of tab-separated fields a case, below a line of their names: the bytes of the
// array, those a second of sound, and the two measures of quality in dB, the frequency-weighted one
// first. Files are left in FOLDER. Status 1 where a case gives no sound.
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "audio/codec/audioConfig.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/wavFormaat.h"
#include "audio/uitvoer/dacBreedte.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "audio/uitvoer/wavKeuring.h"
#include "audio/weergave/arrayMaker.h"
#include "audio/weergave/doelDecoder.h"
#include "audio/weergave/kwaliteit.h"
#include "kestrolin_dac.h"

namespace {

constexpr unsigned int fullBits = sampleBits;

struct Fragment {
  wxFileName file;
  int rate;  // Hz
  Samples samples;
};

struct Case {
  std::string encoder;
  std::string setting;
  ArrayBytes array;
  Samples samples;
  double scale;  // from these samples to those of the original
};

Fragment readFragment(std::string const& path) {
  wxFileName const file(path);
  SndBestand sound = SndBestand::lees(file);
  Samples samples(static_cast<std::size_t>(sound.info().frames));
  sound.leesItems(samples.data(), static_cast<sf_count_t>(samples.size()));
  return {file, sound.info().samplerate, samples};
}

// These samples under the fragment's own name, in a folder for this format.
wxFileName writeCopy(Fragment const& fragment, Samples const& samples, std::string const& folder,
                     int format) {
  wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
  wxFileName const copy(folder, fragment.file.GetFullName());
  SndBestand::schrijf(copy, fragment.rate, 1, format)
      .schrijfItems(samples.data(), static_cast<sf_count_t>(samples.size()));
  return copy;
}

double scaleOf(unsigned int dacBits) {
  return std::exp2(fullBits - dacBits);
}

KestrolinConfig settingsFor(unsigned int dacBits) {
  return eersteInstellingen(UitvoerTaalC, dacBits);
}

// A case of the array that an encoder makes of this file, and of what a target plays of that.
Case caseOf(std::string const& encoder, std::string const& setting, ArraySoort kind,
            KestrolinConfig const& settings, wxFileName const& wav, double scale) {
  wxString const image = wxFileName::CreateTempFileName(wxString());
  ArrayBytes const array = maakArray(kind, settings, wav, image);
  wxRemoveFile(image);
  return {encoder, setting, array, DoelDecoder().decodeer(kind, array).samples, scale};
}

Case pcmCase(Fragment const& fragment, unsigned int dacBits) {
  return caseOf("PCM", std::to_string(dacBits) + "-bit DAC", ArraySoort::pcm, settingsFor(dacBits),
                fragment.file, scaleOf(dacBits));
}

Case adpcmCase(wxFileName const& wav, std::string const& setting, double scale) {
  return caseOf("ADPCM", setting, ArraySoort::adpcm, settingsFor(fullBits), wav, scale);
}

Case embeddedCase(wxFileName const& wav, std::string const& format) {
  return caseOf("Embedded WAV", format, ArraySoort::wav, settingsFor(fullBits), wav, 1);
}

Case speexCase(Fragment const& fragment, unsigned int quality, unsigned int dacBits) {
  std::string setting = "quality " + std::to_string(quality);
  if (dacBits != fullBits) {
    setting += ", " + std::to_string(dacBits) + "-bit DAC";
  }
  KestrolinConfig settings = settingsFor(dacBits);
  settings.speexFormat = bandVoorFrequentie(fragment.rate);
  settings.speexQuality = quality;
  return caseOf("Speex", setting, ArraySoort::speex, settings, fragment.file, scaleOf(dacBits));
}

// Encoded at full width, and narrowed behind the decoder.
Case speexNarrowedCase(Fragment const& fragment, unsigned int quality) {
  constexpr int mid = 128;
  Case narrowed = speexCase(fragment, quality, fullBits);
  std::transform(
      narrowed.samples.begin(), narrowed.samples.end(), narrowed.samples.begin(), [](short sample) {
        return static_cast<short>(kestrolin_dac_code_from(sample, fullBits, KESTROLIN_DAC_8) - mid);
      });
  narrowed.setting += ", narrowed to 8 bits on the target";
  narrowed.scale = scaleOf(8);
  return narrowed;
}

std::vector<Case> casesOf(Fragment const& fragment, std::string const& folder) {
  std::vector<Case> cases;
  std::transform(dacBreedten.begin(), dacBreedten.end(), std::back_inserter(cases),
                 [&fragment](long long dacBits) {
                   return pcmCase(fragment, static_cast<unsigned int>(dacBits));
                 });
  cases.push_back(embeddedCase(fragment.file, "PCM"));
  cases.push_back(
      embeddedCase(writeCopy(fragment, fragment.samples, folder + "/ima", wavAdpcm), "IMA ADPCM"));
  cases.push_back(
      adpcmCase(writeCopy(fragment, brengOmlaag(fragment.samples), folder + "/quiet", wavPcm16),
                "brought down", 1 / adpcmVolume));
  // The encoder kept eight bits of each sample.
  cases.push_back(adpcmCase(fragment.file, "as it is", scaleOf(8)));
  for (unsigned int const quality : {0U, 2U, 4U, 6U, 8U, 10U}) {
    cases.push_back(speexCase(fragment, quality, fullBits));
  }
  cases.push_back(speexCase(fragment, 8, 8));
  cases.push_back(speexNarrowedCase(fragment, 8));
  return cases;
}

bool reportCase(Fragment const& fragment, Case const& heard) {
  std::optional<Kwaliteit> const quality = meetKwaliteit(
      opSchaal(fragment.samples, 1), opSchaal(heard.samples, heard.scale), fragment.rate);
  auto const duration = static_cast<double>(fragment.samples.size()) / fragment.rate;
  auto const bytes = heard.array.size();
  std::cout << fragment.file.GetName() << '\t' << heard.encoder << '\t' << heard.setting << '\t'
            << bytes << '\t' << std::lround(static_cast<double>(bytes) / duration);
  if (quality) {
    std::cout << '\t' << quality->banden << '\t' << quality->golven;
  }
  std::cout << '\n';
  return quality.has_value();
}

bool reportFragment(std::string const& path, std::string const& folder) {
  Fragment const fragment = readFragment(path);
  if (fragment.samples.empty()) {
    std::cerr << "firmwareQuality: no sound could be read from " << path << "\n";
    return false;
  }
  std::vector<Case> const cases = casesOf(fragment, folder);
  auto const good = std::count_if(cases.begin(), cases.end(),
                                  [&](Case const& each) { return reportCase(fragment, each); });
  return good == static_cast<std::ptrdiff_t>(cases.size());
}

}  // namespace

int main(int argc, char** argv) {
  wxInitializer const toolkit;
  std::vector<std::string> const arguments(argv + 1, argv + argc);
  if (!toolkit.IsOk() || arguments.size() < 2) {
    std::cerr << "usage: firmwareQuality FOLDER FRAGMENT.wav...\n";
    return 1;
  }
  wxLog::SetLogLevel(wxLOG_Warning);
  std::cout << std::fixed << std::setprecision(6)
            << "fragment\tencoder\tsetting\tbytes\trate\tquality\twave\n";
  auto const good = std::count_if(
      arguments.begin() + 1, arguments.end(),
      [&](std::string const& fragment) { return reportFragment(fragment, arguments.front()); });
  return good == static_cast<std::ptrdiff_t>(arguments.size()) - 1 ? 0 : 1;
}
