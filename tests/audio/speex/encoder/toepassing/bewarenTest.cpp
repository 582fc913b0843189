// Saving of the generated text.
#include <wx/button.h>
#include <wx/filedlg.h>
#include <wx/radiobox.h>

#include <map>

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

TEST_F(BewarenProef, TheProposedNameAndTheFilterFollowTheLanguageAlsoOneThatIsNone) {
  beginGecodeerd(99);
  EXPECT_EQ(vraag().naam, "bel.py");
  EXPECT_EQ(vraag().filter, "py");
  kies(radio(ID_LANG_IMPL), 1);
  codeer();
  EXPECT_EQ(vraag().naam, "bel.cpp");
  EXPECT_EQ(vraag().filter, "cpp");
  // A name with another extension stays, and only the status text glues it on.
  bewaar(pad("klank.c"));
  EXPECT_EQ(inhoud(pad("klank.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in klank.ccpp");
}

TEST_F(BewarenProef, AnyOtherNumberOfFilesProposesTheNameOfTheirDirectory) {
  begin();
  submap("geluid");
  // That of the home directory, where no dialog was.
  laad({wav("a.wav"), wav("b.wav")});
  codeer();
  EXPECT_EQ(vraag().naam, "thuis.c");
  laad({});
  codeer();
  EXPECT_EQ(vraag().naam, "thuis.c");
  antwoorden.opBestandsVraag(wav("geluid/a.wav"));
  klik(wxID_OPEN);
  laad({wav("geluid/a.wav"), wav("geluid/b.wav"), wav("geluid/c.wav")});
  codeer();
  EXPECT_EQ(vraag().naam, "geluid.c");
}

TEST_F(BewarenProef, NamesWithDotsBlanksAccentsAndPerCentSignsAreProposedAsTheyAre) {
  begin();
  for (char const* naam : {"a.b", "stil zwijgen", "één", "100%", "%s%n"}) {
    laad({wav(std::string(naam) + ".wav")});
    codeer();
    EXPECT_EQ(vraag().naam, wxString::FromUTF8(naam) + ".c");
  }
}

TEST_F(BewarenProef, ANewFileIsWrittenWithoutAQuestionEachTime) {
  beginGecodeerd();
  // A name without extension stays, and only the status text glues it on. A sign of a format is
  // shown and not obeyed.
  for (auto const& [naam, verteld] : std::map<wxString, wxString>{
           {"uit.c", "uit.c"}, {"twee.c", "twee.c"}, {"klank", "klankc"}, {"%s%n.c", "%s%n.c"}}) {
    SCOPED_TRACE(naam.utf8_string());
    bewaar(pad(naam));
    EXPECT_EQ(inhoud(pad(naam)), tekst());
    EXPECT_EQ(status(), "Speex embedded data saved in " + verteld);
  }
  EXPECT_FALSE(wxFileName::FileExists(pad("klank.c")));
  EXPECT_FALSE(wxFileName::FileExists(pad("klankc")));
  antwoorden.opBestandsVraag(pad("menu.c"));
  kiesMenu(wxID_SAVE);
  EXPECT_EQ(inhoud(pad("menu.c")), tekst());
  EXPECT_EQ(status(), "Speex embedded data saved in menu.c");
  // The message of the run, and no other.
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_TRUE(isGecodeerd());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
}

TEST_F(BewarenProef, AnExistingFileBringsTheQuestionAndIsReplacedOrGrowsByTheAnswer) {
  beginGecodeerd();
  // Escape replaces it too.
  for (int const antwoord : {wxID_NO, wxID_CANCEL}) {
    antwoorden.berichten.clear();
    bewaarOver(bestand("oud.c", std::string(100000, 'x')), antwoord);
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    verwachtVraagOverBestand(antwoorden.berichten[0]);
    EXPECT_EQ(inhoud(pad("oud.c")), tekst());
    EXPECT_EQ(status(), "Speex embedded data saved in oud.c");
  }
  // Yes appends directly behind the old text, also the same once more.
  bewaarOver(bestand("oud.c", "oud zonder einde"), wxID_YES);
  EXPECT_EQ(inhoud(pad("oud.c")), "oud zonder einde" + tekst());
  bewaarOver(pad("oud.c"), wxID_YES);
  EXPECT_EQ(inhoud(pad("oud.c")), "oud zonder einde" + tekst() + tekst());
}

TEST_F(BewarenProef, TheStoredDirectoryIsKeptButTheDialogDoesNotStartFromIt) {
  wxString const oud = submap("oud");
  begin(0, "speexDirectory=" + oud + "\n");
  laad({wav("bel.wav")});
  codeer();
  EXPECT_EQ(vraag().map, "");
  EXPECT_TRUE(stop().Contains("\nspeexDirectory=" + oud + "\n"));
}

TEST_F(BewarenProef, TheDirectoryOfASaveIsThatOfTheNextDialogAndReachesTheConfiguration) {
  begin(0, "speexFile=/ergens/oud.c\n");
  laad({wav("bel.wav")});
  codeer();
  wxString const map2 = submap("uitvoer");
  bewaar(map2 + "/heel anders.txt");
  // The name is proposed afresh. A cancelled dialog leaves the directory.
  for (int keer = 0; keer < 2; ++keer) {
    BestandsVraag const volgende = vraag();
    EXPECT_EQ(volgende.map, map2);
    EXPECT_EQ(volgende.naam, "bel.c");
  }
  EXPECT_EQ(status(), "Speex embedded data saved in heel anders.txtc");
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

}  // namespace
