// Saving of the generated text.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/radiobox.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class BewarenProef : public WerkProef {
 protected:
  // Starts, loads bel.wav and encodes it.
  void beginGecodeerd(int taal = 0) {
    begin(taal);
    laad({wav("bel.wav")});
    codeer();
  }
  // Opens the save dialog, cancels it, and returns what it was opened with.
  BestandsVraag vraag() {
    antwoorden.opBestandsVraagAnnuleren();
    klik(wxID_SAVE);
    return antwoorden.bestandsVragen.back();
  }
};

TEST_F(BewarenProef, TheDialogIsOpenedWithExactlyTheseArguments) {
  beginGecodeerd();
  BestandsVraag const eerste = vraag();
  EXPECT_EQ(eerste.bericht, "Save the embedded speex file");
  EXPECT_EQ(eerste.map, "");
  EXPECT_EQ(eerste.naam, "bel.c");
  EXPECT_EQ(eerste.filter, "c");
  EXPECT_EQ(eerste.stijl, wxFD_SAVE | wxFD_CHANGE_DIR);
  EXPECT_EQ(eerste.ouder, venster);
}

TEST_F(BewarenProef, InCPlusPlusTheProposedNameAndTheFilterFollowTheLanguage) {
  beginGecodeerd(1);
  BestandsVraag const eerste = vraag();
  EXPECT_EQ(eerste.naam, "bel.cpp");
  EXPECT_EQ(eerste.filter, "cpp");
}

TEST_F(BewarenProef, AnyOtherLanguageValueProposesAPythonFile) {
  beginGecodeerd(99);
  BestandsVraag const eerste = vraag();
  EXPECT_EQ(eerste.naam, "bel.py");
  EXPECT_EQ(eerste.filter, "py");
}

TEST_F(BewarenProef, SeveralFilesProposeTheNameOfTheirDirectory) {
  begin();
  submap("geluid");
  antwoorden.opBestandsVraag(wav("geluid/a.wav"));
  klik(wxID_OPEN);
  laad({wav("geluid/a.wav"), wav("geluid/b.wav"), wav("geluid/c.wav")});
  codeer();
  EXPECT_EQ(vraag().naam, "geluid.c");
}

TEST_F(BewarenProef, WithoutADialogSeveralFilesProposeTheNameOfTheHomeDirectory) {
  begin();
  laad({wav("a.wav"), wav("b.wav")});
  codeer();
  EXPECT_EQ(vraag().naam, "thuis.c");
}

TEST_F(BewarenProef, AnEmptyLoadProposesTheNameOfTheDirectoryToo) {
  begin();
  laad({wav("a.wav")});
  laad({});
  codeer();
  EXPECT_EQ(vraag().naam, "thuis.c");
}

TEST_F(BewarenProef, NamesWithDotsBlanksAccentsAndPerCentSignsAreProposedAsTheyAre) {
  begin();
  for (char const* naam : {"a.b", "stil zwijgen", "één", "100%", "%s%n"}) {
    laad({wav(std::string(naam) + ".wav")});
    codeer();
    EXPECT_EQ(vraag().naam, wxString::FromUTF8(naam) + ".c");
  }
}

TEST_F(BewarenProef, TheMenuItemSavesToo) {
  beginGecodeerd();
  antwoorden.opBestandsVraag(pad("uit.c"));
  kiesMenu(wxID_SAVE);
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in uit.c");
}

