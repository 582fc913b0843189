// Where the embedded files go: into new files, into files that are there, and what the window tells
// of it and leaves as it was.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"

namespace {

using InbedBewarenProef = InbedVensterProef;

// None of these settings is that of the start.
TEST_F(InbedBewarenProef, TheSettingsOfTheControlsReachTheTextOfANewFileAndTheField) {
  begin(0);
  laad({wav("één %s%n.wav", proefSamples(300)), wav("b.wav", {})});
  kies(radio(ID_LANG_IMPL), 1);
  typ(veld(ID_KLASSE), "Klok");
  kies(keuze(ID_DAC_TYPE), 0);
  inbed(pad("100%s%n.cpp"));
  EXPECT_TRUE(zelfdeTekst(
      gelezen(pad("100%s%n.cpp")),
      verwachteRun(Wijze::inbed, {1, "Klok", 8}, {{"b", {}}, {"één %s%n", golf(300)}})));
  EXPECT_EQ(tekst(), inhoud(pad("100%s%n.cpp")));
  EXPECT_EQ(status(), "WAV embedded data saved in 100%s%n.cpp");
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_EQ(voortgang(), nullptr);
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(InbedBewarenProef, NoFilesGiveTheHeadWithTheNumber0AndNoBlock) {
  beginMetBel();
  laad({bestand("geen.wav", "This is no sound at all.\n")});
  log().clear();
  ASSERT_TRUE(isGeladen());
  inbed(pad("uit.c"));
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("uit.c")), verwachteRun(Wijze::inbed, {}, {})));
  EXPECT_EQ(tekst(), inhoud(pad("uit.c")));
  EXPECT_EQ(status(), "WAV embedded data saved in uit.c");
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(InbedBewarenProef,
       TheNameAndTheAnswerAreForTheExactPathAndOnlyTheStatusTextGluesTheExtensionOn) {
  beginMetBel();
  bestand("klankc", "oud\n");
  inbed(pad("klank"));
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("klank")), verwachteBel()));
  EXPECT_FALSE(wxFileName::FileExists(pad("klank.c")));
  EXPECT_EQ(inhoud(pad("klankc")), "oud\n");
  EXPECT_EQ(status(), "WAV embedded data saved in klankc");
  // A name with another extension stays too.
  kies(radio(ID_LANG_IMPL), 1);
  inbed(pad("klank.c"));
  EXPECT_TRUE(wxFileName::FileExists(pad("klank.c")));
  EXPECT_EQ(status(), "WAV embedded data saved in klank.ccpp");
}

TEST_F(InbedBewarenProef, AnExistingFileBringsTheQuestionAndNoOrEscapeReplacesIt) {
  beginMetBel();
  for (int const antwoord : {wxID_NO, wxID_CANCEL}) {
    antwoorden.berichten.clear();
    inbedOver(bestand("oud.c", std::string(100000, 'x')), antwoord);
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    verwachtVraagOverBestand(antwoorden.berichten[0]);
    EXPECT_TRUE(zelfdeTekst(gelezen(pad("oud.c")), verwachteBel()));
    EXPECT_EQ(tekst(), inhoud(pad("oud.c")));
    EXPECT_EQ(status(), "WAV embedded data saved in oud.c");
  }
}

TEST_F(InbedBewarenProef, TheAnswerYesAddsANewHeadAndAllBlocksBehindWhatStandsThere) {
  beginMetBel();
  wxString const doel = bestand("oud.c", "één regel");
  inbedOver(doel, wxID_YES);
  EXPECT_TRUE(zelfdeTekst(gelezen(doel), "één regel" + verwachteBel()));
  EXPECT_EQ(tekst(), inhoud(doel));
  laad({wav("bel.wav", {7}), wav("zoem.wav", {})});
  inbedOver(doel, wxID_YES);
  EXPECT_TRUE(zelfdeTekst(
      gelezen(doel),
      "één regel" + verwachteBel() + verwachteRun(Wijze::inbed, {}, {{"bel", {7}}, {"zoem", {}}})));
  EXPECT_EQ(tekst(), inhoud(doel));
  EXPECT_EQ(status(), "WAV embedded data saved in oud.c");
}

TEST_F(InbedBewarenProef, AFileThatWentSinceTheLoadKeepsItsBlockWithAnEmptyArrayAndIsTold) {
  begin();
  laad({wav("a.wav", {1}), wav("weg.wav", {2}), wav("z.wav", {3})});
  ASSERT_TRUE(wxRemoveFile(pad("weg.wav")));
  inbed(pad("uit.c"));
  std::string const gevonden = gelezen(pad("uit.c"));
  EXPECT_NE(gevonden.find("/* WAV file : weg.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n"
                          "/* Sampling frequency         : 0 Hz\t\t*/\n"
                          "/* Size                       : 0 bytes\t\t*/\n"
                          "/* Duration                   : nan s\t\t*/\n"
                          "/* Full Scale gain adapted to : 16 bits\t\t*/\n\n"
                          "const unsigned char weg[] = \n{\n"
                          "\t};\n\n"
                          "/* end of WAV file         : weg.wav         */\n"
                          "/******* Stop embedding file number 2 \t\t*******/\n\n"
                          "/******* Start embedding file number 3 \t\t*******/\n"),
            std::string::npos);
  EXPECT_NE(gevonden.find("const unsigned char z[] = \n{\n\t0x52,"), std::string::npos);
  EXPECT_EQ(status(), "WAV embedded data saved in uit.c");
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not embed the whole of " + pad("weg.wav")});
}

TEST_F(InbedBewarenProef, AFreshResultStaysFreshAndUnsavedAndIsStillTheOneThatSaveWrites) {
  beginMetBel();
  // Without a result none appears.
  inbed(pad("eerder.c"));
  EXPECT_FALSE(isGecodeerd());
  EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
  EXPECT_TRUE(knop(wxID_SAVEAS)->IsEnabled());
  codeer();
  wxString const gecodeerd = tekst();
  inbed(pad("uit.c"));
  EXPECT_TRUE(isGecodeerd());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  EXPECT_TRUE(isGeladen());
  antwoorden.opBericht(wxID_CANCEL);
  klik(wxID_EXIT);
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
  bewaar(pad("gecodeerd.c"));
  EXPECT_EQ(inhoud(pad("gecodeerd.c")), gecodeerd);
}

TEST_F(InbedBewarenProef, DirectoriesAndHistoryStayAsTheyWere) {
  begin(0, "speexDirectory=/ergens/uit\nspeexFile=oud.c\n");
  submap("geluid");
  antwoorden.opBestandsVraag(wav("geluid/bel.wav"));
  klik(wxID_OPEN);
  wxString const map2 = submap("uitvoer");
  inbed(map2 + "/klank.c");
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\nwavDirectory=" + pad("geluid") + "\n"));
  EXPECT_TRUE(bewaard.Contains("\nspeexDirectory=/ergens/uit\n"));
  EXPECT_TRUE(bewaard.Contains("\nspeexFile=oud.c\n"));
  EXPECT_TRUE(bewaard.Contains("\nfile1=" + pad("geluid/bel.wav") + "\nfile2=\n"));
  EXPECT_FALSE(bewaard.Contains("uitvoer"));
  EXPECT_FALSE(bewaard.Contains("klank"));
}

}  // namespace
