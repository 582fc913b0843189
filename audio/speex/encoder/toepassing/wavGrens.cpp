#include "audio/speex/encoder/toepassing/wavGrens.h"

#include <wx/file.h>

#include <array>
#include <cstring>
#include <optional>

namespace {

// The head of a chunk.
struct Kop {
  std::array<char, 4> naam;
  wxUint32 lengte;  // of what follows the head
};
constexpr wxFileOffset kopBytes = sizeof(Kop);

// The head at that place; none where the file ends before the head does.
std::optional<Kop> leesKop(wxFile& bestand, wxFileOffset plaats) {
  Kop kop{};
  if (bestand.Seek(plaats) != plaats || bestand.Read(&kop, sizeof kop) != kopBytes) {
    return std::nullopt;
  }
  kop.lengte = wxUINT32_SWAP_ON_BE(kop.lengte);
  return kop;
}

bool heet(Kop const& kop, char const* naam) {
  return std::memcmp(kop.naam.data(), naam, kop.naam.size()) == 0;
}

}  // namespace

bool eindigtInBestand(wxString const& wav) {
  // Behind "RIFF", a length, "WAVE", and a format of 16 bytes with its head.
  constexpr wxFileOffset eerste = 36;
  wxFile bestand(wav);
  if (!bestand.IsOpened()) {
    return false;
  }
  std::optional<Kop> const lijst = leesKop(bestand, eerste);
  if (!lijst || !heet(*lijst, "LIST")) {
    return true;
  }
  wxFileOffset const plaats = eerste + kopBytes + lijst->lengte;
  std::optional<Kop> const samples = leesKop(bestand, plaats);
  return samples && plaats + kopBytes + samples->lengte <= bestand.Length();
}
