#include "bench/firmware/decode.h"

#include <speex/speex.h>

#include <algorithm>
#include <cstddef>
#include <memory>

#include "kestrolin_adpcm.h"
#include "kestrolin_pcm.h"
#include "kestrolin_speex.h"
#include "kestrolin_wav.h"

namespace {

// What the readers of sample after sample have in common.
template <typename Reader>
Samples samplesOf(ArrayBytes const& array,
                  kestrolin_status (*open)(Reader*, unsigned char const*, std::size_t),
                  std::size_t (*read)(Reader*, short*, std::size_t)) {
  Reader reader{};
  if (open(&reader, array.data(), array.size()) != KESTROLIN_OK) {
    return {};
  }
  Samples samples(reader.left);
  samples.resize(read(&reader, samples.data(), samples.size()));
  return samples;
}

class Decoder {
 public:
  explicit Decoder(kestrolin_speex const& speex)
      : state(speex_decoder_init(speex_lib_get_mode(speex.mode))), block(speex.frame_samples) {
    speex_bits_init(&bits);
    int enhance = 1;
    speex_decoder_ctl(state.get(), SPEEX_SET_ENH, &enhance);
  }
  ~Decoder() { speex_bits_destroy(&bits); }
  Decoder(Decoder const&) = delete;
  Decoder& operator=(Decoder const&) = delete;
  Decoder(Decoder&&) = delete;
  Decoder& operator=(Decoder&&) = delete;

  Samples const& decode(char const* frame, int size) {
    speex_bits_read_from(&bits, frame, size);
    speex_decode_int(state.get(), size > 0 ? &bits : nullptr, block.data());
    return block;
  }

 private:
  struct End {
    void operator()(void* decoder) const { speex_decoder_destroy(decoder); }
  };

  std::unique_ptr<void, End> state;
  SpeexBits bits{};
  Samples block;
};

}  // namespace

Samples pcmSamples(ArrayBytes const& array) {
  return samplesOf(array, kestrolin_pcm_open, kestrolin_pcm_read);
}

Samples adpcmSamples(ArrayBytes const& array) {
  return samplesOf(array, kestrolin_adpcm_open, kestrolin_adpcm_read);
}

Samples embeddedSamples(ArrayBytes const& array) {
  return samplesOf(array, kestrolin_wav_open, kestrolin_wav_read);
}

Samples speexSamples(ArrayBytes const& array) {
  std::vector<signed char> const elements(array.begin(), array.end());
  kestrolin_speex speex{};
  if (kestrolin_speex_open(&speex, elements.data(), elements.size()) != KESTROLIN_OK) {
    return {};
  }
  Decoder decoder(speex);
  Samples samples;
  char const* frame = nullptr;
  int size = 0;
  while (kestrolin_speex_next(&speex, &frame, &size) == KESTROLIN_OK) {
    Samples const& block = decoder.decode(frame, size);
    samples.insert(samples.end(), block.begin(), block.end());
  }
  std::size_t const delay = std::min<std::size_t>(kestrolin_speex_delay(&speex), samples.size());
  samples.erase(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(delay));
  return samples;
}
