// The dialog that asks where the embedded files go.
#include <wx/button.h>
#include <wx/filename.h>
#include <wx/radiobox.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"

namespace {

using InbedVraagProef = InbedVensterProef;

TEST_F(InbedVraagProef, TheDialogIsOpenedWithExactlyTheseArgumentsAndCancelledChangesNothing) {
  begin();
  laad({wav("bel.wav")});
  BestandsVraag const eerste = vraag();
  EXPECT_EQ(eerste.bericht, "Save the WAV files as embedded data");
  EXPECT_EQ(eerste.map, "");
  EXPECT_EQ(eerste.naam, "bel.c");
  EXPECT_EQ(eerste.filter, "c");
  EXPECT_EQ(eerste.stijl, 130);
  EXPECT_EQ(eerste.ouder, venster);
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_EQ(tekst(), "");
  EXPECT_EQ(voortgang(), nullptr);
  EXPECT_TRUE(std::filesystem::is_empty(map.pad("tmp")));
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(InbedVraagProef, ThreeFilesInSoundsInCPlusPlusProposeSoundsCpp) {
  begin(1);
  submap("sounds");
  antwoorden.opBestandsVraag(wav("sounds/a.wav"));
  klik(wxID_OPEN);
  laad({wav("sounds/a.wav"), wav("sounds/b.wav"), wav("sounds/c.wav")});
  BestandsVraag const eerste = vraag();
  EXPECT_EQ(eerste.naam, "sounds.cpp");
  EXPECT_EQ(eerste.filter, "cpp");
}

TEST_F(InbedVraagProef, AnyOtherLanguageValueProposesAPythonFile) {
  begin(99);
  laad({wav("bel.wav")});
  BestandsVraag const eerste = vraag();
  EXPECT_EQ(eerste.naam, "bel.py");
  EXPECT_EQ(eerste.filter, "py");
}

TEST_F(InbedVraagProef, TheProposalFollowsTheFilesAndTheLanguageAfterEachCancelledDialog) {
  begin();
  laad({wav("bel.wav")});
  EXPECT_EQ(vraag().naam, "bel.c");
  EXPECT_EQ(vraag().naam, "bel.c");
  // No files propose the name of the directory.
  laad({});
  EXPECT_EQ(vraag().naam, "thuis.c");
  submap("a/b");
  for (char const* naam : {"a/b/ding", "a.b", "stil zwijgen", "één", "100%", "%s%n"}) {
    wxString const heel = wxString::FromUTF8(naam);
    laad({wav(std::string(naam) + ".wav")});
    EXPECT_EQ(vraag().naam, heel.AfterLast('/') + ".c");
  }
  laad({wav("zoem.wav")});
  EXPECT_EQ(vraag().naam, "zoem.c");
  kies(radio(ID_LANG_IMPL), 1);
  BestandsVraag const cpp = vraag();
  EXPECT_EQ(cpp.naam, "zoem.cpp");
  EXPECT_EQ(cpp.filter, "cpp");
  EXPECT_EQ(cpp.map, "");
}

TEST_F(InbedVraagProef, AfterASaveTheDialogStartsInItsDirectoryAndProposesTheFilesAnew) {
  begin();
  laad({wav("bel.wav")});
  wxString const map2 = submap("uit voer");
  inbed(map2 + "/anders.txt");
  BestandsVraag const tweede = vraag();
  EXPECT_EQ(tweede.map, map2);
  EXPECT_EQ(tweede.naam, "bel.c");
  // A cancelled dialog keeps the directory of the last save.
  EXPECT_EQ(vraag().map, map2);
}

TEST_F(InbedVraagProef, TheDirectoryOfTheOtherSaveIsAnotherOne) {
  begin();
  laad({wav("bel.wav")});
  codeer();
  wxString const map2 = submap("gecodeerd");
  bewaar(map2 + "/uit.c");
  EXPECT_EQ(vraag().map, "");
  wxString const map3 = submap("ingebed");
  inbed(map3 + "/uit.c");
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  EXPECT_EQ(antwoorden.bestandsVragen.back().map, map2);
  EXPECT_EQ(vraag().map, map3);
}

}  // namespace
