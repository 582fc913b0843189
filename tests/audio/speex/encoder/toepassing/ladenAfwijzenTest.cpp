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
  void verwachtAfgewezen(wxString const& volledig) {
    log().clear();
    wxArrayString const over = laad({volledig});
    EXPECT_TRUE(over.empty());
    EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen(volledig.AfterLast('/'))});
    EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()), "Audio Files");
    EXPECT_TRUE(boomRegels().empty());
    EXPECT_FALSE(isGeladen());
    EXPECT_EQ(status(), "No audio file loaded");
  }
  // The same, and nothing of it reaches the configuration.
  void verwachtSpoorloos(wxString const& volledig) {
    begin();
    verwachtAfgewezen(volledig);
    wxString const bewaard = stop();
    EXPECT_TRUE(bewaard.Contains("\nfile1=\n")) << bewaard.utf8_str();
    EXPECT_TRUE(bewaard.Contains("\nspeexFormat=0\n"));
  }
};

TEST_F(AfwijzenProef, AFileAt44100Hz) {
  verwachtSpoorloos(wav("a.wav", {1, 2}, {44100}));
}

TEST_F(AfwijzenProef, AFileAt11025Hz) {
  verwachtSpoorloos(wav("a.wav", {1, 2}, {11025}));
}

TEST_F(AfwijzenProef, AFileOneHertzBesideAFrequency) {
  begin();
  verwachtAfgewezen(wav("a.wav", {1, 2}, {7999}));
  verwachtAfgewezen(wav("b.wav", {1, 2}, {16001}));
}

TEST_F(AfwijzenProef, AnEightBitFile) {
  verwachtSpoorloos(bestand("a.wav", wavBytes({8000, 1, 8}, "abcd")));
}

TEST_F(AfwijzenProef, ATwentyFourBitFile) {
  verwachtSpoorloos(bestand("a.wav", wavBytes({8000, 1, 24}, "abcabc")));
}

TEST_F(AfwijzenProef, AThirtyTwoBitFile) {
  verwachtSpoorloos(bestand("a.wav", wavBytes({8000, 1, 32}, "abcdabcd")));
}

TEST_F(AfwijzenProef, AFloatFile) {
  verwachtSpoorloos(bestand("a.wav", wavBytes({8000, 1, 32, 3}, std::string(8, '\0'))));
}

TEST_F(AfwijzenProef, AULawFile) {
  verwachtSpoorloos(bestand("a.wav", wavBytes({8000, 1, 8, 7}, "abcd")));
}

TEST_F(AfwijzenProef, AnExtensibleFileWithTheSameSamples) {
  verwachtSpoorloos(bestand("a.wav", extensibleWav()));
}

TEST_F(AfwijzenProef, ABigEndianFileWithTheSameSamples) {
  verwachtSpoorloos(bestand("a.wav", rifxWav()));
}

TEST_F(AfwijzenProef, AnAiffFileWithTheSameSamples) {
  verwachtSpoorloos(bestand("a.wav", aiff()));
}

TEST_F(AfwijzenProef, AnAuFileWithTheSameSamples) {
  verwachtSpoorloos(bestand("a.wav", au()));
}

TEST_F(AfwijzenProef, AnMp3FileThoughTheDialogOffersIt) {
  begin();
  wxString const lied = bestand("lied.mp3", mp3());
  antwoorden.opBestandsVraag(lied);
  klik(wxID_OPEN);
  EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen("lied.mp3")});
  EXPECT_TRUE(boomRegels().empty());
  EXPECT_FALSE(isGeladen());
}

TEST_F(AfwijzenProef, AnAdpcmFileAtAnotherFrequency) {
  verwachtSpoorloos(bestand("a.wav", imaAdpcmWav(22050, 0)));
}

TEST_F(AfwijzenProef, AFileThatIsNoSound) {
  verwachtSpoorloos(bestand("a.wav", "geen geluid\n"));
}

TEST_F(AfwijzenProef, AnEmptyFile) {
  verwachtSpoorloos(bestand("a.wav", ""));
}

