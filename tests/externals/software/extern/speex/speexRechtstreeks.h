// The Speex library driven by the test itself: what the classes over it are compared with.
#pragma once

#include <speex/speex.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "tests/steun/bytes.h"

using Frames = std::vector<Bytes>;

// By band: the sampling frequency in Hz, and the samples in a frame.
constexpr std::array<int, 3> bandRates{8000, 16000, 32000};
constexpr std::array<std::size_t, 3> bandFrames{160, 320, 640};

// 0 is narrowband, 1 wideband, 2 ultra wideband.
SpeexMode const* directeModus(int band);
// As the library tells it.
std::size_t directeFrameSize(int band);

class DirecteBits {
 public:
  DirecteBits() { speex_bits_init(&bits); }
  ~DirecteBits() { speex_bits_destroy(&bits); }
  DirecteBits(DirecteBits const&) = delete;
  DirecteBits& operator=(DirecteBits const&) = delete;
  DirecteBits(DirecteBits&&) = delete;
  DirecteBits& operator=(DirecteBits&&) = delete;

  SpeexBits& geef() { return bits; }

 private:
  SpeexBits bits{};
};

class DirecteEncoder {
 public:
  explicit DirecteEncoder(int band) : toestand(speex_encoder_init(directeModus(band))) {}

  // The value reaches the library with the type that it has here.
  template <typename Soort>
  void regel(int verzoek, Soort waarde) {
    speex_encoder_ctl(toestand.get(), verzoek, &waarde);
  }
  // The whole frames in `samples`.
  std::vector<Bytes> codeer(std::vector<std::int16_t> const& samples);
  // The one frame of these samples, which may lie beyond 16 bits.
  Bytes codeerBlok(std::vector<float> const& samples);

 private:
  struct Einde {
    void operator()(void* einde) const { speex_encoder_destroy(einde); }
  };

  std::unique_ptr<void, Einde> toestand;
};

class DirecteDecoder {
 public:
  explicit DirecteDecoder(int band, bool verbetering = true);

  std::vector<short> decodeer(Bytes const& frame);
  // Into `blok`, which a frame that gives no samples leaves as it is. Returns what the library
  // says.
  int decodeer(Bytes const& frame, std::vector<short>& blok);

 private:
  struct Einde {
    void operator()(void* einde) const { speex_decoder_destroy(einde); }
  };

  std::unique_ptr<void, Einde> toestand;
};

// The whole frames in `samples`, by an encoder that is set up already.
std::vector<Bytes> codeerFrames(void* encoder, SpeexBits& bits,
                                std::vector<std::int16_t> const& samples);
// One frame by a decoder that is set up already.
std::vector<short> decodeerFrame(void* decoder, SpeexBits& bits, Bytes const& frame);

// Noise that swells and dies away, with silence at both ends, over `frames` frames of the band.
std::vector<std::int16_t> directeSamples(int band, std::size_t frames);
// The same, encoded at a constant bit rate of quality 8: frames of one size.
std::vector<Bytes> directeFrames(int band, std::size_t frames);
