// Targets that nothing may be saved to: a loaded recording stays what it is, and a pipe would keep
// the window waiting.
#include <sys/stat.h>
#include <wx/button.h>
#include <wx/msgdlg.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"
#include "tests/steun/bytes.h"

namespace {

class DoelProef : public InbedVensterProef {
 protected:
  // Loads bel.wav and zoem.wav, and encodes them.
  void SetUp() override {
    begin();
    laad({wav("bel.wav"), wav("zoem.wav", {5, 6, 7})});
    voorBel = leesBytes(map.pad("bel.wav"));
    voorZoem = leesBytes(map.pad("zoem.wav"));
    codeer();
    gecodeerd = tekst();
    antwoorden.berichten.clear();
  }
  // The one line of the log, no question asked, and both recordings as they were.
  void verwachtGeweigerd(wxString const& regel, wxString const& statusTekst) {
    EXPECT_EQ(fouten(), std::vector<wxString>{regel});
    EXPECT_TRUE(antwoorden.berichten.empty());
    EXPECT_EQ(status(), statusTekst);
    EXPECT_EQ(leesBytes(map.pad("bel.wav")), voorBel);
    EXPECT_EQ(leesBytes(map.pad("zoem.wav")), voorZoem);
    log().clear();
  }
  // Both ways of saving to `doel`.
  void verwachtOpnameBlijft(wxString const& doel, wxString const& naam) {
    wxString const regel = doel + " is a loaded recording, and nothing is saved to it";
    SCOPED_TRACE(doel.utf8_string());
    bewaar(doel);
    verwachtGeweigerd(regel, "Speex embedded data saved in " + naam + "c");
    inbed(doel);
    verwachtGeweigerd(regel, "WAV embedded data saved in " + naam + "c");
    EXPECT_EQ(tekst(), "");
    // The next ones go well.
    std::filesystem::remove(map.pad("alles.c"));
    std::filesystem::remove(map.pad("gecodeerd.c"));
    inbed(pad("alles.c"));
    bewaar(pad("gecodeerd.c"));
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_EQ(inhoud(pad("gecodeerd.c")), gecodeerd);
    EXPECT_TRUE(inhoud(pad("alles.c")).StartsWith("/* Embedded output of 2 WAV Files\t\t*/\n"));
  }

  wxString gecodeerd;
  Bytes voorBel;
  Bytes voorZoem;
};

TEST_F(DoelProef, EachLoadedRecordingStaysByWhateverName) {
  bewaar(pad("bel.wav"));
  EXPECT_EQ(tekst(), gecodeerd);
  log().clear();
  verwachtOpnameBlijft(pad("bel.wav"), "bel.wav");
  verwachtOpnameBlijft(pad("zoem.wav"), "zoem.wav");
  std::filesystem::create_symlink(map.pad("bel.wav"), map.pad("100%s %n"));
  verwachtOpnameBlijft(pad("100%s %n"), "100%s %n");
  std::filesystem::create_hard_link(map.pad("zoem.wav"), map.pad("anders"));
  verwachtOpnameBlijft(pad("anders"), "anders");
  // Another folder to the same file.
  std::filesystem::create_directory_symlink(map.pad(), map.pad("omweg"));
  verwachtOpnameBlijft(pad("omweg/bel.wav"), "bel.wav");
}

TEST_F(DoelProef, ARecordingThatIsNotLoadedIsAFileLikeAnyOther) {
  wxString const ander = wav("ander.wav");
  bewaarOver(ander, wxID_NO);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(inhoud(ander), tekst());
  // Nor any more.
  laad({pad("zoem.wav")});
  codeer();
  bewaarOver(pad("bel.wav"), wxID_NO);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(inhoud(pad("bel.wav")), tekst());
}

TEST_F(DoelProef, ADeviceThatDoesNotBlockTakesTheText) {
  bewaar("/dev/null");
  inbed("/dev/null");
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(DoelProef, ARefusedSaveCountsAsSavedLikeAnyThatFailed) {
  bewaar(pad("bel.wav"));
  log().clear();
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_TRUE(antwoorden.berichten.empty());
}

TEST_F(DoelProef, APipeIsRefusedAndNotWaitedFor) {
  ASSERT_EQ(mkfifo(map.pad("pijp.c").c_str(), 0600), 0);
  std::filesystem::create_symlink("pijp.c", map.pad("link.c"));
  for (wxString const naam : {"pijp.c", "link.c"}) {
    wxString const regel = pad(naam) + " is a pipe, and nothing is saved to it";
    bewaar(pad(naam));
    verwachtGeweigerd(regel, "Speex embedded data saved in " + naam);
    inbed(pad(naam));
    verwachtGeweigerd(regel, "WAV embedded data saved in " + naam);
    EXPECT_EQ(tekst(), "");
  }
}

TEST_F(DoelProef, APipeThatComesDuringTheQuestionIsNotWaitedForEither) {
  for (int const antwoord : {wxID_YES, wxID_NO}) {
    wxString const doel = bestand("uit.c", "oud\n");
    bewaarOver(doel, antwoord, [this] {
      std::filesystem::remove(map.pad("uit.c"));
      ASSERT_EQ(mkfifo(map.pad("uit.c").c_str(), 0600), 0);
    });
    ASSERT_EQ(fouten().size(), 1U);
    EXPECT_TRUE(fouten()[0].StartsWith("can't open file '" + doel + "' (error 6: "));
    EXPECT_EQ(status(), "Speex embedded data saved in uit.c");
    std::filesystem::remove(map.pad("uit.c"));
    log().clear();
  }
}

}  // namespace
