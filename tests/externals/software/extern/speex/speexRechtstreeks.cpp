#include "tests/externals/software/extern/speex/speexRechtstreeks.h"

#include <algorithm>
#include <iterator>

#include "tests/steun/wavMaker.h"

namespace {

template <typename Regelaar>
std::size_t frameSizeVan(void* toestand, Regelaar regelaar) {
  spx_int32_t samples = 0;
  regelaar(toestand, SPEEX_GET_FRAME_SIZE, &samples);
  return static_cast<std::size_t>(samples);
}

Bytes codeerFrame(void* encoder, SpeexBits& bits, std::vector<float> samples) {
  Bytes frame(400);
  speex_bits_reset(&bits);
  speex_encode(encoder, samples.data(), &bits);
  int const grootte = speex_bits_write(&bits, reinterpret_cast<char*>(frame.data()),
                                       static_cast<int>(frame.size()));
  frame.resize(static_cast<std::size_t>(grootte));
  return frame;
}

int decodeerIn(void* decoder, SpeexBits& bits, Bytes const& frame, std::vector<short>& blok) {
  std::vector<char> const bron(frame.begin(), frame.end());
  speex_bits_read_from(&bits, bron.data(), static_cast<int>(bron.size()));
  return speex_decode_int(decoder, &bits, blok.data());
}

}  // namespace

SpeexMode const* directeModus(int band) {
  return speex_lib_get_mode(band);
}

std::size_t directeFrameSize(int band) {
  int samples = 0;
  speex_mode_query(directeModus(band), SPEEX_MODE_FRAME_SIZE, &samples);
  return static_cast<std::size_t>(samples);
}

std::vector<Bytes> DirecteEncoder::codeer(std::vector<std::int16_t> const& samples) {
  DirecteBits bits;
  return codeerFrames(toestand.get(), bits.geef(), samples);
}

Bytes DirecteEncoder::codeerBlok(std::vector<float> const& samples) {
  DirecteBits bits;
  return codeerFrame(toestand.get(), bits.geef(), samples);
}

DirecteDecoder::DirecteDecoder(int band, bool verbetering)
    : toestand(speex_decoder_init(directeModus(band))) {
  spx_int32_t aan = verbetering ? 1 : 0;
  speex_decoder_ctl(toestand.get(), SPEEX_SET_ENH, &aan);
}

std::vector<short> DirecteDecoder::decodeer(Bytes const& frame) {
  DirecteBits bits;
  return decodeerFrame(toestand.get(), bits.geef(), frame);
}

int DirecteDecoder::decodeer(Bytes const& frame, std::vector<short>& blok) {
  DirecteBits bits;
  return decodeerIn(toestand.get(), bits.geef(), frame, blok);
}

std::vector<Bytes> codeerFrames(void* encoder, SpeexBits& bits,
                                std::vector<std::int16_t> const& samples) {
  auto const stap = static_cast<std::ptrdiff_t>(frameSizeVan(encoder, speex_encoder_ctl));
  std::vector<Bytes> frames;
  for (auto begin = samples.begin(); std::distance(begin, samples.end()) >= stap; begin += stap) {
    frames.push_back(codeerFrame(encoder, bits, {begin, begin + stap}));
  }
  return frames;
}

std::vector<short> decodeerFrame(void* decoder, SpeexBits& bits, Bytes const& frame) {
  std::vector<short> samples(frameSizeVan(decoder, speex_decoder_ctl));
  decodeerIn(decoder, bits, frame, samples);
  return samples;
}

std::vector<std::int16_t> directeSamples(int band, std::size_t frames) {
  std::vector<std::int16_t> samples = proefSamples(frames * directeFrameSize(band));
  auto const aantal = static_cast<double>(samples.size());
  double plaats = 0;
  std::transform(samples.begin(), samples.end(), samples.begin(), [&](std::int16_t sample) {
    double const deel = plaats++ / aantal;
    double const sterkte = std::max(0.0, deel * (1 - deel) * 4 - 0.5);
    return static_cast<std::int16_t>(sample * sterkte);
  });
  return samples;
}

std::vector<Bytes> directeFrames(int band, std::size_t frames) {
  DirecteEncoder encoder(band);
  encoder.regel(SPEEX_SET_QUALITY, spx_int32_t{8});
  return encoder.codeer(directeSamples(band, frames));
}
