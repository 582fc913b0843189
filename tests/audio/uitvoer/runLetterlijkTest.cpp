// Whole texts of runs as they stand in a file, for each way of output in both languages. The codes
// of ADPCM were worked out by hand, the images of WAV files by the definition of the format.
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/runProef.h"

namespace {

class RunLetterlijk : public RunProef {
 protected:
  // One file of five samples, of which the last makes no code of ADPCM.
  void neemVijf(int taal) {
    wav("bel.wav", {1, -1, 100, -100, 5});
    laad({"bel.wav"});
    instellingen.speexOutputLanguage = taal;
  }
  // One file of two samples.
  void neemEen(int taal) {
    wav("bel.wav", {0x1234, -1}, {16000});
    laad({"bel.wav"});
    instellingen.speexOutputLanguage = taal;
  }
};

TEST_F(RunLetterlijk, PcmInCWithHeader) {
  neemEen(0);
  EXPECT_TRUE(zelfdeTekst(pcm(),
                          "/* PCM encoding output of 1 audio files \t\t*/\n\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// extern const unsigned char bel[];\n\n\n"
                          "/******* Start encoding file number 1 \t\t*******/\n\n"
                          "/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                          "/* Date : MOMENT\t\t*/\n"
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                          "/* Original size              : 2 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "/* const unsigned int bel_pcmNumberOfEncSamples=2; */\n\n"
                          "/* Bytes 0..3: Number of samples (Little Endian)\n"
                          "    Bytes 4..5: Sampling frequency\n"
                          "    Bytes 6..End:Data  */\n\n"
                          "const unsigned char bel[] = \n"
                          "{\n"
                          "\t0x2,0x0,0x0,0x0,0x80,0x3e,0x34,0x12,\n"
                          "\t0xff,0xff,\n\n"
                          "};\n\n"
                          "/* end of encoded WAV file         : bel.wav         */\n"
                          "/******* Stop encoding file number 1 \t\t*******/\n\n"));
}

TEST_F(RunLetterlijk, PcmInCPlusPlusWithoutHeader) {
  neemEen(1);
  metHeader = false;
  // The last six bytes are those that the header would have taken.
  EXPECT_TRUE(zelfdeTekst(pcm(),
                          "/* PCM encoding output of 1 audio files \t\t*/\n\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// class Geluid\n"
                          "//{\n"
                          "\t//private:\n"
                          "// static const unsigned char bel[];\n"
                          "//};\n\n\n"
                          "/******* Start encoding file number 1 \t\t*******/\n\n"
                          "/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                          "/* Date : MOMENT\t\t*/\n"
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                          "/* Original size              : 2 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "//const unsigned int Geluid::bel_pcmNumberOfEncSamples=2;\n"
                          "const unsigned char Geluid::bel[] = \n"
                          "{\n"
                          "\t0x34,0x12,0xff,0xff,0x0,0x0,0x0,0x0,\n"
                          "\t0x0,0x0,\n\n"
                          "};\n\n"
                          "/* end of encoded WAV file         : bel.wav         */\n"
                          "/******* Stop encoding file number 1 \t\t*******/\n\n"));
}

TEST_F(RunLetterlijk, PcmInAnyOtherLanguageLeavesOutDeclarationsCountAndArrayHead) {
  for (int const taal : {2, 99}) {
    neemEen(taal);
    EXPECT_TRUE(zelfdeTekst(pcm(),
                            "/* PCM encoding output of 1 audio files \t\t*/\n\n"
                            "/* Put these declarations in a header file :*/\n\n\n"
                            "/******* Start encoding file number 1 \t\t*******/\n\n"
                            "/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                            "/* Date : MOMENT\t\t*/\n"
                            "/* WAV file : bel.wav\t\t*/\n"
                            "/* WAV information :   \t\t*/\n"
                            "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                            "/* Original size              : 2 frames\t\t*/\n"
                            "/* Original duration          : 0.00 s\t\t*/\n"
                            "\t0x2,0x0,0x0,0x0,0x80,0x3e,0x34,0x12,\n"
                            "\t0xff,0xff,\n\n"
                            "};\n\n"
                            "/* end of encoded WAV file         : bel.wav         */\n"
                            "/******* Stop encoding file number 1 \t\t*******/\n\n"));
  }
}

// The header tells the layout of another encoder, and stands here all the same.
TEST_F(RunLetterlijk, AdpcmInCWithHeader) {
  neemVijf(0);
  EXPECT_TRUE(zelfdeTekst(adpcm(),
                          "/* ADPCM encoding output of 1 audio files \t\t*/\n\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// extern const unsigned char bel[];\n\n\n"
                          "/******* Start encoding file number 1 \t\t*******/\n\n"
                          "/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                          "/* Date : MOMENT\t\t*/\n"
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                          "/* Original size              : 5 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "/* const unsigned int bel_adpcmNumberOfEncSamples=2; */\n"
                          "/* const unsigned int bel_pcmNumberOfSamples=4; */\n\n"
                          "/* Bytes 0..3: Number of samples (Little Endian)\n"
                          "    Bytes 4..5: Sampling frequency\n"
                          "    Bytes 6..End:Data  */\n\n"
                          "const unsigned char bel[] = \n"
                          "{\n"
                          "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
                          "\t0x0,0x91,0xf7,\n\n"
                          "};\n\n"
                          "/* end of encoded WAV file         : bel.wav         */\n"
                          "/******* Stop encoding file number 1 \t\t*******/\n\n"));
}

TEST_F(RunLetterlijk, AdpcmInCPlusPlusWithoutHeader) {
  neemVijf(1);
  metHeader = false;
  // The last nine bytes are those that the header would have taken.
  EXPECT_TRUE(zelfdeTekst(adpcm(),
                          "/* ADPCM encoding output of 1 audio files \t\t*/\n\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// class Geluid\n"
                          "//{\n"
                          "\t//private:\n"
                          "// static const unsigned char bel[];\n"
                          "//};\n\n\n"
                          "/******* Start encoding file number 1 \t\t*******/\n\n"
                          "/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                          "/* Date : MOMENT\t\t*/\n"
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                          "/* Original size              : 5 frames\t\t*/\n"
                          "/* Original duration          : 0.00 s\t\t*/\n"
                          "//const unsigned int Geluid::bel_adpcmNumberOfEncSamples=2;\n"
                          "//const unsigned int Geluid::bel_pcmNumberOfSamples=4;\n"
                          "const unsigned char Geluid::bel[] = \n"
                          "{\n"
                          "\t0x91,0xf7,0x0,0x0,0x0,0x0,0x0,0x0,\n"
                          "\t0x0,0x0,0x0,\n\n"
                          "};\n\n"
                          "/* end of encoded WAV file         : bel.wav         */\n"
                          "/******* Stop encoding file number 1 \t\t*******/\n\n"));
}

// The codes of the second file go on where the first one ended, at prediction -19 and index 16, and
// those of the second run at -1 and 12, while the headers say 0 and 0.
TEST_F(RunLetterlijk, TheAdpcmCoderGoesOnFromFileToFileAndFromRunToRun) {
  neemVijf(0);
  wav("zoem.wav", {0, 0, 0, 0});
  laad({"zoem.wav", "bel.wav"});
  auto const rijen = [](std::string const& tekst) {
    std::string gevonden;
    for (std::size_t plaats = tekst.find("\n\t0x"); plaats != std::string::npos;
         plaats = tekst.find("\n\t0x", plaats + 1)) {
      gevonden += tekst.substr(plaats + 1, tekst.find('\n', plaats + 1) - plaats);
    }
    return gevonden;
  };
  std::string const kop = "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n";
  EXPECT_EQ(rijen(adpcm()), kop + "\t0x0,0x91,0xf7,\n" + kop + "\t0x0,0x82,0x80,\n");
  EXPECT_EQ(rijen(adpcm()), kop + "\t0x0,0x80,0xf7,\n" + kop + "\t0x0,0x1,0x80,\n");
}

// The image of a WAV file of two samples: its sizes, 16000 Hz and twice as many bytes a second.
std::string const beeld =
    "\t0x52,0x49,0x46,0x46,0x28,0x0,0x0,0x0,\n"
    "\t0x57,0x41,0x56,0x45,0x66,0x6d,0x74,0x20,\n"
    "\t0x10,0x0,0x0,0x0,0x1,0x0,0x1,0x0,\n"
    "\t0x80,0x3e,0x0,0x0,0x0,0x7d,0x0,0x0,\n"
    "\t0x2,0x0,0x10,0x0,0x64,0x61,0x74,0x61,\n";

TEST_F(RunLetterlijk, EmbeddingInC) {
  neemEen(0);
  EXPECT_TRUE(zelfdeTekst(inbed(),
                          "/* Embedded output of 1 WAV Files\t\t*/\n\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// extern const unsigned char bel[];\n\n\n"
                          "/******* Start embedding file number 1 \t\t*******/\n\n"
                          "/* Embedded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                          "/* Date : MOMENT\t\t*/\n"
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* WAV Format                 : WAV S16 PCM\t*/\n"
                          "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                          "/* Size                       : 2 bytes\t\t*/\n"
                          "/* Duration                   : 0.00 s\t\t*/\n"
                          "/* Full Scale gain adapted to : 16 bits\t\t*/\n\n"
                          "const unsigned char bel[] = \n"
                          "{\n" +
                              beeld +
                              "\t0x4,0x0,0x0,0x0,0x34,0x12,0xff,0xff,\n"
                              "\t};\n\n"
                              "/* end of WAV file         : bel.wav         */\n"
                              "/******* Stop embedding file number 1 \t\t*******/\n\n"));
}

TEST_F(RunLetterlijk, EmbeddingInCPlusPlusForEightBits) {
  neemEen(1);
  instellingen.dacNumberOfBits = 0;
  EXPECT_TRUE(zelfdeTekst(inbed(),
                          "/* Embedded output of 1 WAV Files\t\t*/\n\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// class Geluid\n"
                          "//{\n"
                          "\t//private:\n"
                          "// static const unsigned char bel[];\n"
                          "//};\n\n\n"
                          "/******* Start embedding file number 1 \t\t*******/\n\n"
                          "/* Embedded on " KESTROLIN_SYSTEEM "\t\t*/\n"
                          "/* Date : MOMENT\t\t*/\n"
                          "/* WAV file : bel.wav\t\t*/\n"
                          "/* WAV information :   \t\t*/\n"
                          "/* WAV Format                 : WAV S16 PCM\t*/\n"
                          "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                          "/* Size                       : 2 bytes\t\t*/\n"
                          "/* Duration                   : 0.00 s\t\t*/\n"
                          "/* Full Scale gain adapted to : 8 bits\t\t*/\n\n"
                          "const unsigned char Geluid::bel[] = \n"
                          "{\n" +
                              beeld +
                              "\t0x4,0x0,0x0,0x0,0x12,0x0,0xff,0xff,\n"
                              "\t};\n\n"
                              "/* end of WAV file         : bel.wav         */\n"
                              "/******* Stop embedding file number 1 \t\t*******/\n\n"));
}

}  // namespace
