// The About box of the program: what it says and shows, and that it is in nobody's way.
#include <sys/utsname.h>
#include <unistd.h>
#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/menu.h>
#include <wx/utils.h>

#include <cmath>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/overVertoning.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"
#include "tests/steun/catalogusInGebruik.h"
#include "tests/steun/geduld.h"
#include "tests/steun/opdracht.h"

namespace {

constexpr char const* copyright =
    "Speex codec (c) Xiph.Org Foundation\nKestrolin (c) 2026 The Kestrolin team";
constexpr char const* beschrijving =
    "This program converts audio fragments\nfrom WAV format into speex arrays\nfor use in "
    "embedded applications.";
constexpr int breedte = 360;
constexpr int hoogte = 160;

// The machine as its kernel tells it. No blank stands before the bracket.
std::string platformRegel() {
  utsname systeem{};
  EXPECT_EQ(uname(&systeem), 0);
  std::string const machine = systeem.machine;
  bool const lang = machine.find("64") != std::string::npos || machine == "s390x";
  return "wxGTK " + std::string(systeem.sysname) + (lang ? "(64 bit)" : "(32 bit)");
}

using Over = ElkeTaalProef;
using OverEngels = TaalProef;

// The one box since the last call.
Vertoning neemEne() {
  std::vector<Vertoning> const alle = neemVertoningen();
  EXPECT_EQ(alle.size(), 1U);
  return alle.empty() ? Vertoning{} : alle.front();
}

TEST_F(OverEngels, EveryFieldIsTheProgramsAndTheNameIsTranslatedToo) {
  start();
  kiesMenu(wxID_ABOUT);
  auto const [info, ouder] = neemEne();
  EXPECT_EQ(info.GetName(), "Kestrolin");
  EXPECT_EQ(info.GetVersion(), "1.1");
  EXPECT_EQ(info.GetLongVersion(), "Version 1.1");
  EXPECT_EQ(info.GetDescription().utf8_string(), platformRegel() + "\n" + beschrijving);
  EXPECT_EQ(info.GetCopyright(), copyright);
  EXPECT_EQ(info.GetWebSiteURL(), "https://kestrolin.example");
  EXPECT_EQ(info.GetWebSiteDescription(), "https://kestrolin.example");
  ASSERT_EQ(info.GetDevelopers().size(), 1U);
  EXPECT_EQ(info.GetDevelopers()[0], "The Kestrolin team");
  EXPECT_FALSE(info.HasLicence());
  EXPECT_FALSE(info.HasDocWriters());
  EXPECT_FALSE(info.HasArtists());
  EXPECT_FALSE(info.HasTranslators());
  EXPECT_EQ(ouder, venster);
  EXPECT_TRUE(nietsGelogd(log()));
  // No language has another name for it, so that the catalogs of the program cannot tell.
  CatalogusInGebruik const catalogus(Vertalingen{{"Kestrolin", "Torenvalkje"}});
  kiesMenu(wxID_ABOUT);
  EXPECT_EQ(neemEne().info.GetName(), "Torenvalkje");
}

TEST_F(OverEngels, IconIsTheLogoScaledSmoothlyToItsSize) {
  start();
  kiesMenu(wxID_ABOUT);
  wxIcon const icoon = neemEne().info.GetIcon();
  ASSERT_TRUE(icoon.IsOk());
  ASSERT_EQ(icoon.GetSize(), wxSize(breedte, hoogte));
  wxBitmap bitmap;
  bitmap.CopyFromIcon(icoon);
  wxImage const beeld = bitmap.ConvertToImage();

  // The same by ImageMagick, with the cubic spline that a smooth enlargement is.
  ASSERT_TRUE(luktIn(map.pad(), "convert '" KESTROLIN_LOGO
                                "' -filter spline -resize 360x160! -depth 8 RGB:verwacht"));
  Bytes const verwacht = leesBytes(map.pad("verwacht"));
  ASSERT_EQ(verwacht.size(), std::size_t{3} * breedte * hoogte);
  double kwadraten = 0;
  for (std::size_t i = 0; i < verwacht.size(); ++i) {
    int const verschil = beeld.GetData()[i] - verwacht[i];
    kwadraten += static_cast<double>(verschil) * verschil;
  }
  double const afwijking = std::sqrt(kwadraten / static_cast<double>(verwacht.size()));
  EXPECT_LT(afwijking, 3.0);
}

TEST_F(OverEngels, TheBoxComesUpWithoutWaitingForItsEndAndTheWindowClosesWhileItStands) {
  start();
  laatVertoningenZien();
  bool gezien = false;
  auto const toonEnSluit = [this, &gezien] {
    kiesMenu(wxID_ABOUT);
    EXPECT_TRUE(leeft());
    // The desktop's own name of the box.
    std::string const zoek = "xdotool search --onlyvisible --all --pid " +
                             std::to_string(getpid()) + " --name '^About Kestrolin$' > '" +
                             map.pad("gevonden") + "' 2>&1";
    gezien = wachtTot([&zoek] { return voerUit(zoek) == 0; });
    // The window takes its events while the box stands.
    laad({wav("bel.wav")});
    EXPECT_EQ(status(), "Audio files loaded");
    kiesMenu(wxID_EXIT);
  };
  doeInHoofdlus(toonEnSluit, true);
  EXPECT_TRUE(gezien);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(stopSleutels().at("/Configuratie/file1"), pad("bel.wav"));
}

TEST_P(Over, SpeaksTheLanguageAndKeepsTheAddress) {
  beginInTaal(EncoderSpeex);
  kiesMenu(wxID_ABOUT);
  auto const [info, ouder] = neemEne();
  EXPECT_EQ(info.GetName().utf8_string(), vertaald("Kestrolin"));
  EXPECT_EQ(info.GetVersion(), "1.1");
  EXPECT_EQ(info.GetDescription().utf8_string(), platformRegel() + "\n" + anders(beschrijving));
  EXPECT_EQ(info.GetCopyright().utf8_string(), anders(copyright));
  EXPECT_EQ(info.GetWebSiteURL(), "https://kestrolin.example");
  EXPECT_EQ(info.GetWebSiteDescription(), "https://kestrolin.example");
  ASSERT_EQ(info.GetDevelopers().size(), 1U);
  EXPECT_EQ(info.GetDevelopers()[0], "The Kestrolin team");
  EXPECT_EQ(info.GetIcon().GetSize(), wxSize(breedte, hoogte));
  EXPECT_EQ(ouder, venster);
}

INSTANTIATE_TEST_SUITE_P(Talen, Over, ::testing::ValuesIn(talen()), taalCode);

}  // namespace
