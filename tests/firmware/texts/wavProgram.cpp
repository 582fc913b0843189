// The program of embedded WAV files.
#include <cstddef>

#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/firmware/texts/program.h"
#include "tests/steun/omgevingsWaarde.h"

namespace {

struct WavSource {
  Source source;
  int channels;
  int format;  // of libsndfile
};

// IMA ADPCM in more than one block each.
std::vector<WavSource> wavSources() {
  return {{{"wav_mono", 8000, golf(1501)}, 1, wavPcm16},
          {{"wav_stereo", 32000, golf(1802)}, 2, wavPcm16},
          {{"wav_ima_mono", 16000, golf(1300)}, 1, wavAdpcm},
          {{"wav_ima_stereo", 8000, golf(4000)}, 2, wavAdpcm}};
}

// Of the interleaved values as many as the file has frames, in whole frames.
std::vector<int> embedded(std::string const& path, int bits) {
  SndInhoud const content = leesSnd(path);
  sf_count_t const count = content.info.frames - content.info.frames % content.info.channels;
  return geschaald({content.waarden.begin(), content.waarden.begin() + count}, bits);
}

// What libsndfile hears in the values, coded and decoded again where the format asks for that.
std::vector<int> heard(std::string const& folder, std::vector<int> const& values,
                       WavSource const& fragment) {
  if (fragment.format == wavPcm16) {
    return values;
  }
  std::string const path = folder + "/expected.wav";
  schrijfSnd(path, values, {fragment.source.rate, fragment.channels}, fragment.format);
  return leesSnd(path).waarden;
}

}  // namespace

Program wavProgram(std::string const& folder, UitvoerTaal language) {
  Program program{Kind::Wav, language, {}, {}};
  OmgevingsWaarde const images("TMPDIR", folder);
  for (Setting const& setting : {Setting{8}, Setting{10}, Setting{12}, Setting{16}}) {
    auto const bits = static_cast<int>(setting.width);
    for (WavSource const& fragment : wavSources()) {
      std::string const name = nameOf(fragment.source, setting);
      std::string const path = wavPath(folder, name);
      schrijfSnd(path, fragment.source.samples, {fragment.source.rate, fragment.channels},
                 fragment.format);
      wxMemoryOutputStream text;
      schrijfInbedding(bestandsnaam(path), {language, className, bits}, text);
      program.text += tekstVan(text);

      Record expected;
      expected.rate = static_cast<unsigned>(fragment.source.rate);
      expected.channels = static_cast<unsigned>(fragment.channels);
      expected.samples = heard(folder, embedded(path, bits), fragment);
      expected.count = static_cast<unsigned>(expected.samples.size());
      expected.codes = expectedCodes(expected.samples, setting.width, setting.width);
      program.fragments.push_back({name, setting, expected});
    }
  }
  return program;
}
