#include <algorithm>
#include <cstddef>
#include <memory>

#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/speexHulp.h"
#include "tests/firmware/texts/program.h"

namespace {

struct SpeexSource {
  Source source;
  Instelling instelling;
};

SpeexSource speech(std::string const& name, std::size_t count, Instelling const& instelling) {
  return {{name, instelling.rate(), spraak(count, instelling.rate())}, instelling};
}

// Whole frames and not; frames of one size and of several.
std::vector<SpeexSource> speexSources() {
  Instelling narrow;
  Instelling wide;
  wide.band = 1;
  wide.soort = 1;
  Instelling ultraWide;
  ultraWide.band = 2;
  ultraWide.kwaliteit = 10;
  return {speech("narrow", 1601, narrow), speech("narrow_whole", 800, narrow),
          speech("narrow_short", 7, narrow), speech("wide", 3000, wide),
          speech("ultra_wide", 3001, ultraWide)};
}

struct EncoderEnd {
  void operator()(void* state) const { speex_encoder_destroy(state); }
};
struct DecoderEnd {
  void operator()(void* state) const { speex_decoder_destroy(state); }
};

// What coder and decoder look ahead between them, as the library tells it.
unsigned delayOf(int band) {
  std::unique_ptr<void, EncoderEnd> const encoder(speex_encoder_init(directeModus(band)));
  std::unique_ptr<void, DecoderEnd> const decoder(speex_decoder_init(directeModus(band)));
  spx_int32_t coding = 0;
  spx_int32_t decoding = 0;
  speex_encoder_ctl(encoder.get(), SPEEX_GET_LOOKAHEAD, &coding);
  speex_decoder_ctl(decoder.get(), SPEEX_GET_LOOKAHEAD, &decoding);
  return static_cast<unsigned>(coding + decoding);
}

Record expectedOf(SpeexSource const& fragment, Setting const& setting) {
  std::vector<int> const& samples = fragment.source.samples;
  Instelling const& instelling = fragment.instelling;
  Record record;
  record.rate = static_cast<unsigned>(instelling.rate());
  record.frameSamples = static_cast<unsigned>(directeFrameSize(instelling.band));
  record.mode = static_cast<unsigned>(instelling.band);
  record.delay = delayOf(instelling.band);
  record.frames = LosseEncoder(instelling).bestand(samples);
  record.speexFrames = static_cast<unsigned>(record.frames.size());
  record.samples = decodeer(record.frames, instelling.band);
  record.codes = expectedCodes(record.samples, setting.width, setting.width);
  record.count = static_cast<unsigned>(setting.header ? samples.size() : record.samples.size());
  return record;
}

}  // namespace

Program speexProgram(std::string const& folder, UitvoerTaal language) {
  Program program{Kind::Speex, language, {}, {}};
  SpeexEncoderOpties const options =
      language == UitvoerTaalCPP ? SpeexEncoderOpties(className) : SpeexEncoderOpties();
  for (Setting const& setting : allSettings()) {
    for (SpeexSource fragment : speexSources()) {
      fragment.instelling.gainBits = setting.shift();
      std::string const name = nameOf(fragment.source, setting);
      std::string const path = wavPath(folder, name);
      schrijfWav(path, fragment.source.samples, {fragment.source.rate});
      SpeexDesktopEncoder encoder(fragment.instelling.config(), options);
      program.text += codeer(encoder, path, setting.header).tekst;
      program.fragments.push_back({name, setting, expectedOf(fragment, setting)});
    }
  }
  return program;
}
