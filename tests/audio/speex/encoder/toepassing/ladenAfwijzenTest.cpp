// Loading of files that are turned away: each is named in the log and leaves no other trace.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/treectrl.h>

#include <unistd.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class AfwijzenProef : public WerkProef {
 protected:
  // Loads `volledig` alone and expects one error line and no other trace.
  void verwachtAfgewezen(char const* wat, wxString const& volledig) {
    SCOPED_TRACE(wat);
    log().clear();
    wxArrayString const over = laad({volledig});
    EXPECT_TRUE(over.empty());
    EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen(volledig.AfterLast('/'))});
    EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()), "Audio Files");
    EXPECT_TRUE(boomRegels().empty());
    EXPECT_FALSE(isGeladen());
    EXPECT_EQ(status(), "No audio file loaded");
  }
  // The same for a file of this content.
  void verwachtInhoudAfgewezen(char const* wat, std::string const& inhoud) {
    verwachtAfgewezen(wat, bestand("a.wav", inhoud));
  }
  // Nothing of them all reaches the configuration.
  void verwachtSpoorloos() {
    wxString const bewaard = stop();
    EXPECT_TRUE(bewaard.Contains("\nfile1=\n")) << bewaard.utf8_str();
    EXPECT_TRUE(bewaard.Contains("\nspeexFormat=0\n"));
  }
};

TEST_F(AfwijzenProef, AFileOfAnotherFrequency) {
  begin();
  for (int const rate : {44100, 11025, 7999, 16001}) {
    verwachtAfgewezen(std::to_string(rate).c_str(), wav("a.wav", {1, 2}, {rate}));
  }
  verwachtInhoudAfgewezen("ADPCM", imaAdpcmWav(22050, 0));
  verwachtSpoorloos();
}

TEST_F(AfwijzenProef, AFileOfAnotherKind) {
  begin();
  verwachtInhoudAfgewezen("8 bits", wavBytes({8000, 1, 8}, "abcd"));
  verwachtInhoudAfgewezen("24 bits", wavBytes({8000, 1, 24}, "abcabc"));
  verwachtInhoudAfgewezen("32 bits", wavBytes({8000, 1, 32}, "abcdabcd"));
  verwachtInhoudAfgewezen("float", wavBytes({8000, 1, 32, 3}, std::string(8, '\0')));
  verwachtInhoudAfgewezen("u-law", wavBytes({8000, 1, 8, 7}, "abcd"));
  verwachtInhoudAfgewezen("extensible, with the same samples", extensibleWav());
  verwachtInhoudAfgewezen("big-endian, with the same samples", rifxWav());
  verwachtInhoudAfgewezen("AIFF, with the same samples", aiff());
  verwachtInhoudAfgewezen("AU, with the same samples", au());
  verwachtInhoudAfgewezen("no sound", "geen geluid\n");
  verwachtInhoudAfgewezen("empty", "");
  std::string const heel = wavBytes({}, "abcd");
  // Up to the name of the data chunk.
  for (std::size_t lengte = 1; lengte <= 36; ++lengte) {
    verwachtInhoudAfgewezen("a header cut off at any byte", heel.substr(0, lengte));
  }
  verwachtSpoorloos();
}

TEST_F(AfwijzenProef, APathWithoutAFile) {
  begin();
  verwachtAfgewezen("directory", submap("map.wav"));
  verwachtAfgewezen("not there", pad("weg.wav"));
  verwachtAfgewezen("in a directory that is not there", pad("weg/weg.wav"));
  std::filesystem::create_symlink("weg.wav", map.pad("los.wav"));
  std::filesystem::create_symlink("rond.wav", map.pad("rond.wav"));
  verwachtAfgewezen("link that leads nowhere", pad("los.wav"));
  verwachtAfgewezen("link to itself", pad("rond.wav"));
  verwachtAfgewezen("empty path", "");
  maakWav(map.pad("b\xE9l.wav"), {1, 2});
  // However the toolkit may hand such a name over.
  verwachtAfgewezen("bytes that are no UTF-8, as a private character",
                    pad("b" + wxString(wxUniChar(0x1000E9)) + "l.wav"));
  verwachtAfgewezen("bytes that are no UTF-8, as a lone surrogate",
                    pad("b" + wxString(wxUniChar(0xDCE9)) + "l.wav"));
  verwachtSpoorloos();
}

