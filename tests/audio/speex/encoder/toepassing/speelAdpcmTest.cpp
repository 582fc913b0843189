// The ADPCM converter reads binary images and is handed text: its first eight bytes count as the
// size of an image that no machine has room for, and the exception goes its way.
#include <wx/button.h>
#include <wx/radiobox.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <new>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"
#include "tests/steun/geluidPaden.h"
#include "tests/steun/krapGeheugen.h"

namespace {

std::ptrdiff_t openBestanden() {
  std::filesystem::directory_iterator const begin("/proc/self/fd");
  return std::distance(begin, std::filesystem::directory_iterator());
}

class SpeelAdpcmProef : public SpeelProef {
 protected:
  void begin(EncoderSoort soort) {
    beginAdpcm();
    neemOp();
    kies(radio(ID_ENCODER_TYPE), soort);
    laadFragmenten({korteBel()});
    codeer();
    ASSERT_TRUE(nietsGelogd(log()));
  }
  // Plays by ADPCM, which asks for so many bytes at once.
  void verwachtBadAlloc(std::size_t grootste) {
    KrapGeheugen const ruim(0);
    EXPECT_THROW(stuur(knop(ID_SPEEL_RESULTAAT), wxEVT_BUTTON), std::bad_alloc);
    EXPECT_EQ(KrapGeheugen::grootste(), grootste);
  }
};

// "/* ADPCM", low byte first: 4D 43 50 44 41 20 2A 2F.
constexpr std::size_t grootteAdpcm = 0x4D43504441202A2F;
static_assert(grootteAdpcm == 5567381818440690223);
// "/* Speex".
constexpr std::size_t grootteSpeex = 0x7865657053202A2F;

TEST_F(SpeelAdpcmProef, ItsOwnTextAsksForMoreMemoryThanThereIsAndTheExceptionLeavesTheHandler) {
  begin(EncoderADPCM);
  ASSERT_TRUE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  wxString const voor = status();
  std::size_t const bestanden = tijdelijke().size();
  std::ptrdiff_t const open = openBestanden();
  verwachtBadAlloc(grootteAdpcm);
  EXPECT_EQ(openBestanden(), open);
  EXPECT_EQ(tijdelijke().size(), bestanden + 2);
  EXPECT_EQ(leesTekst(tijdelijk("adpcmTmpBestand")), tekst().utf8_string());
  EXPECT_EQ(leesTekst(tijdelijk("wavTmpBestand")), "");
  EXPECT_TRUE(neemGeluidPaden().empty());
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(status(), voor);
}

TEST_F(SpeelAdpcmProef, TheMenuItemEndsThatWayToo) {
  begin(EncoderADPCM);
  EXPECT_THROW(kiesMenu(ID_SPEEL_RESULTAAT), std::bad_alloc);
  EXPECT_EQ(tijdelijke("adpcmTmpBestand").size(), 1U);
}

TEST_F(SpeelAdpcmProef, AWindowThatOutlivesItKeepsItsResultAndWorksOn) {
  begin(EncoderADPCM);
  wxString const text = tekst();
  verwachtBadAlloc(grootteAdpcm);
  verwachtBadAlloc(grootteAdpcm);
  rust();
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(isGeladen());
  bewaar(pad("uit.c"));
  EXPECT_EQ(inhoud(pad("uit.c")), text);
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  codeer();
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(gehoord.size(), 1U);
}

TEST_F(SpeelAdpcmProef, ChosenAfterASpeexRunItReadsThatText) {
  begin(EncoderSpeex);
  kies(radio(ID_ENCODER_TYPE), EncoderADPCM);
  ASSERT_FALSE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  verwachtBadAlloc(grootteSpeex);
  EXPECT_EQ(leesTekst(tijdelijk("adpcmTmpBestand")), tekst().utf8_string());
}

}  // namespace
