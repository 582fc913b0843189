// The whole of what a PCM result does to the one who plays it. It takes 2.7 GB of disk and as much
// of memory, so that it runs only where KESTROLIN_GROOT is set.
#include <wx/button.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"

namespace {

class SpeelPcmGrootProef : public SpeelProef {};

// The number of samples is that of the bytes "/* P".
constexpr unsigned long long aantal = 0x50202A2F;
static_assert(aantal == 1344285231);
constexpr std::size_t kop = 44;  // bytes of a WAV file before its samples

TEST_F(SpeelPcmGrootProef, TheGeneratedTextBecomesAWavOfTwoPointSevenGigabytesThatIsTurnedAway) {
  if (std::getenv("KESTROLIN_GROOT") == nullptr) {
    GTEST_SKIP() << "KESTROLIN_GROOT is not set";
  }
  begin();
  neemOp();
  laad({wav("bel.wav")});
  codeer();
  klik(ID_SPEEL_RESULTAAT);

  std::string const pad = tijdelijk("wavTmpBestand");
  EXPECT_EQ(std::filesystem::file_size(pad), kop + 2 * aantal);
  std::string const text = tekst().utf8_string();
  std::string begin(kop + text.size() - 6, '\0');
  std::ifstream(pad, std::ios::binary)
      .read(begin.data(), static_cast<std::streamsize>(begin.size()));
  // "CM", low byte first.
  EXPECT_EQ(begin.substr(24, 4), std::string("CM\0\0", 4));
  EXPECT_EQ(begin.substr(kop), text.substr(6));

  EXPECT_TRUE(gehoord.empty());
  EXPECT_EQ(status(), "Error playing decoded audio fragments.");
  EXPECT_EQ(fouten(),
            (std::vector<wxString>{"Couldn't load sound data from '" + wxString(pad) + "'.",
                                   "Could not decode and play encoded audio fragments."}));
  EXPECT_EQ(leesTekst(tijdelijk("pcmTmpBestand")), text);
  EXPECT_TRUE(isGecodeerd());
}

}  // namespace