TEST_F(AfwijzenProef, ANameOfAnySignsIsShownAndNotObeyed) {
  begin();
  for (char const* naam : {"100%.wav", "%s%n.wav", "a%s%s%s%s%s%s.wav", "%*d.wav", "% b.wav", "%",
                           "stil zwijgen.wav", "a.b.c", "één ñ €.wav", "zonder"}) {
    verwachtAfgewezen(naam, bestand(naam, "geen geluid"));
  }
  // A doubled per cent sign shows once.
  log().clear();
  laad({bestand("a%%b.wav", "geen geluid")});
  EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen("a%b.wav")});
}

TEST_F(AfwijzenProef, AnMp3FileThoughTheDialogOffersItAndTheDirectoryIsKept) {
  begin();
  wxString const muziek = submap("muziek");
  antwoorden.opBestandsVraag(bestand("muziek/lied.mp3", mp3()));
  klik(wxID_OPEN);
  EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen("lied.mp3")});
  EXPECT_TRUE(boomRegels().empty());
  EXPECT_FALSE(isGeladen());
  EXPECT_TRUE(stop().Contains("\nwavDirectory=" + muziek + "\n"));
}

TEST_F(AfwijzenProef, AFileThatMayNotBeRead) {
  begin();
  namespace fs = std::filesystem;
  wxString const dicht = wav("dicht.wav");
  fs::permissions(map.pad("dicht.wav"), fs::perms::none);
  // Root may read everything, so the load goes on as somebody else.
  fs::permissions(map.pad(), fs::perms::group_exec | fs::perms::others_exec, fs::perm_options::add);
  constexpr uid_t niemand = 65534;
  uid_t const wie = geteuid();
  ASSERT_TRUE(wie != 0 || seteuid(niemand) == 0);
  verwachtAfgewezen("closed", dicht);
  ASSERT_TRUE(wie != 0 || seteuid(wie) == 0);
}

TEST_F(AfwijzenProef, ARejectedPathThatComesTwiceIsToldTwiceAndAnEmptySelectionNever) {
  begin();
  EXPECT_TRUE(laad({pad("weg.wav"), pad("weg.wav")}).empty());
  laad({});
  EXPECT_EQ(fouten(), (std::vector<wxString>{afgewezen("weg.wav"), afgewezen("weg.wav")}));
  EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()), "Audio Files");
  EXPECT_TRUE(boomRegels().empty());
  EXPECT_FALSE(isGeladen());
  EXPECT_EQ(status(), "No audio file loaded");
}

TEST_F(AfwijzenProef, TheOtherFilesOfTheSelectionAreStillTried) {
  begin();
  wxString const a = wav("a.wav");
  wxString const c = wav("c.wav");
  wxArrayString const over = laad({a, bestand("b.wav", "x"), c, pad("d.wav")});
  ASSERT_EQ(over.size(), 2U);
  EXPECT_EQ(over[0], a);
  EXPECT_EQ(over[1], c);
  EXPECT_EQ(fouten(), (std::vector<wxString>{afgewezen("b.wav"), afgewezen("d.wav")}));
  EXPECT_EQ(boomRegels(), boomVan({{"a.wav", 2, 8000}, {"c.wav", 2, 8000}}));
  EXPECT_EQ(status(), "Audio files loaded");
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\nfile1=" + c + "\nfile2=" + a + "\nfile3=\n"));
}

TEST_F(AfwijzenProef, AfterARejectedFirstFileTheSecondCountsAsTheFirst) {
  begin(0, "", "speexFormat=2\n");
  laad({wav("a.wav", {1}, {44100}), wav("b.wav")});
  EXPECT_EQ(boomRegels(), boomVan({{"b.wav", 2, 8000}}));
  EXPECT_EQ(keuze(ID_FORMAAT)->GetStringSelection(), "Narrowband");
  EXPECT_TRUE(isGeladen());
}

TEST_F(AfwijzenProef, OnlyRejectedFilesAfterASuccessStillCountAsLoaded) {
  begin();
  laad({wav("a.wav")});
  codeer();
  EXPECT_TRUE(isGecodeerd());
  laad({pad("weg.wav")});
  EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()), "Audio Files");
  EXPECT_TRUE(boomRegels().empty());
  EXPECT_TRUE(isGeladen());
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 0 audio files \t\t*/\n\n"));
}

}  // namespace
