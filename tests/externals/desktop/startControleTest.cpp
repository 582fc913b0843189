// The checks of a start that wants to be the only one.
#include "tests/externals/desktop/desktopProef.h"
#include "tests/externals/desktop/slotHouder.h"
#include "tests/steun/catalogusInGebruik.h"

namespace {

class StartControle : public DesktopProef {};

TEST_F(StartControle, OnlyCopyOnALargeScreenMayStart) {
  start();
  EXPECT_EQ(app().onInitRoutines(), 0);
  EXPECT_TRUE(nietsGelogd(log));
}

TEST_F(StartControle, CopyNextToARunningOneIsCancelledWithALineInTheLog) {
  SlotHouder const eerste(proefNaam().ToStdString());
  ASSERT_TRUE(eerste.heeftSlot());
  start();
  EXPECT_TRUE(nietsGelogd(log));
  EXPECT_EQ(app().onInitRoutines(), 2);
  EXPECT_EQ(fouten(),
            std::vector<wxString>{
                "A running instance of this application was detected.\n Launch is cancelled."});
}

TEST_F(StartControle, TheLineAboutARunningCopySpeaksTheLanguage) {
  SlotHouder const eerste(proefNaam().ToStdString());
  ASSERT_TRUE(eerste.heeftSlot());
  start();
  CatalogusInGebruik const catalogus(
      Vertalingen{{"A running instance of this application was detected.\n Launch is cancelled.",
                   "Er loopt al 1%s."}});
  EXPECT_EQ(app().onInitRoutines(), 2);
  EXPECT_EQ(fouten(), std::vector<wxString>{"Er loopt al 1%s."});
}

TEST_F(StartControle, RunningCopyOfAnotherApplicationDoesNotCount) {
  SlotHouder const ander(proefNaam().ToStdString() + "Ander");
  ASSERT_TRUE(ander.heeftSlot());
  start();
  EXPECT_EQ(app().onInitRoutines(), 0);
}

TEST_F(StartControle, SecondCopyFindsTheLockOfThisOneTaken) {
  start();
  SlotHouder const tweede(proefNaam().ToStdString());
  EXPECT_FALSE(tweede.heeftSlot());
}

}  // namespace
