// Who hears of long work, and what lets itself be heard.
#include "audio/codec/hartslag.h"

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/mstream.h>

#include <vector>

#include "audio/codec/rijSchrijver.h"
#include "audio/codec/sndBestand.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

class Teller : public Hartslag {
 public:
  void bijKlop() override { ++keren; }
  int keren = 0;
};

TEST(Hartslag, NobodyNeedsToListen) {
  klop();
}

TEST(Hartslag, TheLastOneMadeListensUntilItGoes) {
  Teller eerste;
  klop();
  {
    Teller tweede;
    klop();
    klop();
    EXPECT_EQ(tweede.keren, 2);
  }
  klop();
  EXPECT_EQ(eerste.keren, 2);
}

TEST(Hartslag, EachReadOfARecordingIsHeard) {
  TijdelijkeMap const map;
  maakWav(map.pad("a.wav"), proefSamples(1600));
  SndBestand wav = SndBestand::lees(wxFileName(wxString::FromUTF8(map.pad("a.wav"))));
  Teller teller;
  std::vector<short> frame(160);
  for (int i = 0; i < 10; ++i) {
    wav.leesItems(frame.data(), 160);
  }
  EXPECT_EQ(teller.keren, 10);
}

// A byte takes at least four signs, and a block holds at most 64 KiB of them.
TEST(Hartslag, EachBlockOfRowsIsHeard) {
  constexpr std::size_t bytes = 1 << 18;
  wxMemoryOutputStream uit;
  Teller teller;
  RijSchrijver rijen(uit, hexadecimaleBytes, bytes);
  std::vector<unsigned char> const nullen(bytes);
  rijen.schrijfBytes(nullen.data(), nullen.size());
  rijen.rondAf();
  EXPECT_GE(teller.keren, static_cast<int>(bytes * 4 / 65536));
}

}  // namespace
