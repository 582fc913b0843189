#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"

#include <algorithm>

namespace {

// A number's low bytes, lowest first, and highest first.
std::string klein(std::uint32_t waarde, int bytes) {
  std::string uit;
  for (int i = 0; i < bytes; ++i) {
    uit += static_cast<char>((waarde >> (8U * static_cast<unsigned>(i))) & 0xFFU);
  }
  return uit;
}

std::string groot(std::uint32_t waarde, int bytes) {
  std::string uit = klein(waarde, bytes);
  std::reverse(uit.begin(), uit.end());
  return uit;
}

std::string brok(std::string const& naam, std::string const& inhoud) {
  return naam + klein(static_cast<std::uint32_t>(inhoud.size()), 4) + inhoud;
}

std::string grootBrok(std::string const& naam, std::string const& inhoud) {
  return naam + groot(static_cast<std::uint32_t>(inhoud.size()), 4) + inhoud;
}

std::string const tweeSamples = klein(0x01000001, 4);

}  // namespace

std::string imaAdpcmWav(int rate, std::int16_t waarde) {
  constexpr std::uint32_t blok = 256;
  // The first sample stands in the block's head, two more in each byte behind it.
  constexpr std::uint32_t samples = 1 + (blok - 4) * 2;
  auto const r = static_cast<std::uint32_t>(rate);
  // With step index 0 the code 0 adds 7 >> 3, which is nothing.
  std::string const data =
      klein(static_cast<std::uint16_t>(waarde), 2) + std::string(blok - 2, '\0');
  return brok("RIFF", "WAVE" +
                          brok("fmt ", klein(0x11, 2) + klein(1, 2) + klein(r, 4) +
                                           klein(r * blok / samples, 4) + klein(blok, 2) +
                                           klein(4, 2) + klein(2, 2) + klein(samples, 2)) +
                          brok("fact", klein(samples, 4)) + brok("data", data));
}

std::string rifxWav() {
  return grootBrok("RIFX", "WAVE" +
                               grootBrok("fmt ", groot(1, 2) + groot(1, 2) + groot(16000, 4) +
                                                     groot(32000, 4) + groot(2, 2) + groot(16, 2)) +
                               grootBrok("data", tweeSamples));
}

std::string extensibleWav() {
  // The sub-format of PCM: 00000001-0000-0010-8000-00AA00389B71.
  std::string const pcm =
      klein(1, 4) + klein(0, 2) + klein(0x10, 2) + groot(0x800000AA, 4) + groot(0x00389B71, 4);
  return brok("RIFF", "WAVE" +
                          brok("fmt ", klein(0xFFFE, 2) + klein(1, 2) + klein(16000, 4) +
                                           klein(32000, 4) + klein(2, 2) + klein(16, 2) +
                                           klein(22, 2) + klein(16, 2) + klein(4, 4) + pcm) +
                          brok("data", tweeSamples));
}

std::string aiff() {
  // 16000 as an 80-bit number: 1.953125 times 2 to the power 13.
  std::string const rate = groot(0x400CFA00, 4) + groot(0, 4) + groot(0, 2);
  return grootBrok("FORM", "AIFF" +
                               grootBrok("COMM", groot(1, 2) + groot(2, 4) + groot(16, 2) + rate) +
                               grootBrok("SSND", groot(0, 4) + groot(0, 4) + tweeSamples));
}

std::string au() {
  return ".snd" + groot(24, 4) + groot(4, 4) + groot(3, 4) + groot(16000, 4) + groot(1, 4) +
         tweeSamples;
}

std::string mp3() {
  // MPEG 2, 64 kbit/s, no CRC, no padding: frames of 72 * 64000 / 16000 bytes.
  std::string const frame = groot(0xFFF388C0, 4) + std::string(284, '\0');
  std::string uit;
  for (int i = 0; i < 8; ++i) {
    uit += frame;
  }
  return uit;
}