TEST_F(BewarenProef, ANewFileIsWrittenWithoutAQuestion) {
  beginGecodeerd();
  bewaar(pad("uit.c"));
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in uit.c");
  // The message of the run, and no other.
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(BewarenProef, ANameWithoutExtensionStaysAndOnlyTheStatusTextGluesItOn) {
  beginGecodeerd();
  bewaar(pad("klank"));
  EXPECT_EQ(inhoud(pad("klank")), tekst());
  EXPECT_FALSE(wxFileName::FileExists(pad("klank.c")));
  EXPECT_FALSE(wxFileName::FileExists(pad("klankc")));
  EXPECT_EQ(status(), "Speex embedded data saved in klankc");
}

TEST_F(BewarenProef, ANameWithAnotherExtensionStaysAndOnlyTheStatusTextGluesItOn) {
  beginGecodeerd(1);
  bewaar(pad("klank.c"));
  EXPECT_EQ(inhoud(pad("klank.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in klank.ccpp");
}

TEST_F(BewarenProef, APerCentSignInTheChosenNameIsShownAndNotObeyed) {
  beginGecodeerd();
  bewaar(pad("%s%n.c"));
  EXPECT_EQ(inhoud(pad("%s%n.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in %s%n.c");
}

TEST_F(BewarenProef, AnExistingFileBringsTheQuestion) {
  beginGecodeerd();
  bewaarOver(bestand("oud.c", "oud\n"), wxID_NO);
  ASSERT_EQ(antwoorden.berichten.size(), 2U);
  verwachtVraagOverBestand(antwoorden.berichten[1]);
}

TEST_F(BewarenProef, TheAnswerNoLeavesTheNewTextAlone) {
  beginGecodeerd();
  bewaarOver(bestand("oud.c", std::string(100000, 'x')), wxID_NO);
  EXPECT_EQ(inhoud(pad("oud.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in oud.c");
}

TEST_F(BewarenProef, EscapeAtTheQuestionOverwritesToo) {
  beginGecodeerd();
  bewaarOver(bestand("oud.c", std::string(100000, 'x')), wxID_CANCEL);
  EXPECT_EQ(inhoud(pad("oud.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in oud.c");
}

TEST_F(BewarenProef, TheAnswerYesAppendsDirectlyBehindTheOldText) {
  beginGecodeerd();
  bewaarOver(bestand("oud.c", "oud zonder einde"), wxID_YES);
  EXPECT_EQ(inhoud(pad("oud.c")), "oud zonder einde" + tekst());
}

TEST_F(BewarenProef, TheSameTextAppendedStandsTwiceInTheFile) {
  beginGecodeerd();
  bewaar(pad("uit.c"));
  bewaarOver(pad("uit.c"), wxID_YES);
  EXPECT_EQ(inhoud(pad("uit.c")), tekst() + tekst());
}

TEST_F(BewarenProef, TwoSavesWriteTheSameTextTwice) {
  beginGecodeerd();
  bewaar(pad("een.c"));
  bewaar(pad("twee.c"));
  EXPECT_EQ(inhoud(pad("een.c")), tekst());
  EXPECT_EQ(inhoud(pad("twee.c")), tekst());
}

TEST_F(BewarenProef, TheSecondDialogOpensInTheDirectoryOfTheFirstAndProposesAfreshName) {
  beginGecodeerd();
  wxString const map2 = submap("uitvoer");
  bewaar(map2 + "/heel anders.txt");
  BestandsVraag const tweede = vraag();
  EXPECT_EQ(tweede.map, map2);
  EXPECT_EQ(tweede.naam, "bel.c");
}

TEST_F(BewarenProef, TheStoredDirectoryIsKeptButTheDialogDoesNotStartFromIt) {
  wxString const oud = submap("oud");
  begin(0, "speexDirectory=" + oud + "\n");
  laad({wav("bel.wav")});
  codeer();
  EXPECT_EQ(vraag().map, "");
  EXPECT_TRUE(stop().Contains("\nspeexDirectory=" + oud + "\n"));
}

TEST_F(BewarenProef, TheDirectoryOfASaveReachesTheConfigurationAndTheFileDoesNot) {
  begin(0, "speexFile=/ergens/oud.c\n");
  laad({wav("bel.wav")});
  codeer();
  wxString const map2 = submap("uitvoer");
  bewaar(map2 + "/uit.c");
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\nspeexDirectory=" + map2 + "\n"));
  EXPECT_TRUE(bewaard.Contains("\nspeexFile=/ergens/oud.c\n"));
}

TEST_F(BewarenProef, ACancelledDialogChangesNothingThatCanBeSeen) {
  beginGecodeerd();
  vraag();
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(stop().Contains("\nspeexDirectory=" + thuis() + "\n"));
}

TEST_F(BewarenProef, ACancelledSecondDialogLeavesTheDirectoryOfTheFirst) {
  beginGecodeerd();
  wxString const map2 = submap("uitvoer");
  bewaar(map2 + "/uit.c");
  vraag();
  EXPECT_EQ(vraag().map, map2);
  EXPECT_EQ(status(), "Speex embedded data saved in uit.c");
}

TEST_F(BewarenProef, SavingLeavesTheEnablingAlone) {
  beginGecodeerd();
  bewaar(pad("uit.c"));
  EXPECT_TRUE(isGecodeerd());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
}

TEST_F(BewarenProef, AfterASaveTheWindowClosesWithoutAQuestion) {
  beginGecodeerd();
  bewaar(pad("uit.c"));
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
}

TEST_F(BewarenProef, AfterACancelledSaveTheQuestionStillComes) {
  beginGecodeerd();
  vraag();
  antwoorden.opBericht(wxID_NO);
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
}

TEST_F(BewarenProef, ANewRunAfterASaveBringsTheQuestionBack) {
  beginGecodeerd();
  bewaar(pad("uit.c"));
  kies(keuze(ID_DAC_TYPE), 0);
  codeer();
  antwoorden.opBericht(wxID_NO);
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
}

}  // namespace
