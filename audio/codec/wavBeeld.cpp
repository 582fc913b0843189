#include "audio/codec/wavBeeld.h"

#include <wx/filename.h>

#include <algorithm>
#include <vector>

#include "audio/codec/audioConfig.h"
#include "numeriek/byteGereedschap.h"

namespace {

unsigned char byteOp(std::string_view bytes, std::size_t plaats) {
  return plaats < bytes.size() ? static_cast<unsigned char>(bytes[plaats]) : 0;
}

unsigned short kort(std::string_view bytes, std::size_t plaats) {
  return MaakShort(byteOp(bytes, plaats + 1), byteOp(bytes, plaats));
}

unsigned int woord(std::string_view bytes, std::size_t plaats) {
  return MaakWoord(kort(bytes, plaats + 2), kort(bytes, plaats));
}

// How samples lie in the chunk "data", as the chunk "fmt " tells from its byte 0 on.
struct Ligging {
  Ligging() = default;
  explicit Ligging(std::string_view chunk)
      : soort(kort(chunk, 0)), blokBytes(kort(chunk, 12)), framesPerImaBlok(kort(chunk, 18)) {}

  // Whether so many bytes hold these frames. Of other kinds than the tool takes, any number does.
  bool past(sf_count_t bytes, sf_count_t frames) const {
    constexpr int pcm = 0x1;
    constexpr int imaAdpcm = 0x11;
    if (soort != pcm && soort != imaAdpcm) {
      return true;
    }
    sf_count_t const perBlok = soort == pcm ? 1 : std::max<sf_count_t>(framesPerImaBlok, 1);
    return bytes == (frames + perBlok - 1) / perBlok * blokBytes;
  }

  int soort = 0;
  sf_count_t blokBytes = 0;
  sf_count_t framesPerImaBlok = 0;
};

}  // namespace

sf_count_t framesInBeeld(SF_INFO const& bron) {
  return bron.channels > 0 ? bron.frames / bron.channels : 0;
}

bool maakWavBeeld(SndBestand bron, wxFileName const& doel, int dacBits) {
  // A block is as large for every file, so that a long one asks for no more memory.
  constexpr sf_count_t blokItems = 8192;
  SF_INFO const& info = bron.info();
  SndBestand uit = SndBestand::schrijf(doel, info.samplerate, info.channels, info.format);
  if (!bron.isOpen()) {
    return false;
  }
  int const verschuiving = sampleBits - dacBits;
  sf_count_t const blokFrames = std::max<sf_count_t>(blokItems / info.channels, 1);
  std::vector<short> blok(static_cast<std::size_t>(blokFrames * info.channels));
  bool heel = true;
  for (sf_count_t over = framesInBeeld(info); over > 0; over -= std::min(over, blokFrames)) {
    sf_count_t const items = std::min(over, blokFrames) * info.channels;
    sf_count_t const gelezen = bron.leesItems(blok.data(), items);
    // What cannot be read counts as zero.
    std::fill(blok.begin() + gelezen, blok.end(), short{0});
    // The floor of the quotient, so that -1 stays -1 at every width.
    std::transform(blok.begin(), blok.end(), blok.begin(), [verschuiving](short sample) {
      return static_cast<short>(sample >> verschuiving);
    });
    heel = uit.schrijfItems(blok.data(), items) == items && gelezen == items && heel;
  }
  return heel && bron.isHeelGelezen();
}

bool isHeelWavBeeld(std::string_view begin, std::size_t lengte, sf_count_t frames) {
  constexpr std::size_t riffKop = 12;
  constexpr std::size_t chunkKop = 8;
  if (begin.size() < riffKop) {
    return false;
  }
  if (begin.substr(0, 4) != "RIFF") {
    return true;
  }
  if (woord(begin, 4) + chunkKop != lengte) {
    return false;
  }
  Ligging ligging;
  for (std::size_t plaats = riffKop; plaats + chunkKop <= begin.size();) {
    std::string_view const naam = begin.substr(plaats, 4);
    std::size_t const bytes = woord(begin, plaats + 4);
    plaats += chunkKop;
    if (naam == "fmt ") {
      ligging = Ligging(begin.substr(plaats));
    } else if (naam == "data") {
      // Behind an odd number of bytes stands one more.
      return ligging.past(static_cast<sf_count_t>(bytes), frames) &&
             plaats + bytes + bytes % 2 == lengte;
    }
    plaats += bytes + bytes % 2;
  }
  return false;
}
