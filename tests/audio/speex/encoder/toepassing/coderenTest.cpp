// What an encoding run does with the settings, the files and the window.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/audio/uitvoer/verwachteRun.h"

namespace {

class CoderenProef : public WerkProef {
 protected:
  // The files in the directory for temporary ones.
  std::vector<wxString> tijdelijk() const {
    std::vector<wxString> namen;
    for (auto const& een : std::filesystem::directory_iterator(map.pad("tmp"))) {
      namen.push_back(wxString::FromUTF8(een.path().filename().c_str()));
    }
    return namen;
  }
};

// None of these settings is that of the start.
TEST_F(CoderenProef, TheSettingsOfTheControlsReachTheTextWhichIsShownAndSavedAsItIs) {
  begin(0);
  laad({wav("één.wav", proefSamples(3000)), wav("b.wav", proefSamples(11))});
  kies(radio(ID_LANG_IMPL), 1);
  typ(veld(ID_KLASSE), "Klok");
  kies(keuze(ID_DAC_TYPE), 0);
  zonderHeader();
  EXPECT_TRUE(zelfdeTekst(
      codeer().utf8_string(),
      verwachteRun(Wijze::pcm, {1, "Klok", 8, false}, {{"b", golf(11)}, {"één", golf(3000)}})));
  bewaar(pad("uit.cpp"));
  EXPECT_EQ(inhoud(pad("uit.cpp")), tekst());
}

TEST_F(CoderenProef, NoFilesInCPlusPlusLeaveTheShellOfTheClass) {
  begin(1);
  laad({wav("bel.wav")});
  laad({});
  EXPECT_TRUE(zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::pcm, {1}, {})));
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, "PCM encoding succeeded");
}

TEST_F(CoderenProef, AShorterSecondRunKeepsNothingOfTheFirst) {
  begin();
  laad({wav("a.wav", proefSamples(5000)), wav("b.wav", {1})});
  codeer();
  laad({pad("b.wav")});
  EXPECT_TRUE(zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::pcm, {}, {{"b", {1}}})));
  bewaar(pad("uit.c"));
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
}

TEST_F(CoderenProef, AFileThatChangedAfterTheLoadGivesWhatItIsNow) {
  begin();
  laad({wav("bel.wav", {1, 2, 3})});
  wav("bel.wav", {9}, {44100});
  RunVorm vorm;
  vorm.rate = 44100;
  EXPECT_TRUE(zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::pcm, vorm, {{"bel", {9}}})));
}

TEST_F(CoderenProef, WithoutAClassNameCIsEncodedAndCPlusPlusIsNot) {
  begin(1);
  laad({wav("bel.wav")});
  typ(veld(ID_KLASSE), "");
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  EXPECT_FALSE(menuItem(ID_CODEER)->IsEnabled());
  kies(radio(ID_LANG_IMPL), 0);
  EXPECT_TRUE(codeer().Contains("\nconst unsigned char bel[] = \n{\n"));
}

TEST_F(CoderenProef, TheMessageTellsTheDirectoryOfTheOpenDialogAndBeforeOneThatOfHome) {
  begin();
  laad({wav("bel.wav")});
  codeer();
  // Without a separator at its end.
  EXPECT_EQ(antwoorden.berichten[0].tekst,
            "Audio data in\n" + map.pad("thuis") + "\nwas successfully encoded to PCM.");
  antwoorden.berichten.clear();
  verwachtMeldingVan("PCM");
}

TEST_F(CoderenProef, StatusAndEnablingFollowOnlyAfterTheMessageAndTheMenuItemEncodesToo) {
  begin();
  laad({wav("bel.wav")});
  verwachtGevolgNaMelding("Audio encoded in PCM embedded format");
  laad({pad("bel.wav")});
  antwoorden.opBericht(wxID_OK);
  kiesMenu(ID_CODEER);
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
}

TEST_F(CoderenProef, TheProgressStandsOneBehindItsEndBelowTheMessageAndGoesWithIt) {
  begin();
  laad({wav("a.wav"), wav("b.wav"), wav("c.wav")});
  antwoorden.opBericht(wxID_OK, [this] {
    wxGenericProgressDialog* const dialoog = voortgang();
    ASSERT_NE(dialoog, nullptr);
    EXPECT_EQ(dialoog->GetTitle(), "Encoding progress");
    EXPECT_EQ(dialoog->GetMessage(), "Completion of encoding progress");
    EXPECT_EQ(dialoog->GetRange(), 3);
    EXPECT_EQ(dialoog->GetValue(), 2);
    EXPECT_EQ(dialoog->GetParent(), venster);
    EXPECT_TRUE(dialoog->IsShown());
    EXPECT_EQ(dialoog->FindWindow(wxID_CANCEL), nullptr);
    // It keeps other windows from taking input.
    EXPECT_FALSE(venster->IsEnabled());
  });
  klik(ID_CODEER);
  EXPECT_EQ(voortgang(), nullptr);
  EXPECT_TRUE(venster->IsEnabled());
}

TEST_F(CoderenProef, EachRunLeavesItsTemporaryFileBehindUnderTheProposedName) {
  begin();
  laad({wav("bel.wav")});
  codeer();
  ASSERT_EQ(tijdelijk().size(), 1U);
  // Before the first save the prefix is empty, and six letters come behind it.
  wxString const eerste = tijdelijk()[0];
  EXPECT_EQ(eerste.length(), 6U);
  EXPECT_EQ(inhoud(pad("tmp/" + eerste)), tekst());

  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  kies(keuze(ID_DAC_TYPE), 0);
  codeer();
  std::vector<wxString> namen = tijdelijk();
  ASSERT_EQ(namen.size(), 2U);
  wxString const tweede = namen[0] == eerste ? namen[1] : namen[0];
  EXPECT_TRUE(tweede.StartsWith("bel"));
  EXPECT_EQ(tweede.length(), 9U);
  EXPECT_EQ(inhoud(pad("tmp/" + tweede)), tekst());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(CoderenProef, WithoutRoomForATemporaryFileTheFieldStaysEmptyAndTheTextCanBeSaved) {
  begin();
  laad({wav("bel.wav")});
  setenv("TMPDIR", "/proc", 1);
  EXPECT_EQ(codeer(), "");
  EXPECT_FALSE(fouten().empty());
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  bewaar(pad("uit.c"));
  EXPECT_TRUE(inhoud(pad("uit.c")).StartsWith("/* PCM encoding output of 1 audio files \t\t*/\n"));
}

}  // namespace
