#include "audio/codec/sndBestand.h"

#include <wx/filename.h>
#include <wx/strconv.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

// The bytes of the full path in the C library's encoding; empty where the name has no such form.
std::shared_ptr<SNDFILE> open(wxFileName const& bestand, int modus, SF_INFO& info) {
  std::string const pad = bestand.GetFullPath().ToStdString(wxConvLibc);
  SNDFILE* const handvat = sf_open(pad.c_str(), modus, &info);
  if (handvat == nullptr) {
    // What the library found out before it gave up says nothing about a file that cannot be used.
    info = SF_INFO{};
    return nullptr;
  }
  return {handvat, sf_close};
}

}  // namespace

SndBestand::SndBestand(wxFileName const& bestand, int modus, SF_INFO const& gevraagd)
    : gegevens(gevraagd), handvat(open(bestand, modus, gegevens)) {}

SndBestand SndBestand::lees(wxFileName const& bestand) {
  return {bestand, SFM_READ, SF_INFO{}};
}

SndBestand SndBestand::schrijf(wxFileName const& bestand, int samplerate, int kanalen,
                               int formaat) {
  SF_INFO gevraagd{};
  gevraagd.samplerate = samplerate;
  gevraagd.channels = kanalen;
  gevraagd.format = formaat;
  return {bestand, SFM_WRITE, gevraagd};
}

sf_count_t SndBestand::leesItems(short* doel, sf_count_t aantal) {
  if (!isOpen()) {
    return 0;
  }
  sf_count_t const rest = aantal % gegevens.channels;
  sf_count_t gelezen = sf_read_short(handvat.get(), doel, aantal - rest);
  if (rest > 0 && gelezen == aantal - rest) {
    std::vector<short> frame(static_cast<std::size_t>(gegevens.channels));
    if (sf_read_short(handvat.get(), frame.data(), gegevens.channels) == gegevens.channels) {
      std::copy_n(frame.begin(), rest, doel + gelezen);
      gelezen += rest;
    }
  }
  return gelezen;
}

sf_count_t SndBestand::schrijfItems(short const* bron, sf_count_t aantal) {
  return isOpen() ? sf_write_short(handvat.get(), bron, aantal) : 0;
}
