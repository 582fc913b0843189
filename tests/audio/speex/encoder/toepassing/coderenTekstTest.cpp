// The text of an encoding run, whole, for both languages and for the values that are neither.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/datetime.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/steun/omgeving.h"

namespace {

// What every fragment begins with, up to the name of its file.
constexpr char const* fragmentKop =
    sizeof(void*) == 8 ? "\n/* Encoded on Linux (64 bit)\t\t*/\n/* Date : MOMENT\t\t*/\n"
                       : "\n/* Encoded on Linux (32 bit)\t\t*/\n/* Date : MOMENT\t\t*/\n";

constexpr char const* headerUitleg =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
    "    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";

class CoderenTekstProef : public WerkProef {
 protected:
  // Gets to the state of being loaded without a file.
  void laadNiets() {
    laad({wav("bel.wav")});
    laad({});
  }
  // Encodes a file and expects its rows without anything of a language around them.
  void verwachtKaal() {
    laad({wav("bel.wav", {1, -1})});
    EXPECT_EQ(codeer(), wxString("/* PCM encoding output of 1 audio files \t\t*/\n"
                                 "\n"
                                 "/* Put these declarations in a header file :*/\n"
                                 "\n"
                                 "\n"
                                 "/******* Start encoding file number 1 \t\t*******/\n") +
                            fragmentKop +
                            "/* WAV file : bel.wav\t\t*/\n"
                            "/* WAV information :   \t\t*/\n"
                            "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                            "/* Original size              : 2 frames\t\t*/\n"
                            "/* Original duration          : 0.00 s\t\t*/\n"
                            "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n"
                            "\t0xff,0xff,\n"
                            "\n"
                            "};\n"
                            "\n"
                            "/* end of encoded WAV file         : bel.wav         */\n"
                            "/******* Stop encoding file number 1 \t\t*******/\n"
                            "\n");
  }
};

TEST_F(CoderenTekstProef, TwoFilesInCWithHeader) {
  begin(0);
  laad({wav("zoem.wav", {1, 2, 3, 4, 0x1234, -32768, 32767, 0}), wav("bel.wav", {1, -1})});
  EXPECT_EQ(codeer(), wxString("/* PCM encoding output of 2 audio files \t\t*/\n"
                               "\n"
                               "/* Put these declarations in a header file :*/\n"
                               "// extern const unsigned char bel[];\n"
                               "// extern const unsigned char zoem[];\n"
                               "\n"
                               "\n"
                               "/******* Start encoding file number 1 \t\t*******/\n") +
                          fragmentKop +
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                          "/* Original size              : 2 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "/* const unsigned int bel_pcmNumberOfEncSamples=2; */\n" +
                          headerUitleg +
                          "const unsigned char bel[] = \n"
                          "{\n"
                          "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n"
                          "\t0xff,0xff,\n"
                          "\n"
                          "};\n"
                          "\n"
                          "/* end of encoded WAV file         : bel.wav         */\n"
                          "/******* Stop encoding file number 1 \t\t*******/\n"
                          "\n"
                          "/******* Start encoding file number 2 \t\t*******/\n" +
                          fragmentKop +
                          "/* WAV file : zoem.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                          "/* Original size              : 8 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "/* const unsigned int zoem_pcmNumberOfEncSamples=8; */\n" +
                          headerUitleg +
                          "const unsigned char zoem[] = \n"
                          "{\n"
                          "\t0x8,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n"
                          "\t0x2,0x0,0x3,0x0,0x4,0x0,0x34,0x12,\n"
                          "\t0x0,0x80,0xff,0x7f,0x0,0x0,\n"
                          "\n"
                          "};\n"
                          "\n"
                          "/* end of encoded WAV file         : zoem.wav         */\n"
                          "/******* Stop encoding file number 2 \t\t*******/\n"
                          "\n");
}

TEST_F(CoderenTekstProef, TwoFilesInCPlusPlusWithoutHeader) {
  begin(1);
  laad({wav("bel.wav", {1, -1, 256}, {16000}), wav("zoem.wav", {}, {16000})});
  zonderHeader();
  EXPECT_EQ(codeer(), wxString("/* PCM encoding output of 2 audio files \t\t*/\n"
                               "\n"
                               "/* Put these declarations in a header file :*/\n"
                               "// class Geluid\n"
                               "//{\n"
                               "\t//private:\n"
                               "// static const unsigned char bel[];\n"
                               "// static const unsigned char zoem[];\n"
                               "//};\n"
                               "\n"
                               "\n"
                               "/******* Start encoding file number 1 \t\t*******/\n") +
                          fragmentKop +
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                          "/* Original size              : 3 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "//const unsigned int Geluid::bel_pcmNumberOfEncSamples=3;\n"
                          "const unsigned char Geluid::bel[] = \n"
                          "{\n"
                          // The last six bytes are those that the header would have taken.
                          "\t0x1,0x0,0xff,0xff,0x0,0x1,0x0,0x0,\n"
                          "\t0x0,0x0,0x0,0x0,\n"
                          "\n"
                          "};\n"
                          "\n"
                          "/* end of encoded WAV file         : bel.wav         */\n"
                          "/******* Stop encoding file number 1 \t\t*******/\n"
                          "\n"
                          "/******* Start encoding file number 2 \t\t*******/\n" +
                          fragmentKop +
                          "/* WAV file : zoem.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                          "/* Original size              : 0 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "//const unsigned int Geluid::zoem_pcmNumberOfEncSamples=0;\n"
                          "const unsigned char Geluid::zoem[] = \n"
                          "{\n"
                          "\t0x0,0x0,0x0,0x0,0x0,0x0,\n"
                          "\n"
                          "};\n"
                          "\n"
                          "/* end of encoded WAV file         : zoem.wav         */\n"
                          "/******* Stop encoding file number 2 \t\t*******/\n"
                          "\n");
}

TEST_F(CoderenTekstProef, TheLanguageValue2LeavesOutDeclarationsCountAndArrayHead) {
  begin(2);
  verwachtKaal();
}

TEST_F(CoderenTekstProef, TheLanguageValue99DoesSoToo) {
  begin(99);
  verwachtKaal();
}

TEST_F(CoderenTekstProef, NoFilesInC) {
  begin(0);
  laadNiets();
  EXPECT_EQ(codeer(),
            "/* PCM encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
}

TEST_F(CoderenTekstProef, NoFilesInCPlusPlusLeaveTheShellOfTheClass) {
  begin(1);
  laadNiets();
  EXPECT_EQ(codeer(),
            "/* PCM encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "// class Geluid\n"
            "//{\n"
            "\t//private:\n"
            "//};\n"
            "\n"
            "\n");
}

TEST_F(CoderenTekstProef, NoFilesInAnotherLanguage) {
  begin(2);
  laadNiets();
  EXPECT_EQ(codeer(),
            "/* PCM encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
}

TEST_F(CoderenTekstProef, AFileThatVanishedAfterTheLoadGivesAFragmentOfNothingAndIsTold) {
  begin(0);
  wxString const bel = wav("bel.wav", {1, 2, 3});
  laad({bel});
  ASSERT_TRUE(wxRemoveFile(bel));
  wxString const text = codeer();
  EXPECT_EQ(text.Mid(text.find("/******* Start")),
            wxString("/******* Start encoding file number 1 \t\t*******/\n") + fragmentKop +
                "/* WAV file : bel.wav\t\t*/\n"
                "/* WAV information :   \t\t*/\n"
                "/* Sampling frequency         : 0 Hz\t\t*/\n"
                "/* Original size              : 0 frames\t\t*/\n"
                "/* Original duration          : nan s\t\t*/\n"
                "/* const unsigned int bel_pcmNumberOfEncSamples=0; */\n" +
                headerUitleg +
                "const unsigned char bel[] = \n"
                "{\n"
                "\t0x0,0x0,0x0,0x0,0x0,0x0,\n"
                "\n"
                "};\n"
                "\n"
                "/* end of encoded WAV file         : bel.wav         */\n"
                "/******* Stop encoding file number 1 \t\t*******/\n"
                "\n");
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not read the whole of " + bel});
}

TEST_F(CoderenTekstProef, ASecondRunGivesTheSameTextButForTheMoment) {
  begin(1);
  laad({wav("bel.wav", proefSamples(1000)), wav("zoem.wav", proefSamples(77))});
  wxString const eerste = codeer();
  // Choosing the width again gives the result up, so that Encode comes back.
  kies(keuze(ID_DAC_TYPE), 3);
  EXPECT_EQ(codeer(), eerste);
}

TEST_F(CoderenTekstProef, AShorterSecondRunKeepsNothingOfTheFirst) {
  begin(0);
  laad({wav("a.wav", proefSamples(5000)), wav("b.wav", {1})});
  codeer();
  laad({pad("b.wav")});
  wxString const tweede = codeer();
  EXPECT_EQ(tweede.Freq('}'), 1);
  EXPECT_FALSE(tweede.Contains("a.wav"));
  EXPECT_TRUE(
      tweede.EndsWith("/* end of encoded WAV file         : b.wav         */\n"
                      "/******* Stop encoding file number 1 \t\t*******/\n\n"));
  bewaar(pad("uit.c"));
  EXPECT_EQ(zonderMoment(inhoud(pad("uit.c"))), tweede);
}

TEST_F(CoderenTekstProef, TheMomentIsThatOfTheRun) {
  // No hour of this zone comes twice.
  TijdelijkeTijdzone const zone("TEST-13:30");
  begin(0);
  laad({wav("bel.wav")});
  wxDateTime const voor = wxDateTime::Now();
  codeer();
  wxDateTime const na = wxDateTime::Now();
  wxString const text = tekst();
  wxString const moment = text.Mid(text.find("/* Date : ") + 10).BeforeFirst('\t');
  wxDateTime gelezen;
  wxString::const_iterator einde;
  ASSERT_TRUE(gelezen.ParseFormat(moment, "%Y-%m-%d : %H:%M:%S", &einde)) << moment.utf8_str();
  EXPECT_EQ(einde, moment.end());
  EXPECT_TRUE(gelezen.IsBetween(voor - wxTimeSpan::Seconds(1), na)) << moment.utf8_str();
}

}  // namespace
