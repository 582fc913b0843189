// What can be seen while a source file is heard, on the screen itself. Each of these tests has a
// display of its own, on which no other window lies over this one.
#include <wx/treectrl.h>
#include <wx/utils.h>

#include <functional>
#include <utility>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"
#include "tests/audio/speex/encoder/toepassing/speelScherm.h"

namespace {

class SpeelBeeldProef : public SpeelProef {
 protected:
  // Loads two files and opens the tree.
  void SetUp() override {
    begin();
    neemOp();
    laad({wav("bel.wav"), wav("zoem.wav")});
    boom()->Expand(knopen().front());
    venster->Raise();
    open = rustigBeeld();
  }

  // The tree as the screen shows it, once it shows anything and nothing moves any more. Meanwhile
  // the window works its events off.
  SchermBeeld rustigBeeld() {
    return stilstaand([this] { rust(); }, {});
  }
  // The tree as the screen shows it while the window is stuck in a sound, once it has become
  // another one than this. Nothing but what was painted before the sound can be in it.
  SchermBeeld vastBeeld(SchermBeeld const& vorige) const {
    return stilstaand([] {}, vorige);
  }

  // Plays, and returns what the screen shows during each of two sounds.
  std::vector<SchermBeeld> speelTwee(SchermBeeld const& voor) {
    std::vector<SchermBeeld> tijdens;
    bijElkGeluid([&](OpgenomenGeluid const& /*geluid*/, GeluidBytes const& /*bytes*/) {
      tijdens.push_back(vastBeeld(tijdens.empty() ? voor : tijdens.back()));
    });
    klik(ID_SPEEL_BRON);
    return tijdens;
  }

  // Expects a difference from the open tree in that row, and in no other place.
  void verwachtAndersInRij(SchermBeeld const& beeld, std::size_t rij) const {
    std::set<int> const lijnen = andereLijnen(beeld, open);
    ASSERT_FALSE(lijnen.empty());
    wxRect plaats;
    ASSERT_TRUE(boom()->GetBoundingRect(knopen().at(rij + 1), plaats));
    int const rand = boom()->ClientToScreen(wxPoint()).y - boom()->GetScreenRect().y;
    EXPECT_GE(*lijnen.begin(), plaats.GetTop() + rand);
    EXPECT_LE(*lijnen.rbegin(), plaats.GetBottom() + rand);
  }

  SchermBeeld open;

 private:
  SchermBeeld stilstaand(std::function<void()> const& intussen, SchermBeeld const& vorige) const {
    constexpr int rondes = 6000;
    constexpr int rustig = 5;
    constexpr unsigned long pauze = 20;
    SchermBeeld laatste;
    int gelijk = 0;
    for (int ronde = 0; ronde < rondes && gelijk < rustig; ++ronde) {
      intussen();
      wxMilliSleep(pauze);
      wxRect const plaats = boom()->GetScreenRect();
      SchermBeeld nu = leesScherm({plaats.x, plaats.y, plaats.width, plaats.height});
      gelijk = nu == laatste && nu != vorige && !isEffen(nu) ? gelijk + 1 : 0;
      laatste = std::move(nu);
    }
    EXPECT_EQ(gelijk, rustig) << "the screen did not change, or did not come to rest";
    return laatste;
  }
};

TEST_F(SpeelBeeldProef, TheLineOfTheFileThatIsHeardIsPaintedInBoldAndNoOther) {
  std::vector<SchermBeeld> const tijdens = speelTwee(open);
  ASSERT_EQ(tijdens.size(), 2U);
  verwachtAndersInRij(tijdens[0], 0);
  verwachtAndersInRij(tijdens[1], 1);
  EXPECT_TRUE(andereLijnen(rustigBeeld(), open).empty());
}

TEST_F(SpeelBeeldProef, AClosedTreeIsPaintedOpenBeforeTheFirstSound) {
  boom()->Collapse(knopen().front());
  SchermBeeld const dicht = rustigBeeld();
  ASSERT_FALSE(andereLijnen(dicht, open).empty());
  std::vector<SchermBeeld> const tijdens = speelTwee(dicht);
  ASSERT_EQ(tijdens.size(), 2U);
  verwachtAndersInRij(tijdens[0], 0);
  verwachtAndersInRij(tijdens[1], 1);
}

}  // namespace
