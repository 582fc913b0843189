// A file that goes away between the two times that a text needs it: once for the codes, once for
// the lines that tell of it. The linker leads our opening of sound files through here (see
// CMakeLists.txt), and from here to the library.
#include <gtest/gtest.h>
#include <sndfile.h>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

extern "C" {
SNDFILE* echtOpen(char const* pad, int modus, SF_INFO* info) asm("__real_sf_open");
SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) asm("__wrap_sf_open");
}

namespace {

int teller = 0;
int mislukt = 0;

// While it lives, the `nummer`-th opening from here on, counted from 1, fails, and that one alone.
class MisluktOpenen {
 public:
  explicit MisluktOpenen(int nummer) {
    teller = 0;
    mislukt = nummer;
  }
  ~MisluktOpenen() { mislukt = 0; }
  MisluktOpenen(MisluktOpenen const&) = delete;
  MisluktOpenen& operator=(MisluktOpenen const&) = delete;
  MisluktOpenen(MisluktOpenen&&) = delete;
  MisluktOpenen& operator=(MisluktOpenen&&) = delete;
};

}  // namespace

SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) {
  return ++teller == mislukt ? nullptr : echtOpen(pad, modus, info);
}

namespace {

class AdpcmHandvat : public testing::Test {
 protected:
  AdpcmHandvat() { schrijfWav(map.pad("toon.wav"), samples); }

  std::string tekst() const { return adpcmTekst({ADPCMTaalC, 0}, map.pad("toon.wav"), true); }

  std::vector<int> const samples = golf(1001);

 private:
  TijdelijkeMap map;
};

TEST_F(AdpcmHandvat, tweedeKeerNietTeOpenenGeeftNulNulEnNanBijEenVolleArray) {
  AdpcmStand stand;
  VerwachteTekst gegevens;
  gegevens.rate = 0;
  std::string const verwacht = maakVerwachteTekst(
      gegevens, {{"_adpcmNumberOfEncSamples", 500}, {"_pcmNumberOfSamples", 1000}},
      modelBeeld(modelBytes(stand, samples, 1), 8000, true));
  ASSERT_NE(verwacht.find(" : 0 Hz\t"), std::string::npos);
  ASSERT_NE(verwacht.find(" : 0 frames\t"), std::string::npos);
  ASSERT_NE(verwacht.find(" : nan s\t"), std::string::npos);
  MisluktOpenen const tweede(2);
  EXPECT_TRUE(zelfdeTekst(tekst(), verwacht));
}

TEST_F(AdpcmHandvat, eersteKeerNietTeOpenenVerteltVanHetBestandBijEenLegeArray) {
  VerwachteTekst gegevens;
  gegevens.frames = 1001;
  std::string const verwacht = maakVerwachteTekst(
      gegevens, {{"_adpcmNumberOfEncSamples", 0}, {"_pcmNumberOfSamples", 0}}, Bytes(9, 0));
  MisluktOpenen const eerste(1);
  EXPECT_TRUE(zelfdeTekst(tekst(), verwacht));
}

}  // namespace
