#include "audio/weergave/arrayKeuring.h"

#include <cstddef>

#include "audio/weergave/tekstLezer.h"
#include "kestrolin_adpcm.h"
#include "kestrolin_pcm.h"
#include "kestrolin_speex.h"
#include "kestrolin_wav.h"

namespace {

// PCM and ADPCM: an array has one size, with header and without.
template <typename Lezer>
bool keurBeeld(TekstArray& array, std::size_t samples,
               kestrolin_status (*open)(Lezer*, unsigned char const*, std::size_t),
               kestrolin_status (*openKoploos)(Lezer*, unsigned char const*, std::size_t,
                                               std::uint16_t)) {
  unsigned char const* const bytes = array.bytes.data();
  std::size_t const aantal = array.bytes.size();
  Lezer lezer{};
  array.metHeader = open(&lezer, bytes, aantal) == KESTROLIN_OK && lezer.rate == array.frequentie &&
                    lezer.left == samples;
  auto const rate = static_cast<std::uint16_t>(array.frequentie);
  return array.metHeader ||
         (openKoploos(&lezer, bytes, aantal, rate) == KESTROLIN_OK && lezer.left == samples);
}

bool keurSpeex(TekstArray& array) {
  auto const* const bytes =
      static_cast<signed char const*>(static_cast<void const*>(array.bytes.data()));
  std::size_t const aantal = array.bytes.size();
  kestrolin_speex lezer{};
  array.metHeader = kestrolin_speex_open(&lezer, bytes, aantal) == KESTROLIN_OK &&
                    lezer.rate == array.frequentie && lezer.samples == array.aantalSamples;
  if (array.metHeader) {
    return true;
  }
  auto const rate = static_cast<std::uint16_t>(array.frequentie);
  // The last frame alone may be filled up.
  return kestrolin_speex_open_headerless(&lezer, bytes, aantal, rate) == KESTROLIN_OK &&
         lezer.samples >= array.aantalSamples &&
         lezer.samples - array.aantalSamples < lezer.frame_samples;
}

// The comments count the frames of the source, of which the image takes as many values.
bool keurWav(TekstArray& array) {
  kestrolin_wav lezer{};
  array.metHeader = true;
  if (kestrolin_wav_open(&lezer, array.bytes.data(), array.bytes.size()) != KESTROLIN_OK ||
      lezer.rate != array.frequentie) {
    return false;
  }
  std::uint32_t const gevraagd = array.aantalSamples / lezer.channels;
  std::size_t const gehouden = lezer.left / lezer.channels;
  // The last block of IMA ADPCM may be filled up; one of PCM is a sample.
  if (gehouden < gevraagd || gehouden - gevraagd >= lezer.block_frames) {
    return false;
  }
  array.aantalSamples = gevraagd;
  return true;
}

}  // namespace

bool keurArray(TekstArray& array) {
  switch (array.soort) {
    case ArraySoort::speex:
      return keurSpeex(array);
    case ArraySoort::adpcm:
      return keurBeeld(array, array.aantalSamples, kestrolin_adpcm_open,
                       kestrolin_adpcm_open_headerless);
    case ArraySoort::pcm:
      return keurBeeld(array, array.aantalSamples, kestrolin_pcm_open,
                       kestrolin_pcm_open_headerless);
    case ArraySoort::wav:
      break;
  }
  return keurWav(array);
}
