// The change of language at the running application.
#include <wx/frame.h>
#include <wx/msgdlg.h>
#include <wx/timer.h>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/steun/machine.h"

namespace {

constexpr char const* titel = "Restart the application";
constexpr char const* vraag =
    "A new application language was selected.\nDo you want to proceed?\nPlease select YES to put "
    "the changes into effect and exit the application.\n You will need to restart the application "
    "for the changes to take effect.";

class ZetTaal : public DesktopProef {
 protected:
  // Asks for German inside the main loop and answers the question. Returns true when the loop ended
  // by that, false when it went on.
  bool kiesDuits(int antwoord) {
    venster = maakVenster();
    antwoorden.opBericht(antwoord);
    bool liepDoor = false;
    app().CallAfter([this] { app().zetTaal(wxLANGUAGE_GERMAN); });
    wxTimer wekker;
    wekker.Bind(wxEVT_TIMER, [this, &liepDoor](wxTimerEvent&) {
      liepDoor = true;
      app().ExitMainLoop();
    });
    constexpr int geduld = 1500;
    wekker.StartOnce(geduld);
    app().OnRun();
    return !liepDoor;
  }

  void verwachtDeVraag() const {
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    Bericht const& bericht = antwoorden.berichten[0];
    EXPECT_EQ(bericht.titel, titel);
    EXPECT_EQ(bericht.tekst, vraag);
    // The toolkit adds the icon of a question to a box that names none.
    EXPECT_EQ(bericht.stijl & ~static_cast<long>(wxICON_MASK), wxYES_NO);
    EXPECT_EQ(bericht.ouder, venster);
  }

  wxFrame* venster = nullptr;
};

constexpr char const* taalSleutel = "/Gebruikersinstellingen/Taal";

wxString nummer(wxLanguage taal) {
  return wxString::Format("%d", static_cast<int>(taal));
}

TEST_F(ZetTaal, YesStoresTheLanguageAndEndsTheMainLoop) {
  start();
  EXPECT_TRUE(kiesDuits(wxID_YES));
  verwachtDeVraag();
  EXPECT_EQ(app().geefAppConfig()->Read(taalSleutel, ""), nummer(wxLANGUAGE_GERMAN));
  EXPECT_EQ(stop().at(taalSleutel), nummer(wxLANGUAGE_GERMAN));
}

TEST_F(ZetTaal, NoChangesNothingAndTheApplicationGoesOn) {
  start();
  EXPECT_FALSE(kiesDuits(wxID_NO));
  verwachtDeVraag();
  EXPECT_FALSE(app().geefAppConfig()->HasEntry(taalSleutel));
  EXPECT_EQ(stop().at(taalSleutel), nummer(wxLANGUAGE_ENGLISH));
}

TEST_F(ZetTaal, EscapeChangesNothingAndTheApplicationGoesOn) {
  start();
  EXPECT_FALSE(kiesDuits(wxID_CANCEL));
  verwachtDeVraag();
  EXPECT_EQ(stop().at(taalSleutel), nummer(wxLANGUAGE_ENGLISH));
}

TEST_F(ZetTaal, LanguageInForceIsAskedAboutAllTheSame) {
  if (heeftCatalogi()) {
    GTEST_SKIP() << "Kestrolin is installed on this machine, and its catalogs are found";
  }
  startInTaal(nummer(wxLANGUAGE_GERMAN));
  EXPECT_TRUE(kiesDuits(wxID_YES));
  verwachtDeVraag();
  EXPECT_EQ(stop().at(taalSleutel), nummer(wxLANGUAGE_GERMAN));
}

}  // namespace
