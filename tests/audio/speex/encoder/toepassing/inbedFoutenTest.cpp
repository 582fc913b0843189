// Embedding to places that take no file: the toolkit's own words in the log, and everything else as
// after a save that went well.
#include <wx/button.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"
#include "tests/steun/volleSchijf.h"

namespace {

class InbedFoutenProef : public InbedVensterProef {
 protected:
  void SetUp() override { beginMetBel(); }

  // Expects an error in the log that tells `reden`, this status text, an empty text field, and that
  // the next one goes well.
  void verwachtMislukt(wxString const& reden, wxString const& naam) {
    ASSERT_FALSE(fouten().empty());
    EXPECT_TRUE(fouten()[0].Contains(reden)) << fouten()[0].utf8_str();
    EXPECT_EQ(status(), "WAV embedded data saved in " + naam);
    EXPECT_EQ(tekst(), "");
    EXPECT_EQ(voortgang(), nullptr);
    EXPECT_TRUE(isGeladen());
    log().clear();
    std::filesystem::remove(map.pad("elders.c"));
    inbed(pad("elders.c"));
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_TRUE(zelfdeTekst(gelezen(pad("elders.c")), verwachteBel()));
    EXPECT_EQ(status(), "WAV embedded data saved in elders.c");
  }
};

TEST_F(InbedFoutenProef, APlaceThatTakesNoFile) {
  // A sign of a format is shown and not obeyed.
  for (wxString const naam : {"uit.c", "%s%n.c"}) {
    inbed("/proc/" + naam);
    if (naam == "uit.c") {
      // No image either: there is nowhere to put the text.
      EXPECT_TRUE(std::filesystem::is_empty(map.pad("tmp")));
    }
    verwachtMislukt("'/proc/" + naam + "'", naam);
  }
  submap("map.c");
  inbed(pad("map.c"));
  verwachtMislukt("Is a directory", "map.c");
  submap("weg");
  inbedOver(bestand("weg/uit.c", "oud\n"), wxID_YES,
            [this] { std::filesystem::remove_all(map.pad("weg")); });
  verwachtMislukt("No such file or directory", "uit.c");
  inbed("/dev/full");
  verwachtMislukt("No space left on device", "fullc");
}

// A file that even an administrator cannot open for writing, and anybody can read.
TEST_F(InbedFoutenProef, TheTextOfATargetThatCannotBeOpenedIsNotShown) {
  if (!wxFileName::FileExists("/sys/devices/system/cpu/online")) {
    GTEST_SKIP() << "no file here that the root user cannot open";
  }
  inbedOver("/sys/devices/system/cpu/online", wxID_NO);
  verwachtMislukt("'/sys/devices/system/cpu/online'", "onlinec");
}

TEST_F(InbedFoutenProef, AFileThatTakesNoBytesIsAskedAboutFirstAndShown) {
  inbedOver("/proc/version", wxID_NO);
  EXPECT_EQ(antwoorden.berichten.back().titel, "File exists");
  ASSERT_FALSE(fouten().empty());
  EXPECT_EQ(status(), "WAV embedded data saved in versionc");
  EXPECT_EQ(tekst(), inhoud("/proc/version"));
  EXPECT_TRUE(isGeladen());
}

// Each write that fails is a line in the log, and a box of so many lines would stand in the way.
TEST_F(InbedFoutenProef, ADeviceWithoutRoomIsToldOfOnceWhateverTheLength) {
  constexpr std::size_t lang = 100000;
  laad({wav("lang.wav", std::vector<std::int16_t>(lang, 0x1234))});
  inbed("/dev/full");
  ASSERT_FALSE(fouten().empty());
  EXPECT_LE(fouten().size(), 3U);
}

TEST_F(InbedFoutenProef, TheTextOfBeforeCanStillBeSavedAndTheDirectoryIsThatOfTheNextDialog) {
  wxString const gecodeerd = codeer();
  inbed("/proc/uit.c");
  EXPECT_EQ(tekst(), "");
  EXPECT_TRUE(isGecodeerd());
  log().clear();
  bewaar(pad("gecodeerd.c"));
  EXPECT_EQ(zonderMoment(inhoud(pad("gecodeerd.c"))), gecodeerd);
  EXPECT_EQ(vraag().map, "/proc");
}

TEST_F(InbedFoutenProef, WithoutRoomForAnImageTheArrayIsEmptyAndTheRestIsAsEver) {
  setenv("TMPDIR", "/proc", 1);
  inbed(pad("uit.c"));
  ASSERT_EQ(fouten().size(), 2U);
  EXPECT_EQ(fouten()[1], "Could not embed the whole of " + pad("bel.wav"));
  std::string const gevonden = gelezen(pad("uit.c"));
  EXPECT_NE(gevonden.find("/* Size                       : 2 bytes\t\t*/\n"), std::string::npos);
  EXPECT_NE(gevonden.find("const unsigned char bel[] = \n{\n\t};\n\n/* end of WAV file"),
            std::string::npos);
  EXPECT_EQ(status(), "WAV embedded data saved in uit.c");
  EXPECT_EQ(tekst(), inhoud(pad("uit.c")));
}

// The image of lang.wav is cut, and so is the text, which is longer.
TEST_F(InbedFoutenProef, ADiskThatFillsUpIsToldForEachRecordingAndForTheText) {
  laad({wav("bel.wav"), wav("100%s %n.wav", std::vector<std::int16_t>(500, 7))});
  {
    VolleSchijf const vol(1001);
    inbed(pad("uit.c"));
  }
  std::vector<wxString> const gevonden = fouten();
  ASSERT_EQ(gevonden.size(), 3U);
  EXPECT_EQ(gevonden[0], "Could not embed the whole of " + pad("100%s %n.wav"));
  EXPECT_TRUE(gevonden[1].Contains("File too large"));
  EXPECT_EQ(gevonden[2], "Could not write the whole of " + pad("uit.c"));
  EXPECT_EQ(wxFileName::GetSize(pad("uit.c")), 1001);
  EXPECT_EQ(status(), "WAV embedded data saved in uit.c");
}

TEST_F(InbedFoutenProef, ALongNameHasItsImageToo) {
  for (std::string const& naam : {std::string(251, 'a'), std::string(249, 'a')}) {
    laad({wav(naam + ".wav")});
    inbed(pad(naam + ".c"));
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_TRUE(
        zelfdeTekst(gelezen(pad(naam + ".c")), verwachteRun(Wijze::inbed, {}, {{naam, {1, -1}}})));
  }
}

TEST_F(InbedFoutenProef, AnImageInTheTemporaryDirectoryForEachFileStaysBehind) {
  laad({wav("bel.wav"), wav("zoem.wav")});
  inbed(pad("uit.c"));
  inbed(pad("nog.c"));
  std::vector<std::string> namen;
  for (auto const& een : std::filesystem::directory_iterator(map.pad("tmp"))) {
    namen.push_back(een.path().filename().string());
    namen.back().resize(namen.back().size() - 6);
  }
  std::sort(namen.begin(), namen.end());
  EXPECT_EQ(namen, (std::vector<std::string>{"bel", "bel", "zoem", "zoem"}));
}

}  // namespace
