// The About box: what the toolkit is handed to show.
#include <sys/utsname.h>
#include <wx/aboutdlg.h>
#include <wx/bitmap.h>
#include <wx/frame.h>
#include <wx/icon.h>
#include <wx/image.h>

#include <utility>
#include <vector>

#include "tests/externals/desktop/desktopProef.h"

namespace {

struct Vertoond {
  wxAboutDialogInfo info;
  wxWindow* ouder;
};

std::vector<Vertoond>& vertoond() {
  static std::vector<Vertoond> opgenomen;
  return opgenomen;
}

}  // namespace

// The toolkit's box, in whose place the linker puts this one: the native box is in no list of
// windows and cannot be read back.
extern "C" void opgenomenVertoning(wxAboutDialogInfo const& info, wxWindow* ouder) asm(
    "__wrap__Z10wxAboutBoxRK17wxAboutDialogInfoP8wxWindow");

void opgenomenVertoning(wxAboutDialogInfo const& info, wxWindow* ouder) {
  vertoond().push_back({info, ouder});
}

namespace {

class Copyright : public DesktopProef {
 protected:
  // The one box that was shown since the last call.
  static Vertoond neemVertoning() {
    std::vector<Vertoond> const alle = std::exchange(vertoond(), {});
    EXPECT_EQ(alle.size(), 1U);
    return alle.empty() ? Vertoond{} : alle.front();
  }

  // The machine as its kernel tells it. No blank stands before the bracket.
  static wxString platformRegel() {
    utsname systeem{};
    EXPECT_EQ(uname(&systeem), 0);
    wxString const naam = systeem.sysname;
    wxString const machine = systeem.machine;
    wxString const bits = machine.Contains("64") || machine == "s390x" ? "64" : "32";
    return "wxGTK " + naam + "(" + bits + " bit)";
  }

  static wxIcon maakIcoon() {
    constexpr int breedte = 36;
    constexpr int hoogte = 16;
    wxIcon icoon;
    icoon.CopyFromBitmap(wxBitmap(wxImage(breedte, hoogte)));
    return icoon;
  }
};

TEST_F(Copyright, EveryFieldIsFilledFromItsArgumentAndNothingElseIs) {
  start();
  wxFrame const* const venster = maakVenster();
  app().toonCopyright("Proefnaam", "1.1", "Eerste regel\nTweede regel", "(c) Iemand\n(c) Ander",
                      "https://proef.example/pad");
  auto const [info, ouder] = neemVertoning();
  EXPECT_EQ(info.GetName(), "Proefnaam");
  EXPECT_EQ(info.GetVersion(), "1.1");
  // What the toolkit makes of a version without a long one.
  EXPECT_EQ(info.GetLongVersion(), "Version 1.1");
  EXPECT_EQ(info.GetDescription(), platformRegel() + "\nEerste regel\nTweede regel");
  EXPECT_EQ(info.GetCopyright(), "(c) Iemand\n(c) Ander");
  EXPECT_EQ(info.GetWebSiteURL(), "https://proef.example/pad");
  EXPECT_EQ(info.GetWebSiteDescription(), "https://proef.example/pad");
  ASSERT_EQ(info.GetDevelopers().size(), 1U);
  EXPECT_EQ(info.GetDevelopers()[0], "The Kestrolin team");
  EXPECT_FALSE(info.HasIcon());
  EXPECT_FALSE(info.HasLicence());
  EXPECT_FALSE(info.HasDocWriters());
  EXPECT_FALSE(info.HasArtists());
  EXPECT_FALSE(info.HasTranslators());
  EXPECT_EQ(ouder, venster);
}

TEST_F(Copyright, PlatformLineStandsAboveTheTextOfTheCaller) {
  start();
  maakVenster();
  app().toonCopyright("Naam", "1", "Tekst", "", "adres");
  wxString tekst;
  wxString const regel = neemVertoning().info.GetDescription().BeforeFirst('\n', &tekst);
  EXPECT_EQ(regel, platformRegel());
  EXPECT_EQ(tekst, "Tekst");
}

TEST_F(Copyright, EmptyTextLeavesAnEmptyLineBelowThePlatform) {
  start();
  maakVenster();
  app().toonCopyright("Naam", "1", "", "", "adres");
  EXPECT_EQ(neemVertoning().info.GetDescription(), platformRegel() + "\n");
}

TEST_F(Copyright, WithAnIconAllElseIsTheSame) {
  start();
  wxFrame const* const venster = maakVenster();
  wxIcon const icoon = maakIcoon();
  app().toonCopyright("Proefnaam", "1.1", "Tekst", "Iemand", "https://proef.example", icoon);
  auto const [info, ouder] = neemVertoning();
  EXPECT_EQ(info.GetName(), "Proefnaam");
  EXPECT_EQ(info.GetVersion(), "1.1");
  EXPECT_EQ(info.GetLongVersion(), "Version 1.1");
  EXPECT_EQ(info.GetDescription(), platformRegel() + "\nTekst");
  EXPECT_EQ(info.GetCopyright(), "Iemand");
  EXPECT_EQ(info.GetWebSiteURL(), "https://proef.example");
  EXPECT_EQ(info.GetWebSiteDescription(), "https://proef.example");
  ASSERT_EQ(info.GetDevelopers().size(), 1U);
  EXPECT_EQ(info.GetDevelopers()[0], "The Kestrolin team");
  ASSERT_TRUE(info.HasIcon());
  EXPECT_TRUE(info.GetIcon().IsSameAs(icoon));
  EXPECT_EQ(info.GetIcon().GetSize(), wxSize(36, 16));
  EXPECT_EQ(ouder, venster);
}

TEST_F(Copyright, EachBoxHasItsOwnTexts) {
  start();
  maakVenster();
  app().toonCopyright("Een", "1", "Tekst", "", "adres", maakIcoon());
  EXPECT_EQ(neemVertoning().info.GetName(), "Een");
  app().toonCopyright("Twee", "2", "Ander", "", "elders");
  wxAboutDialogInfo const info = neemVertoning().info;
  EXPECT_EQ(info.GetName(), "Twee");
  EXPECT_EQ(info.GetDescription(), platformRegel() + "\nAnder");
  EXPECT_EQ(info.GetDevelopers().size(), 1U);
  EXPECT_FALSE(info.HasIcon());
}

TEST_F(Copyright, BeforeThereIsAMainWindowTheBoxHasNoParent) {
  start();
  app().toonCopyright("Naam", "1", "Tekst", "", "adres");
  EXPECT_EQ(neemVertoning().ouder, nullptr);
}

}  // namespace
