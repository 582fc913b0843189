// The text that the embedding puts into the file and the text field, as a whole.
#include <wx/choice.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"

namespace {

using InbedTekstProef = InbedVensterProef;

TEST_F(InbedTekstProef, ANewFileIsWrittenWithoutAQuestion) {
  beginMetBel();
  inbed(pad("uit.c"));
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("uit.c")), verwachteBel()));
  EXPECT_EQ(tekst(), inhoud(pad("uit.c")));
  EXPECT_EQ(status(), "WAV embedded data saved in uit.c");
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(InbedTekstProef, ThreeFilesStandInTheOrderOfTheirPathsWithTheirNumbersInTheMarks) {
  begin();
  laad({wav("c.wav", {3}), wav("a.wav", {1, -1}), wav("b.wav", {})});
  inbed(pad("uit.c"));
  EXPECT_TRUE(
      zelfdeTekst(gelezen(pad("uit.c")), verwachteTekst("// extern const unsigned char a[];\n"
                                                        "// extern const unsigned char b[];\n"
                                                        "// extern const unsigned char c[];\n",
                                                        {{"a", {1, -1}}, {"b", {}}, {"c", {3}}})));
  EXPECT_EQ(tekst(), inhoud(pad("uit.c")));
}

TEST_F(InbedTekstProef, InCPlusPlusTheArraysBelongToTheClass) {
  begin(1);
  laad({wav("a.wav", {1}), wav("b.wav", {2})});
  inbed(pad("uit.cpp"));
  EXPECT_TRUE(
      zelfdeTekst(gelezen(pad("uit.cpp")), verwachteTekst("// class Geluid\n//{\n\t//private:\n"
                                                          "// static const unsigned char a[];\n"
                                                          "// static const unsigned char b[];\n"
                                                          "//};\n",
                                                          {{"a", {1}}, {"b", {2}}}, 1)));
}

TEST_F(InbedTekstProef, InPythonTheHeadHasNoDeclarationsAndTheBlocksNoDefinitions) {
  begin(2);
  laad({wav("a.wav", {1}), wav("b.wav", {2, 3})});
  inbed(pad("uit.py"));
  EXPECT_TRUE(
      zelfdeTekst(gelezen(pad("uit.py")), verwachteTekst("", {{"a", {1}}, {"b", {2, 3}}}, 2)));
  EXPECT_EQ(status(), "WAV embedded data saved in uit.py");
}

TEST_F(InbedTekstProef, ANameWithASpaceGivesADeclarationWithASpaceInIt) {
  begin();
  laad({wav("stil zwijgen.wav", {5})});
  inbed(pad("uit.c"));
  EXPECT_TRUE(zelfdeTekst(
      gelezen(pad("uit.c")),
      verwachteTekst("// extern const unsigned char stil zwijgen[];\n", {{"stil zwijgen", {5}}})));
}

TEST_F(InbedTekstProef, NamesWithAccentsAndPerCentSignsAreData) {
  begin();
  laad({wav("één %s%n.wav", {5})});
  inbed(pad("100%s%n.c"));
  EXPECT_TRUE(zelfdeTekst(
      gelezen(pad("100%s%n.c")),
      verwachteTekst("// extern const unsigned char één %s%n[];\n", {{"één %s%n", {5}}})));
  EXPECT_EQ(tekst(), inhoud(pad("100%s%n.c")));
  EXPECT_EQ(status(), "WAV embedded data saved in 100%s%n.c");
}

TEST_F(InbedTekstProef, NoFilesGiveTheHeadWithTheNumber0AndNoBlock) {
  beginMetBel();
  laad({bestand("geen.wav", "This is no sound at all.\n")});
  log().clear();
  ASSERT_TRUE(isGeladen());
  inbed(pad("uit.c"));
  EXPECT_EQ(inhoud(pad("uit.c")),
            "/* Embedded output of 0 WAV Files\t\t*/\n\n"
            "/* Put these declarations in a header file :*/\n"
            "\n\n");
  EXPECT_EQ(tekst(), inhoud(pad("uit.c")));
  EXPECT_EQ(status(), "WAV embedded data saved in uit.c");
  EXPECT_EQ(voortgang(), nullptr);
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(InbedTekstProef, NoFilesInCPlusPlusKeepTheShellOfTheClass) {
  begin(1);
  laad({wav("bel.wav")});
  laad({});
  inbed(pad("uit.cpp"));
  EXPECT_EQ(inhoud(pad("uit.cpp")),
            "/* Embedded output of 0 WAV Files\t\t*/\n\n"
            "/* Put these declarations in a header file :*/\n"
            "// class Geluid\n//{\n\t//private:\n//};\n"
            "\n\n");
}

TEST_F(InbedTekstProef, EachDacChoiceHasItsWidth) {
  begin();
  laad({wav("bel.wav", {-1, 255, 256, -32768, 32767})});
  std::vector<std::vector<int>> const verwacht{{-1, 0, 1, -128, 127},
                                               {-1, 3, 4, -512, 511},
                                               {-1, 15, 16, -2048, 2047},
                                               {-1, 255, 256, -32768, 32767}};
  std::vector<int> const bits{8, 10, 12, 16};
  for (std::size_t rij = 0; rij < bits.size(); ++rij) {
    kies(keuze(ID_DAC_TYPE), static_cast<int>(rij));
    wxString const doel = pad(wxString::Format("uit%d.c", bits[rij]));
    inbed(doel);
    EXPECT_TRUE(zelfdeTekst(gelezen(doel), verwachteBel(bits[rij], verwacht[rij])));
  }
}

TEST_F(InbedTekstProef, AnIndexOutsideTheTableCountsAs16Bits) {
  begin(0, "", "dacNumberOfBits=4\n");
  laad({wav("bel.wav", {-1, 255})});
  inbed(pad("uit.c"));
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("uit.c")), verwachteBel(16, {-1, 255})));
}

TEST_F(InbedTekstProef, ANegativeIndexCountsAs16Bits) {
  begin(0, "", "dacNumberOfBits=-1\n");
  laad({wav("bel.wav", {-1, 255})});
  inbed(pad("uit.c"));
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("uit.c")), verwachteBel(16, {-1, 255})));
}

TEST_F(InbedTekstProef, AnAdpcmFileBecomesAnAdpcmImage) {
  begin();
  laad({bestand("bel.wav", imaAdpcmWav(8000, 0x1234))});
  kies(keuze(ID_DAC_TYPE), 0);
  inbed(pad("uit.c"));
  // Every sample is the same, so that the one block holds the scaled value and steps of nothing.
  std::string const zelf = map.pad("zelf.wav");
  schrijfSnd(zelf, std::vector<int>(505, 0x12), {}, wavAdpcm);
  VerwachtBlok blok;
  blok.naam = "bel";
  blok.bestand = "bel.wav";
  blok.formaat = "WAV 4 Bit IMA ADPCM";
  blok.frames = 505;
  blok.duur = "0.06";
  blok.bits = 8;
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("uit.c")),
                          std::string("/* Embedded output of 1 WAV Files\t\t*/\n\n") + kopRegel +
                              "// extern const unsigned char bel[];\n\n\n"
                              "/******* Start embedding file number 1 \t\t*******/\n" +
                              verwachteInbedding(blok, leesBytes(zelf)) +
                              "/******* Stop embedding file number 1 \t\t*******/\n\n"));
}

}  // namespace
