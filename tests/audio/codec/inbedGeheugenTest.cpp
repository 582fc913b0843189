// Embedding holds nothing of a file's size: samples and bytes pass through it.
#include <wx/wfstream.h>

#include <algorithm>
#include <filesystem>

#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/krapGeheugen.h"

namespace {

class InbedGeheugen : public InbedProef {
 protected:
  // The largest allocation while a file of `frames` samples is embedded in a file.
  std::size_t grootsteBij(std::size_t frames) {
    // 0x1111, of which each byte takes five signs.
    maakBestand(toon, wavBytes({}, std::string(2 * frames, '\x11')));
    wxFileOutputStream uit(wxTekst(map.pad("uit.c")));
    KrapGeheugen const ruim(0);
    schrijfInbedding(bestandsnaam(toon), {0, "", 16}, uit);
    return KrapGeheugen::grootste();
  }
};

TEST_F(InbedGeheugen, tweeMiljoenSamplesVragenGeenGroterBlokDanTweeduizend) {
  std::size_t const klein = grootsteBij(2000);
  EXPECT_GT(klein, 0U);
  EXPECT_LE(grootsteBij(2000000), klein);
  // All of it went over: about 5 signs for each of 4000000 bytes.
  EXPECT_GT(std::filesystem::file_size(map.pad("uit.c")), 20000000U);
}

}  // namespace
