// WAV images for the tests, put together chunk by chunk.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kestrolin_wav.h"
#include "tests/steun/bytes.h"

// What a chunk "fmt " says.
struct WavFormat {
  unsigned int format = KESTROLIN_WAV_PCM;
  unsigned int channels = 1;
  unsigned int rate = 8000;    // Hz
  unsigned int blockSize = 2;  // bytes
  unsigned int bits = 16;
  Bytes extra;  // behind these: of IMA ADPCM two bytes, and the samples a block

  Bytes chunk() const;
};

// 16-bit PCM.
WavFormat pcmFormat(unsigned int channels, unsigned int rate = 8000);
// IMA ADPCM with `groups` of eight codes a channel in a block.
WavFormat imaFormat(unsigned int channels, unsigned int groups, unsigned int rate = 8000);
// Blocks for such a format: noise, but for the index, which is 88.
Bytes imaBlocks(WavFormat const& format, std::size_t count);

// With the byte behind a content of odd size.
Bytes chunk(std::string const& name, Bytes const& content);
Bytes riff(std::vector<Bytes> const& chunks);
// An image of a format and a sound.
Bytes wavImage(WavFormat const& format, Bytes const& sound);

// Opened from an exact copy, which is gone afterwards; a reader that is refused has to be empty.
kestrolin_status wavOpening(Bytes const& image);
// All samples; nothing where the image is refused.
std::optional<std::vector<int>> wavSamples(Bytes const& image, std::size_t room = 100);
