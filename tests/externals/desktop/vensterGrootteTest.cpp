// The memory of the main window's size.
#include <wx/display.h>
#include <wx/frame.h>

#include <algorithm>
#include <cstdlib>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/steun/geduld.h"

namespace {

class VensterGrootte : public DesktopProef {
 protected:
  wxFrame* startMet(wxString const& breedte, wxString const& hoogte) {
    start("[Gebruikersinstellingen/Venster]\nGrootteX=" + breedte + "\nGrootteY=" + hoogte + "\n");
    return maakVenster();
  }

  static void verwachtGecentreerd(wxFrame const& venster) {
    wxPoint naast;
    EXPECT_TRUE(wachtTot([&venster, &naast] {
      constexpr int speling = 40;  // half a window decoration at most
      wxRect const vlak = wxDisplay(&venster).GetClientArea();
      wxRect const raam = venster.GetRect();
      naast = raam.GetPosition() + raam.GetSize() / 2 - (vlak.GetPosition() + vlak.GetSize() / 2);
      return std::abs(naast.x) <= speling && std::abs(naast.y) <= speling;
    })) << "off the centre by "
        << naast.x << ", " << naast.y;
  }
};

constexpr char const* sleutelX = "/Gebruikersinstellingen/Venster/GrootteX";
constexpr char const* sleutelY = "/Gebruikersinstellingen/Venster/GrootteY";

TEST_F(VensterGrootte, WithoutKeysTheClientAreaIs800By600AndCentredAndNeverWritten) {
  start();
  wxFrame* const venster = maakVenster();
  EXPECT_EQ(venster->GetClientSize(), wxSize(800, 600));
  verwachtGecentreerd(*venster);
  venster->SetClientSize(700, 500);
  rust();
  auto const sleutels = stop();
  EXPECT_EQ(sleutels.count(sleutelX), 0U);
  EXPECT_EQ(sleutels.count(sleutelY), 0U);
}

// A window manager puts a new window in the middle by itself, but moves none that stands.
TEST_F(VensterGrootte, AWindowThatStandsInACornerIsCentred) {
  start();
  constexpr int hoek = 3;
  auto* const venster =
      new wxFrame(nullptr, wxID_ANY, proefNaam(), wxPoint(hoek, hoek), wxSize(300, 200));
  venster->Show();
  ASSERT_TRUE(wachtTot([venster] { return venster->GetPosition() == wxPoint(hoek, hoek); }));
  app().zetHoofdVenster(venster);
  verwachtGecentreerd(*venster);
  EXPECT_EQ(venster->GetClientSize(), wxSize(800, 600));
}

TEST_F(VensterGrootte, MainWindowBecomesTheTopWindow) {
  start();
  auto* const ander = new wxFrame(nullptr, wxID_ANY, "ander");
  wxFrame const* const venster = maakVenster();
  EXPECT_EQ(app().GetTopWindow(), venster);
  ander->Destroy();
}

TEST_F(VensterGrootte, HandWrittenSizeOpensAtThatClientSizeCentredAndAStoredOneReplacesIt) {
  wxFrame* const venster = startMet("900", "700");
  EXPECT_EQ(venster->GetClientSize(), wxSize(900, 700));
  verwachtGecentreerd(*venster);
  venster->SetClientSize(650, 450);
  rust();
  app().bewaarHoofdVensterGrootte();
  EXPECT_EQ(stop().at(sleutelX), "650");
}

TEST_F(VensterGrootte, MissingKeyHasItsOwnDefault) {
  start("[Gebruikersinstellingen/Venster]\nGrootteY=500\n");
  EXPECT_EQ(maakVenster()->GetClientSize(), wxSize(800, 500));
}

TEST_F(VensterGrootte, TextInThePlaceOfANumberGivesTheDefault) {
  EXPECT_EQ(startMet("breed", "700")->GetClientSize(), wxSize(800, 700));
}

TEST_F(VensterGrootte, RememberedSizeWinsOverTheOneThatTheWindowHad) {
  start("[Gebruikersinstellingen/Venster]\nGrootteX=640\nGrootteY=480\n");
  auto* const venster =
      new wxFrame(nullptr, wxID_ANY, proefNaam(), wxPoint(3, 3), wxSize(1000, 900));
  app().zetHoofdVenster(venster);
  venster->Show();
  rust();
  EXPECT_EQ(venster->GetClientSize(), wxSize(640, 480));
}

TEST_F(VensterGrootte, StoringWritesTheClientSize) {
  start();
  wxFrame* const venster = maakVenster();
  venster->CreateStatusBar();
  venster->SetClientSize(711, 503);
  rust();
  app().bewaarHoofdVensterGrootte();
  auto const sleutels = stop();
  EXPECT_EQ(sleutels.at(sleutelX), "711");
  EXPECT_EQ(sleutels.at(sleutelY), "503");
}

struct Maat {
  char const* breedte;
  char const* hoogte;
};

TEST_F(VensterGrootte, StrangeSizeStartsShowsAWindowAndKeepsTheKeys) {
  for (Maat const& maat : {Maat{"-5", "-5"}, Maat{"-1", "-1"}, Maat{"0", "0"}, Maat{"1", "1"},
                           Maat{"1000000", "1000000"}, Maat{"2147483647", "2147483647"},
                           Maat{"-2147483648", "600"}, Maat{"9223372036854775807", "600"}}) {
    SCOPED_TRACE(std::string(maat.breedte) + " by " + maat.hoogte);
    wxFrame* const venster = startMet(maat.breedte, maat.hoogte);
    EXPECT_TRUE(venster->IsShown());
    EXPECT_GT(venster->GetSize().x, 0);
    EXPECT_GT(venster->GetSize().y, 0);
    auto const sleutels = stop();
    EXPECT_EQ(sleutels.at(sleutelX), maat.breedte);
    EXPECT_EQ(sleutels.at(sleutelY), maat.hoogte);
  }
}

}  // namespace