TEST_F(AfwijzenProef, AHeaderCutOffAtAnyByte) {
  begin();
  std::string const heel = wavBytes({}, "abcd");
  // Up to the name of the data chunk.
  for (std::size_t lengte = 1; lengte <= 36; ++lengte) {
    verwachtAfgewezen(bestand("a.wav", heel.substr(0, lengte)));
  }
}

TEST_F(AfwijzenProef, ADirectory) {
  begin();
  verwachtAfgewezen(submap("map.wav"));
}

TEST_F(AfwijzenProef, AFileThatIsNotThere) {
  verwachtSpoorloos(pad("weg.wav"));
}

TEST_F(AfwijzenProef, AFileInADirectoryThatIsNotThere) {
  verwachtSpoorloos(pad("weg/weg.wav"));
}

TEST_F(AfwijzenProef, ALinkThatLeadsNowhereAndALinkToItself) {
  begin();
  std::filesystem::create_symlink("weg.wav", map.pad("los.wav"));
  std::filesystem::create_symlink("rond.wav", map.pad("rond.wav"));
  verwachtAfgewezen(pad("los.wav"));
  verwachtAfgewezen(pad("rond.wav"));
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
  verwachtAfgewezen(dicht);
  ASSERT_TRUE(wie != 0 || seteuid(wie) == 0);
}

TEST_F(AfwijzenProef, AnEmptyPath) {
  begin();
  verwachtAfgewezen("");
}

TEST_F(AfwijzenProef, APerCentSignInTheNameIsShownAndNotObeyed) {
  begin();
  for (char const* naam :
       {"100%.wav", "%s%n.wav", "a%s%s%s%s%s%s.wav", "%*d.wav", "% b.wav", "%"}) {
    verwachtAfgewezen(bestand(naam, "geen geluid"));
  }
}

TEST_F(AfwijzenProef, ADoubledPerCentSignInTheNameShowsOnce) {
  begin();
  laad({bestand("a%%b.wav", "geen geluid")});
  EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen("a%b.wav")});
}

TEST_F(AfwijzenProef, ANameWithBytesThatAreNoUtf8) {
  begin();
  maakWav(map.pad("b\xE9l.wav"), {1, 2});
  // However the toolkit may hand such a name over: as a private character, or a lone surrogate.
  verwachtAfgewezen(pad("b" + wxString(wxUniChar(0x1000E9)) + "l.wav"));
  verwachtAfgewezen(pad("b" + wxString(wxUniChar(0xDCE9)) + "l.wav"));
}

TEST_F(AfwijzenProef, NamesWithBlanksDotsAndAccentsAreToldWhole) {
  begin();
  for (char const* naam : {"stil zwijgen.wav", "a.b.c", "één ñ €.wav", "zonder"}) {
    verwachtAfgewezen(bestand(naam, "geen geluid"));
  }
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

TEST_F(AfwijzenProef, ARejectedPathThatComesTwiceIsToldTwice) {
  begin();
  EXPECT_TRUE(laad({pad("weg.wav"), pad("weg.wav")}).empty());
  EXPECT_EQ(fouten(), (std::vector<wxString>{afgewezen("weg.wav"), afgewezen("weg.wav")}));
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

TEST_F(AfwijzenProef, AnEmptySelectionLeavesTheBareRoot) {
  begin();
  laad({});
  EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()), "Audio Files");
  EXPECT_TRUE(boomRegels().empty());
  EXPECT_FALSE(isGeladen());
  EXPECT_EQ(status(), "No audio file loaded");
}

TEST_F(AfwijzenProef, TheDirectoryOfTheDialogIsKeptAlsoWhenEveryFileIsTurnedAway) {
  begin();
  wxString const muziek = submap("muziek");
  antwoorden.opBestandsVraag(bestand("muziek/lied.mp3", mp3()));
  klik(wxID_OPEN);
  EXPECT_FALSE(isGeladen());
  EXPECT_TRUE(stop().Contains("\nwavDirectory=" + muziek + "\n"));
}

}  // namespace
