#include "tests/firmware/wavImage.h"

#include "tests/firmware/arrayHelp.h"

Bytes WavFormat::chunk() const {
  return ::chunk("fmt ", joined({laagEerst(format, 2), laagEerst(channels, 2), laagEerst(rate, 4),
                                 laagEerst(0x55555555, 4), laagEerst(blockSize, 2),
                                 laagEerst(bits, 2), extra}));
}

WavFormat pcmFormat(unsigned int channels, unsigned int rate) {
  return {KESTROLIN_WAV_PCM, channels, rate, 2 * channels, 16, {}};
}

WavFormat imaFormat(unsigned int channels, unsigned int groups, unsigned int rate) {
  return {KESTROLIN_WAV_IMA_ADPCM,     channels, rate,
          4 * channels * (1 + groups), 4,        joined({{2, 0}, laagEerst(1 + 8 * groups, 2)})};
}

Bytes imaBlocks(WavFormat const& format, std::size_t count) {
  Bytes blocks = noise(count * format.blockSize);
  for (std::size_t block = 0; block < blocks.size(); block += format.blockSize) {
    for (std::size_t channel = 0; channel < format.channels; ++channel) {
      blocks.at(block + 4 * channel + 2) = KESTROLIN_IMA_INDEX_MAX;
    }
  }
  return blocks;
}

Bytes chunk(std::string const& name, Bytes const& content) {
  return joined({Bytes(name.begin(), name.end()), laagEerst(content.size(), 4), content,
                 Bytes(content.size() % 2)});
}

Bytes riff(std::vector<Bytes> const& chunks) {
  Bytes const content = joined(chunks);
  return joined(
      {{'R', 'I', 'F', 'F'}, laagEerst(content.size() + 4, 4), {'W', 'A', 'V', 'E'}, content});
}

Bytes wavImage(WavFormat const& format, Bytes const& sound) {
  return riff({format.chunk(), chunk("data", sound)});
}

kestrolin_status wavOpening(Bytes const& image) {
  return answerOf(image, kestrolin_wav_open, kestrolin_wav_read);
}

std::optional<std::vector<int>> wavSamples(Bytes const& image, std::size_t room) {
  return samplesOf(image, kestrolin_wav_open, kestrolin_wav_read, room);
}
