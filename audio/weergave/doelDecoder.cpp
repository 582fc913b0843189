#include "audio/weergave/doelDecoder.h"

#include "kestrolin_pcm.h"
#include "kestrolin_speex.h"
#include "kestrolin_wav.h"
#include "speex_source.h"

namespace {

using Rate = std::optional<std::uint16_t>;

template <typename Lezer>
kestrolin_status open(Lezer& lezer, ArrayBytes const& array, Rate zonderKop,
                      kestrolin_status (*metKop)(Lezer*, unsigned char const*, std::size_t),
                      kestrolin_status (*koploos)(Lezer*, unsigned char const*, std::size_t,
                                                  std::uint16_t)) {
  return zonderKop ? koploos(&lezer, array.data(), array.size(), *zonderKop)
                   : metKop(&lezer, array.data(), array.size());
}

// What the readers of sample after sample have in common. After an error they have no samples.
template <typename Lezer>
DoelGeluid lees(Lezer& lezer, kestrolin_status status, unsigned int kanalen,
                std::size_t (*volgende)(Lezer*, std::int16_t*, std::size_t)) {
  DoelGeluid geluid{status, lezer.rate, kanalen, Samples(lezer.left)};
  geluid.samples.resize(volgende(&lezer, geluid.samples.data(), geluid.samples.size()));
  return geluid;
}

DoelGeluid decodeerPcm(ArrayBytes const& array, Rate zonderKop) {
  kestrolin_pcm pcm{};
  kestrolin_status const status =
      open(pcm, array, zonderKop, kestrolin_pcm_open, kestrolin_pcm_open_headerless);
  return lees(pcm, status, 1, kestrolin_pcm_read);
}

DoelGeluid decodeerWav(ArrayBytes const& array) {
  kestrolin_wav wav{};
  kestrolin_status const status = kestrolin_wav_open(&wav, array.data(), array.size());
  return lees(wav, status, wav.channels, kestrolin_wav_read);
}

DoelGeluid decodeerSpeex(ArrayBytes const& array, Rate zonderKop) {
  auto const* const elementen =
      static_cast<signed char const*>(static_cast<void const*>(array.data()));
  kestrolin_speex speex{};
  kestrolin_status const status =
      zonderKop ? kestrolin_speex_open_headerless(&speex, elementen, array.size(), *zonderKop)
                : kestrolin_speex_open(&speex, elementen, array.size());
  DoelGeluid geluid{status, speex.rate, 1, {}};
  speex_source bron{};
  if (status == KESTROLIN_OK && speex_source_open(&bron, &speex) == 0) {
    geluid.samples.resize(speex.samples);
    geluid.samples.resize(speex_source_read(&bron, geluid.samples.data(), speex.samples));
    speex_source_close(&bron);
  }
  return geluid;
}

}  // namespace

DoelGeluid DoelDecoder::decodeerAdpcm(ArrayBytes const& array, Rate zonderKop) {
  kestrolin_adpcm adpcm{};
  kestrolin_status const status =
      open(adpcm, array, zonderKop, kestrolin_adpcm_open, kestrolin_adpcm_open_headerless);
  if (status != KESTROLIN_OK) {
    return {status, 0, 1, {}};
  }
  kestrolin_adpcm_resume(&adpcm, &vorige);
  DoelGeluid geluid = lees(adpcm, status, 1, kestrolin_adpcm_read);
  vorige = adpcm;
  return geluid;
}

DoelGeluid DoelDecoder::decodeer(ArraySoort soort, ArrayBytes const& array, Rate zonderKop) {
  switch (soort) {
    case ArraySoort::speex:
      return decodeerSpeex(array, zonderKop);
    case ArraySoort::adpcm:
      return decodeerAdpcm(array, zonderKop);
    case ArraySoort::pcm:
      return decodeerPcm(array, zonderKop);
    case ArraySoort::wav:
      break;
  }
  return decodeerWav(array);
}
