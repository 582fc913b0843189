// Programs of PCM and of ADPCM.
#include <cstddef>

#include "audio/codec/pcmDesktopConverter.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/firmware/texts/program.h"

namespace {

// Both sides of zero, of the steps of every width, and of the range.
std::vector<int> edges() {
  return {0,   1,    -1,   3,    -3,    4,    -4,    15,    -15,    16,    -16,
          63,  -63,  64,   -64,  127,   -127, 128,   -128,  -129,   255,   -255,
          256, -256, -257, 1023, -1024, 4095, -4096, 32767, -32767, -32768};
}

std::vector<Source> pcmSources() {
  return {{"pcm_edges", 8000, edges()},
          {"pcm_long", 16000, golf(1999)},
          {"pcm_odd", 32000, golf(3)},
          {"pcm_high", 44100, golf(1000)},
          {"pcm_empty", 11025, {}}};
}

// In this order through one coder.
std::vector<Source> adpcmSources() {
  std::vector<int> later = golf(2500);
  later.erase(later.begin(), later.begin() + 1300);
  return {{"adpcm_first", 8000, golf(1301)},
          {"adpcm_second", 8000, later},
          {"adpcm_odd", 16000, golf(3)},
          {"adpcm_single", 32000, golf(1)},
          {"adpcm_edges", 32000, edges()}};
}

TextFragment pcmFragment(Source const& source, Setting const& setting) {
  TextFragment fragment{nameOf(source, setting), setting, {}};
  fragment.expected.rate = static_cast<unsigned>(source.rate);
  fragment.expected.samples = gedeeld(source.samples, setting.divisor());
  fragment.expected.count = static_cast<unsigned>(source.samples.size());
  fragment.expected.codes = expectedCodes(fragment.expected.samples, setting.width, setting.width);
  return fragment;
}

// What the model's coder and decoder make of it, each from where it stands.
TextFragment adpcmFragment(Source const& source, Setting const& setting, AdpcmStand& coder,
                           AdpcmStand& decoder) {
  TextFragment fragment{nameOf(source, setting), setting, {}};
  fragment.expected.rate = static_cast<unsigned>(source.rate);
  fragment.expected.samples =
      modelSamples(decoder, modelBytes(coder, source.samples, setting.divisor()));
  fragment.expected.count = static_cast<unsigned>(source.samples.size() / 2 * 2);
  if (setting.width > 8) {
    fragment.expected.codes =
        expectedCodes(fragment.expected.samples, setting.width - 8, setting.width);
  }
  return fragment;
}

}  // namespace

Program pcmProgram(std::string const& folder, UitvoerTaal language) {
  Program program{Kind::Pcm, language, {}, {}};
  for (Setting const& setting : allSettings()) {
    PCMDesktopConverter const converter(
        PCMEncoderOpties(static_cast<PCMEncoderTaal>(language), className, setting.shift()));
    for (Source const& source : pcmSources()) {
      TextFragment const fragment = pcmFragment(source, setting);
      schrijfWav(wavPath(folder, fragment.name), source.samples, {source.rate});
      wxMemoryOutputStream text;
      converter.codeerBestand(bestandsnaam(wavPath(folder, fragment.name)), setting.header, text);
      program.text += tekstVan(text);
      program.fragments.push_back(fragment);
    }
  }
  return program;
}

Program adpcmProgram(std::string const& folder, UitvoerTaal language) {
  Program program{Kind::Adpcm, language, {}, {}};
  for (Setting const& setting : allSettings()) {
    ADPCMDesktopConverter converter = converterMet(
        ADPCMEncoderOpties(static_cast<ADPCMEncoderTaal>(language), className, setting.shift()));
    AdpcmStand coder;
    AdpcmStand decoder;
    bool first = true;
    for (Source const& source : adpcmSources()) {
      TextFragment fragment = adpcmFragment(source, setting, coder, decoder);
      fragment.resumed = !first;
      first = false;
      schrijfWav(wavPath(folder, fragment.name), source.samples, {source.rate});
      program.text += adpcmTekst(converter, wavPath(folder, fragment.name), setting.header);
      program.fragments.push_back(fragment);
    }
  }
  return program;
}
