// The text of an ADPCM run, whole, for both languages and for the values that are neither, and what
// a run leaves to the next. The codes were worked out by hand.
#include <wx/choice.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

// The text of one fragment, where the languages and headers differ in these pieces.
struct Fragment {
  wxString naam;
  int frames;
  wxString tellingen;
  wxString kop;  // of the array
  wxString rijen;
};

wxString fragmentTekst(Fragment const& een) {
  return "\n/* Encoded on Linux (64 bit)\t\t*/\n"
         "/* Date : MOMENT\t\t*/\n"
         "/* WAV file : " +
         een.naam +
         ".wav\t\t*/\n"
         "/* WAV information :   \t\t*/\n"
         "/* Sampling frequency         : 8000 Hz\t\t*/\n" +
         wxString::Format("/* Original size              : %d frames\t\t*/\n", een.frames) +
         "/* Original duration          : 0.00 s\t\t*/\n" + een.tellingen + een.kop + een.rijen +
         "\n};\n\n/* end of encoded WAV file         : " + een.naam + ".wav         */\n";
}

// The first two fragments of a run between their marks.
wxString blokken(Fragment const& eerste, Fragment const& tweede) {
  return "/******* Start encoding file number 1 \t\t*******/\n" + fragmentTekst(eerste) +
         "/******* Stop encoding file number 1 \t\t*******/\n\n"
         "/******* Start encoding file number 2 \t\t*******/\n" +
         fragmentTekst(tweede) + "/******* Stop encoding file number 2 \t\t*******/\n\n";
}

Fragment inC(wxString const& naam, int frames, int codeBytes, wxString const& rijen) {
  return {naam, frames,
          wxString::Format("/* const unsigned int %s_adpcmNumberOfEncSamples=%d; */\n"
                           "/* const unsigned int %s_pcmNumberOfSamples=%d; */\n",
                           naam, codeBytes, naam, 2 * codeBytes),
          // It tells the layout of another encoder, and stands here all the same.
          "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
          "    Bytes 4..5: Sampling frequency\n"
          "    Bytes 6..End:Data  */\n\n"
          "const unsigned char " +
              naam + "[] = \n{\n",
          rijen};
}

Fragment inCppZonderHeader(wxString const& naam, int frames, int codeBytes, wxString const& rijen) {
  return {naam, frames,
          wxString::Format("//const unsigned int Geluid::%s_adpcmNumberOfEncSamples=%d;\n"
                           "//const unsigned int Geluid::%s_pcmNumberOfSamples=%d;\n",
                           naam, codeBytes, naam, 2 * codeBytes),
          "const unsigned char Geluid::" + naam + "[] = \n{\n", rijen};
}

constexpr char const* kopInC =
    "/* ADPCM encoding output of 2 audio files \t\t*/\n\n"
    "/* Put these declarations in a header file :*/\n"
    "// extern const unsigned char bel[];\n"
    "// extern const unsigned char zoem[];\n"
    "\n\n";

class AdpcmRunTekstProef : public WerkProef {
 protected:
  // The last sample of the first file makes no code.
  void laadTwee() { laad({wav("zoem.wav", {0, 0, 0, 0}), wav("bel.wav", {1, -1, 100, -100, 5})}); }
  // Gives the result up, so that Encode comes back, without changing a setting.
  void maakOngedaan() { kies(keuze(ID_DAC_TYPE), keuze(ID_DAC_TYPE)->GetSelection()); }
};

// The second file's codes were made from prediction -19 and index 16, where the first file ended,
// while its header says 0 and 0.
wxString eersteRun() {
  return kopInC + blokken(inC("bel", 5, 2,
                              "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                              "\t0x0,0x91,0xf7,\n"),
                          inC("zoem", 4, 2,
                              "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                              "\t0x0,0x82,0x80,\n"));
}

// The same files from prediction -1 and index 12 on.
wxString tweedeRun() {
  return kopInC + blokken(inC("bel", 5, 2,
                              "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                              "\t0x0,0x80,0xf7,\n"),
                          inC("zoem", 4, 2,
                              "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                              "\t0x0,0x1,0x80,\n"));
}

TEST_F(AdpcmRunTekstProef, TwoFilesInCWithHeader) {
  beginAdpcm(0);
  laadTwee();
  EXPECT_EQ(codeer(), eersteRun());
}

TEST_F(AdpcmRunTekstProef, ASecondRunGivesOtherValuesAndTheSameCommentsButForTheMoment) {
  beginAdpcm(0);
  laadTwee();
  EXPECT_EQ(codeer(), eersteRun());
  maakOngedaan();
  EXPECT_EQ(codeer(), tweedeRun());
}

TEST_F(AdpcmRunTekstProef, RunsOfOtherEncodersInBetweenLeaveTheCoderAlone) {
  beginAdpcm(0);
  laadTwee();
  codeer();
  kies(radio(ID_ENCODER_TYPE), EncoderPCM);
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 2 audio files \t\t*/\n"));
  kies(radio(ID_ENCODER_TYPE), EncoderADPCM);
  EXPECT_EQ(codeer(), tweedeRun());
}

TEST_F(AdpcmRunTekstProef, TheCoderKeepsItsStateWhenFilesAndSettingsChange) {
  beginAdpcm(1);
  laadTwee();
  codeer();
  laad({pad("bel.wav"), pad("zoem.wav")});
  kies(radio(ID_LANG_IMPL), 0);
  EXPECT_EQ(codeer(), tweedeRun());
}

TEST_F(AdpcmRunTekstProef, TwoFilesInCPlusPlusWithoutHeader) {
  beginAdpcm(1);
  laadTwee();
  zonderHeader();
  // The last nine bytes are those that the header would have taken.
  EXPECT_EQ(codeer(),
            "/* ADPCM encoding output of 2 audio files \t\t*/\n\n"
            "/* Put these declarations in a header file :*/\n"
            "// class Geluid\n"
            "//{\n"
            "\t//private:\n"
            "// static const unsigned char bel[];\n"
            "// static const unsigned char zoem[];\n"
            "//};\n"
            "\n\n" +
                blokken(inCppZonderHeader("bel", 5, 2,
                                          "\t0x91,0xf7,0x0,0x0,0x0,0x0,0x0,0x0,\n"
                                          "\t0x0,0x0,0x0,\n"),
                        inCppZonderHeader("zoem", 4, 2,
                                          "\t0x82,0x80,0x0,0x0,0x0,0x0,0x0,0x0,\n"
                                          "\t0x0,0x0,0x0,\n")));
}

TEST_F(AdpcmRunTekstProef, ALanguageOfNeitherLeavesOutDeclarationsCountsAndArrayHeads) {
  beginAdpcm(2);
  laadTwee();
  EXPECT_EQ(codeer(),
            "/* ADPCM encoding output of 2 audio files \t\t*/\n\n"
            "/* Put these declarations in a header file :*/\n"
            "\n\n" +
                blokken({"bel", 5, "", "",
                         "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                         "\t0x0,0x91,0xf7,\n"},
                        {"zoem", 4, "", "",
                         "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                         "\t0x0,0x82,0x80,\n"}));
}

TEST_F(AdpcmRunTekstProef, NoFilesInCPlusPlusLeaveTheShellOfTheClass) {
  beginAdpcm(1);
  laad({wav("bel.wav")});
  laad({});
  EXPECT_EQ(codeer(),
            "/* ADPCM encoding output of 0 audio files \t\t*/\n\n"
            "/* Put these declarations in a header file :*/\n"
            "// class Geluid\n"
            "//{\n"
            "\t//private:\n"
            "//};\n"
            "\n\n");
}

}  // namespace
