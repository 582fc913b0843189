// What the next start makes of the run before.
#include <wx/frame.h>
#include <wx/intl.h>

#include "tests/externals/desktop/desktopProef.h"

namespace {

using Herstart = DesktopProef;

TEST_F(Herstart, ResizingAndRestartingBringsBack800By600) {
  start();
  maakVenster()->SetClientSize(700, 500);
  rust();
  stop();
  start();
  EXPECT_EQ(maakVenster()->GetClientSize(), wxSize(800, 600));
}

TEST_F(Herstart, StoredSizeIsThatOfTheNextStart) {
  start();
  maakVenster()->SetClientSize(711, 503);
  rust();
  app().bewaarHoofdVensterGrootte();
  stop();
  start();
  EXPECT_EQ(maakVenster()->GetClientSize(), wxSize(711, 503));
}

TEST_F(Herstart, AfterYesTheNextStartIsInTheNewLanguage) {
  start();
  ASSERT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_ENGLISH);
  maakVenster();
  antwoorden.opBericht(wxID_YES);
  app().zetTaal(wxLANGUAGE_GERMAN);
  EXPECT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_ENGLISH);
  EXPECT_EQ(stop().at("/Gebruikersinstellingen/Taal"),
            wxString::Format("%d", static_cast<int>(wxLANGUAGE_GERMAN)));
  start();
  EXPECT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_GERMAN);
}

TEST_F(Herstart, AfterNoTheNextStartIsInTheOldLanguage) {
  start();
  maakVenster();
  antwoorden.opBericht(wxID_NO);
  app().zetTaal(wxLANGUAGE_GERMAN);
  stop();
  start();
  EXPECT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_ENGLISH);
}

TEST_F(Herstart, EnglishNeedsNoCatalogAtTheNextStart) {
  startInTaal(wxString::Format("%d", static_cast<int>(wxLANGUAGE_GERMAN)));
  // No catalog of the application is there.
  EXPECT_FALSE(fouten().empty());
  maakVenster();
  antwoorden.opBericht(wxID_YES);
  app().zetTaal(wxLANGUAGE_ENGLISH);
  stop();
  log.clear();
  start();
  EXPECT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_ENGLISH);
  EXPECT_TRUE(nietsGelogd(log));
}

}  // namespace
