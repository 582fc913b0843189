// The run itself, with a maker that notes what is asked of it.
#include "audio/uitvoer/uitvoerRun.h"

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/mstream.h>
#include <wx/wfstream.h>

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/runProef.h"

namespace {

constexpr RunSoort proefSoort{"/* $aantal files */\n", "", "making", "T"};

// Writes a line for each file into its text, and notes what came before it.
class NoterendeMaker : public FragmentMaker {
 public:
  NoterendeMaker() : FragmentMaker(proefSoort) {}

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override {
    begonnen = klasse.utf8_string() + std::to_string(instellingen.speexQuality) + "/" +
               std::to_string(aantal);
  }
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override {
    std::string const regel =
        wav.GetFullPath().utf8_string() + (metHeader ? " with\n" : " without\n");
    uit.Write(regel.data(), regel.size());
    return wav.GetName() == "stuk" ? Gemaakt::mislukt
                                   : (wav.GetName() == "half" ? Gemaakt::nietHeel : Gemaakt::heel);
  }

  std::string begonnen;
};

// Has the header in every second array.
class WisselToezicht : public ProefToezicht {
 public:
  bool metHeader(KestrolinConfig const& /*instellingen*/) override { return ++gevraagd % 2 == 0; }
  int gevraagd = 0;
};

class UitvoerRun : public testing::Test {
 protected:
  std::optional<wxString> draai(std::initializer_list<char const*> wavs) {
    for (char const* wav : wavs) {
      paden.Add(wav);
    }
    instellingen.speexOutputLanguage = UitvoerTaalC;
    return voerRunUit({paden, instellingen, "K"}, maker, uit, toezicht);
  }

  wxSortedArrayString paden;
  KestrolinConfig instellingen;
  NoterendeMaker maker;
  WisselToezicht toezicht;
  wxMemoryOutputStream uit;
};

std::string const kop = "/* Put these declarations in a header file :*/\n";

TEST_F(UitvoerRun, PutsEachTextBetweenItsMarksBehindTheHead) {
  EXPECT_EQ(draai({"/b/a.wav", "/a/b.wav"}), std::nullopt);
  EXPECT_EQ(tekstVan(uit), "/* 2 files */\n" + kop +
                               "// extern const T b[];\n// extern const T a[];\n\n\n"
                               "/******* Start making file number 1 \t\t*******/\n"
                               "/a/b.wav without\n"
                               "/******* Stop making file number 1 \t\t*******/\n\n"
                               "/******* Start making file number 2 \t\t*******/\n"
                               "/b/a.wav with\n"
                               "/******* Stop making file number 2 \t\t*******/\n\n");
  EXPECT_EQ(maker.begonnen, "K8/2");
  EXPECT_EQ(toezicht.gedaan, (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(toezicht.gevraagd, 2);
  EXPECT_TRUE(toezicht.nietHeel.empty());
}

TEST_F(UitvoerRun, OverNoFilesHasItsHeadAlone) {
  EXPECT_EQ(draai({}), std::nullopt);
  EXPECT_EQ(tekstVan(uit), "/* 0 files */\n" + kop + "\n\n");
  EXPECT_EQ(maker.begonnen, "K8/0");
  EXPECT_EQ(toezicht.gevraagd, 0);
}

TEST_F(UitvoerRun, EndsAtTheFileThatCannotBeMade) {
  EXPECT_EQ(draai({"/a/a.wav", "/a/stuk.wav", "/b/c.wav"}), "/a/stuk.wav");
  std::string const tekst = tekstVan(uit);
  EXPECT_EQ(tekst.substr(tekst.find("/******* Start making file number 2")),
            "/******* Start making file number 2 \t\t*******/\n/a/stuk.wav with\n");
  EXPECT_EQ(toezicht.gedaan, std::vector<std::size_t>{1});
}

TEST_F(UitvoerRun, GoesOnBehindAFileThatIsNotAllThereAndTellsItsPath) {
  EXPECT_EQ(draai({"/a//half.wav", "/b/c.wav"}), std::nullopt);
  EXPECT_EQ(toezicht.nietHeel, std::vector<std::string>{"/a//half.wav"});
  EXPECT_EQ(toezicht.gedaan, (std::vector<std::size_t>{1, 2}));
}

TEST(RunToezicht, TakesTheHeaderFromTheSettings) {
  RunToezicht stil;
  KestrolinConfig instellingen;
  EXPECT_TRUE(stil.metHeader(instellingen));
  instellingen.IncludeHeader = false;
  EXPECT_FALSE(stil.metHeader(instellingen));
}

TEST_F(UitvoerRun, WritesToAFileAsToMemory) {
  TijdelijkeMap const map;
  maakWav(map.pad("bel.wav"), {1, -1});
  wxSortedArrayString wavs;
  wavs.Add(wxTekst(map.pad("bel.wav")));
  wavs.Add(wxTekst(map.pad("bel.wav")));
  auto const schrijf = [&](FragmentMaker& een, wxOutputStream& doel) {
    EXPECT_EQ(voerRunUit({wavs, instellingen, "K"}, een, doel, toezicht), std::nullopt);
  };
  PCMMaker pcmMaker;
  SpeexMaker speexMaker;
  for (FragmentMaker* const een :
       {static_cast<FragmentMaker*>(&pcmMaker), static_cast<FragmentMaker*>(&speexMaker)}) {
    wxMemoryOutputStream geheugen;
    schrijf(*een, geheugen);
    {
      wxFileOutputStream bestand(wxTekst(map.pad("uit.c")));
      schrijf(*een, bestand);
    }
    EXPECT_EQ(zonderMomenten(leesTekst(map.pad("uit.c"))), zonderMomenten(tekstVan(geheugen)));
  }
}

}  // namespace
