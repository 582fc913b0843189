#include "tests/audio/speex/encoder/toepassing/speelProef.h"

#include <wx/sound.h>
#include <wx/treectrl.h>

#include <algorithm>
#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/geluidPaden.h"
#include "tests/steun/wavLezer.h"

namespace {

// The rows for which `klopt` holds, of these items, the root before them left out.
template <typename Eigenschap>
Rijen rijenMet(std::vector<wxTreeItemId> const& knopen, Eigenschap const& klopt) {
  Rijen rijen;
  for (std::size_t i = 1; i < knopen.size(); ++i) {
    if (klopt(knopen[i])) {
      rijen.push_back(static_cast<int>(i) - 1);
    }
  }
  return rijen;
}

}  // namespace

SpeelProef::~SpeelProef() {
  bijElkGeluid(nullptr);
}

void SpeelProef::neemOp() {
  neemGeluiden();
  neemGeluidPaden();
  bijElkGeluid([this](OpgenomenGeluid const& geluid, GeluidBytes const& bytes) {
    gehoord.push_back({geluid, bytes, status(), vetteRijen(), zichtbareRijen()});
  });
}

std::vector<wxTreeItemId> SpeelProef::knopen() const {
  wxTreeCtrl const& bomen = *boom();
  std::vector<wxTreeItemId> alle;
  wxTreeItemId const wortel = bomen.GetRootItem();
  if (wortel.IsOk()) {
    alle.push_back(wortel);
    wxTreeItemIdValue plaats = nullptr;
    for (wxTreeItemId kind = bomen.GetFirstChild(wortel, plaats); kind.IsOk();
         kind = bomen.GetNextChild(wortel, plaats)) {
      alle.push_back(kind);
    }
  }
  return alle;
}

Rijen SpeelProef::vetteRijen() const {
  return rijenMet(knopen(), [this](wxTreeItemId const& knoop) { return boom()->IsBold(knoop); });
}

Rijen SpeelProef::zichtbareRijen() const {
  return rijenMet(knopen(), [this](wxTreeItemId const& knoop) { return boom()->IsVisible(knoop); });
}

std::vector<std::string> SpeelProef::tijdelijke(std::string const& begin) const {
  std::vector<std::string> paden;
  for (auto const& bestand : std::filesystem::directory_iterator(map.pad("tmp"))) {
    if (bestand.path().filename().string().rfind(begin, 0) == 0) {
      paden.push_back(bestand.path().string());
    }
  }
  std::sort(paden.begin(), paden.end());
  return paden;
}

std::string SpeelProef::tijdelijk(std::string const& begin) const {
  std::vector<std::string> const paden = tijdelijke(begin);
  EXPECT_EQ(paden.size(), 1U) << begin;
  return paden.empty() ? "" : paden.front();
}

void SpeelProef::verwachtResultaat(std::string const& prefix, int aantal, int rate,
                                   std::vector<int> const& samples) {
  std::size_t const voordien = tijdelijke().size();
  klik(ID_SPEEL_RESULTAAT);
  verwachtGespeeld(aantal, rate, samples);
  EXPECT_EQ(tijdelijke().size(), voordien + 2);
  EXPECT_TRUE(zelfdeTekst(leesTekst(tijdelijk(prefix)), tekst().utf8_string()));
}

void SpeelProef::verwachtGespeeld(int aantal, int rate, std::vector<int> const& samples) {
  ASSERT_EQ(gehoord.size(), 1U);
  Gehoord const& een = gehoord.front();
  EXPECT_EQ(een.status, wxString::Format(
                            "Decoded %d audio fragments from Speex data are now playing.", aantal));
  EXPECT_EQ(status(), "Finished playing decoded audio fragments.");
  OpgenomenGeluid const verwacht{1,
                                 static_cast<unsigned int>(rate),
                                 16,
                                 static_cast<unsigned int>(samples.size()),
                                 2 * samples.size(),
                                 wxSOUND_ASYNC};
  EXPECT_TRUE(een.geluid == verwacht) << een.geluid.rate << " Hz, " << een.geluid.samples;
  // Not compared one by one: a failure would show all of both.
  EXPECT_TRUE(een.bytes == geluidBytes(samples));

  std::string const pad = tijdelijk("wavTmpBestand");
  EXPECT_EQ(neemGeluidPaden(), std::vector<wxString>{wxTekst(pad)});
  std::optional<GelezenWav> const wav = ontleedWav(leesBytes(pad));
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.formaatCode, 1);
  EXPECT_EQ(wav->soort.kanalen, 1);
  EXPECT_EQ(wav->soort.bits, 16);
  EXPECT_EQ(wav->soort.rate, rate);
  EXPECT_TRUE(wav->waarden == samples);
}

SpeexFragment korteBel(std::string const& naam) {
  return {naam, golf(160)};
}

GeluidBytes geluidBytes(std::vector<int> const& samples) {
  GeluidBytes bytes;
  bytes.reserve(2 * samples.size());
  for (int const sample : samples) {
    Bytes const paar = laagEerst(static_cast<unsigned long long>(sample), 2);
    bytes.insert(bytes.end(), paar.begin(), paar.end());
  }
  return bytes;
}

GeluidBytes geluidBytes(std::vector<std::int16_t> const& samples) {
  return geluidBytes(std::vector<int>(samples.begin(), samples.end()));
}
