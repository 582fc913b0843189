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
  // Before there is a main window the box has no parent.
  app().toonCopyright("Naam", "1", "", "", "adres");
  auto const [leeg, zonder] = neemVertoning();
  EXPECT_EQ(leeg.GetDescription(), platformRegel() + "\n");
  EXPECT_EQ(zonder, nullptr);

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

TEST_F(Copyright, WithAnIconAllElseIsTheSameAndTheNextBoxHasItsOwnTexts) {
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

  app().toonCopyright("Twee", "2", "Ander", "", "elders");
  wxAboutDialogInfo const tweede = neemVertoning().info;
  EXPECT_EQ(tweede.GetName(), "Twee");
  EXPECT_EQ(tweede.GetDescription(), platformRegel() + "\nAnder");
  EXPECT_EQ(tweede.GetDevelopers().size(), 1U);
  EXPECT_FALSE(tweede.HasIcon());
}

}  // namespace
