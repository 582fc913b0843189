#include "audio/codec/sndBestand.h"

#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/log.h>

#include <algorithm>

#include "audio/codec/hartslag.h"
#include "audio/codec/sndOpen.h"

SndBestand::SndBestand(wxFileName const& bestand, int modus, SF_INFO const& gevraagd)
    : pad(bestand.GetFullPath()), gegevens(gevraagd), toestand(open(bestand, modus, gegevens)) {}

std::shared_ptr<SndBestand::Toestand> SndBestand::open(wxFileName const& bestand, int modus,
                                                       SF_INFO& info) {
  // A named pipe would keep the program waiting for whoever writes to it.
  if (modus == SFM_READ && !bestand.FileExists()) {
    return nullptr;
  }
  Handvat handvat(openSnd(bestand.GetFullPath(), modus, info));
  if (!handvat) {
    // What the library found out before it gave up says nothing about a file that cannot be used.
    info = SF_INFO{};
    return nullptr;
  }
  bool const leesfout = sf_error(handvat.get()) == SF_ERR_SYSTEM;
  return std::make_shared<Toestand>(std::move(handvat), leesfout);
}

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

void SndBestand::meldGebrek() const {
  if (!isHeelGelezen()) {
    wxLogError(_("Could not read the whole of %s"), pad);
  }
}

// The library forgets at each call what went wrong in the one before.
sf_count_t SndBestand::leesFrames(short* doel, sf_count_t aantal) {
  sf_count_t const gelezen = sf_read_short(toestand->handvat.get(), doel, aantal);
  toestand->leesfout = toestand->leesfout || sf_error(toestand->handvat.get()) == SF_ERR_SYSTEM;
  return gelezen;
}

sf_count_t SndBestand::leesItems(short* doel, sf_count_t aantal) {
  if (!isOpen()) {
    return 0;
  }
  klop();
  std::vector<short>& rest = toestand->rest;
  auto const neemRest = [&rest, doel, aantal](sf_count_t al) {
    auto const deel = std::min(aantal - al, static_cast<sf_count_t>(rest.size()));
    std::copy_n(rest.begin(), deel, doel + al);
    rest.erase(rest.begin(), rest.begin() + deel);
    return al + deel;
  };
  sf_count_t const kanalen = gegevens.channels;
  sf_count_t gelezen = neemRest(0);
  sf_count_t const heel = (aantal - gelezen) / kanalen * kanalen;
  if (heel > 0) {
    gelezen += leesFrames(doel + gelezen, heel);
  }
  if (gelezen < aantal && aantal - gelezen < kanalen) {
    rest.resize(static_cast<std::size_t>(kanalen));
    rest.resize(static_cast<std::size_t>(leesFrames(rest.data(), kanalen)));
    gelezen = neemRest(gelezen);
  }
  return gelezen;
}

sf_count_t SndBestand::schrijfItems(short const* bron, sf_count_t aantal) {
  return isOpen() ? sf_write_short(toestand->handvat.get(), bron, aantal) : 0;
}

bool SndBestand::voltooiKop() {
  sf_command(toestand->handvat.get(), SFC_UPDATE_HEADER_NOW, nullptr, 0);
  return sf_error(toestand->handvat.get()) == SF_ERR_NO_ERROR;
}
