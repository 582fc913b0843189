// The start checks on screens around the smallest size. Each test runs on a display of its own,
// whose size its name tells.
#include <wx/gdicmn.h>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/externals/desktop/slotHouder.h"
#include "tests/steun/catalogusInGebruik.h"

namespace {

class SchermMaat : public DesktopProef {
 protected:
  void verwachtTeKlein() {
    EXPECT_EQ(app().onInitRoutines(), 2);
    EXPECT_EQ(fouten(), std::vector<wxString>{
                            "This application requires a minimum screen resolution of 1024x768 "
                            "pixels.\nThe launch will be cancelled."});
  }
};

TEST_F(SchermMaat, On800x600IsCancelledWithALineInTheLog) {
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(800, 600));
  verwachtTeKlein();
}

TEST_F(SchermMaat, On1023x768IsTooNarrow) {
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(1023, 768));
  verwachtTeKlein();
}

TEST_F(SchermMaat, On1022x768TheLineSpeaksTheLanguage) {
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(1022, 768));
  CatalogusInGebruik const catalogus(Vertalingen{
      {"This application requires a minimum screen resolution of 1024x768 pixels.\nThe launch "
       "will be cancelled.",
       "Te klein, 1%s."}});
  EXPECT_EQ(app().onInitRoutines(), 2);
  EXPECT_EQ(fouten(), std::vector<wxString>{"Te klein, 1%s."});
}

TEST_F(SchermMaat, On1024x767IsTooLow) {
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(1024, 767));
  verwachtTeKlein();
}

TEST_F(SchermMaat, On640x480RunningCopyIsToldFirstAndAlone) {
  SlotHouder const eerste(proefNaam().ToStdString());
  ASSERT_TRUE(eerste.heeftSlot());
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(640, 480));
  EXPECT_EQ(app().onInitRoutines(), 2);
  EXPECT_EQ(fouten(),
            std::vector<wxString>{
                "A running instance of this application was detected.\n Launch is cancelled."});
}

TEST_F(SchermMaat, On1024x768MayStart) {
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(1024, 768));
  EXPECT_EQ(app().onInitRoutines(), 0);
  EXPECT_TRUE(nietsGelogd(log));
}

}  // namespace
