// The text of a Speex run, whole, as it is shown and as it is saved: the languages, the bands, the
// header, and lists of files that are no lists.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

namespace {

class SpeexTekstProef : public SpeexRunProef {
 protected:
  // Gets to the state of being loaded without a file.
  void laadNiets() {
    laad({wav("bel.wav")});
    laad({});
  }
  // Encodes one file of a band in C, as the load chose it.
  void verwachtBand(int band, SpeexFragment const& fragment) {
    beginSpeex();
    laadFragmenten({fragment}, bandRates[static_cast<std::size_t>(band)]);
    verwachtBel(fragment, eersteInstelling(band));
  }
};

TEST_F(SpeexTekstProef, ThreeFilesInCAreShownAndSaved) {
  beginSpeex();
  laadFragmenten(drieFragmenten());
  std::string const verwacht = kopVanDrie + blokken(drieFragmenten(), {eersteInstelling(), ""});
  EXPECT_TRUE(zelfdeTekst(codeerTekst(), verwacht));
  EXPECT_TRUE(zelfdeTekst(bewaarTekst("uit.c"), verwacht));
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
}

TEST_F(SpeexTekstProef, ThreeFilesInCPlusPlusAreShownAndSaved) {
  beginSpeex(1);
  laadFragmenten(drieFragmenten());
  std::string const verwacht =
      "/* Speex encoding output of 3 audio files \t\t*/\n"
      "\n"
      "/* Put these declarations in a header file :*/\n"
      "// class Geluid\n"
      "//{\n"
      "\t//private:\n"
      "// static const signed char bel[];\n"
      "// static const signed char tik[];\n"
      "// static const signed char zoem[];\n"
      "//};\n"
      "\n"
      "\n" +
      blokken(drieFragmenten(), {eersteInstelling(), "Geluid::"});
  EXPECT_TRUE(zelfdeTekst(codeerTekst(), verwacht));
  EXPECT_TRUE(zelfdeTekst(bewaarTekst("uit.cpp"), verwacht));
}

TEST_F(SpeexTekstProef, TheClassNameOfTheFieldGoesIntoDeclarationsAndArrays) {
  beginSpeex(1);
  SpeexFragment const bel = spraakFragment();
  laadFragmenten({bel});
  typ(veld(ID_KLASSE), wxString::FromUTF8("A%s::Één"));
  EXPECT_TRUE(zelfdeTekst(codeerTekst(),
                          "/* Speex encoding output of 1 audio files \t\t*/\n"
                          "\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// class A%s::Één\n"
                          "//{\n"
                          "\t//private:\n"
                          "// static const signed char bel[];\n"
                          "//};\n"
                          "\n"
                          "\n" +
                              blokken({bel}, {eersteInstelling(), "A%s::Één::"})));
}

TEST_F(SpeexTekstProef, FilesAt16000HzAreWideband) {
  verwachtBand(1, {"bel", golf(1601), "0.10"});
}

TEST_F(SpeexTekstProef, FilesAt32000HzAreUltraWideband) {
  verwachtBand(2, {"bel", golf(3201), "0.10"});
}

TEST_F(SpeexTekstProef, TheLanguageValue2LeavesOutTheDeclarationsAndWritesCPlusPlusFragments) {
  beginSpeex(2);
  laadFragmenten(drieFragmenten());
  EXPECT_TRUE(zelfdeTekst(codeerTekst(),
                          "/* Speex encoding output of 3 audio files \t\t*/\n"
                          "\n"
                          "/* Put these declarations in a header file :*/\n"
                          "\n"
                          "\n" +
                              blokken(drieFragmenten(), {eersteInstelling(), "Geluid::"})));
}

TEST_F(SpeexTekstProef, TheLanguageValue99DoesSoToo) {
  beginSpeex(99);
  laadFragmenten({spraakFragment()});
  EXPECT_TRUE(zelfdeTekst(codeerTekst(),
                          "/* Speex encoding output of 1 audio files \t\t*/\n"
                          "\n"
                          "/* Put these declarations in a header file :*/\n"
                          "\n"
                          "\n" +
                              blokken({spraakFragment()}, {eersteInstelling(), "Geluid::"})));
}

TEST_F(SpeexTekstProef, WithoutHeaderTheArraysStartWithTheFirstFrame) {
  beginSpeex();
  laadFragmenten(drieFragmenten());
  zonderHeader();
  EXPECT_TRUE(zelfdeTekst(codeerTekst(),
                          kopVanDrie + blokken(drieFragmenten(), {eersteInstelling(), "", false})));
}

TEST_F(SpeexTekstProef, TheConfigurationCanLeaveTheHeaderOutAndTheBoxBringItBack) {
  beginSpeex(0, "IncludeHeader=0\n");
  laadFragmenten({spraakFragment()});
  EXPECT_TRUE(zelfdeTekst(
      codeerTekst(), kopVanBel + blokken({spraakFragment()}, {eersteInstelling(), "", false})));
  zet(vakje(ID_INCL_HEADER), true);
  verwachtBel(spraakFragment(), eersteInstelling());
}

TEST_F(SpeexTekstProef, AFileWithoutSamplesHasAnArrayOfItsHeader) {
  beginSpeex();
  laad({wav("bel.wav", {})});
  EXPECT_TRUE(zelfdeTekst(codeerTekst(),
                          kopVanBel +
                              "/******* Start encoding file number 1 \t\t*******/\n"
                              "\n"
                              "/* Encoded on Linux (64 bit)\t\t*/\n" +
                              momentRegel +
                              "/* WAV file : bel.wav\t\t*/\n"
                              "/* WAV information :   \t\t*/\n"
                              "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                              "/* Original size              : 0 frames\t\t*/\n"
                              "/* Original duration          : 0.00 s\t\t*/\n"
                              "/* Full Scale gain adapted to : 16 bits\t\t*/\n"
                              "\n"
                              "/* Speex information :    \t\t*/\n"
                              "/* Speex framesize                 : 160 bytes\t\t*/\n"
                              "/* Speex Format                    : Narrowband \t\t*/\n"
                              "/* Speex Bitrate                   : Fixed Bitrate \t\t*/\n"
                              "/* Speex Max Bitrate               : 5000 bytes \t\t*/\n"
                              "/* Speex AGC                       : true \t\t*/\n"
                              "/* Speex Denoise                   : true \t\t*/\n"
                              "/* Speex Voice Activated Detection : true \t\t*/\n"
                              "/* Speex Quality                   : 8  \t\t*/\n"
                              "/* Speex Complexity                : 3  \t\t*/\n"
                              "\n"
                              "/* Encoded array size              : 0 bytes\t\t*/\n"
                              "/* Encoded size/Original size      : 0 %\t\t*/\n"
                              "/* Max bytes/encoded frame         : 0 bytes\t\t*/\n"
                              "\n"
                              "const signed char bel[] = \n"
                              "{\n"
                              "\t/* Header: Sampling Freq (Lower + Higher Byte), Number of Frames "
                              "(Lower + Higher Byte) */\n"
                              "\t(signed char)0x40,(signed char)0x1f,(signed char)0x0,(signed "
                              "char)0x0,\n"
                              "};\n"
                              "\n"
                              "/* end of encoded WAV file         : bel.wav         */\n"
                              "/******* Stop encoding file number 1 \t\t*******/\n"
                              "\n"));
  verwachtMelding(0);
}

TEST_F(SpeexTekstProef, NoFilesInCGiveAHeadAndAMessageOfZeroPerCent) {
  beginSpeex();
  laadNiets();
  EXPECT_EQ(codeer(),
            "/* Speex encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
  verwachtMelding(0);
  EXPECT_EQ(status(), "Audio encoded in Speex embedded format");
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(SpeexTekstProef, NoFilesInCPlusPlusLeaveTheShellOfTheClass) {
  beginSpeex(1);
  laadNiets();
  EXPECT_EQ(codeer(),
            "/* Speex encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "// class Geluid\n"
            "//{\n"
            "\t//private:\n"
            "//};\n"
            "\n"
            "\n");
}

TEST_F(SpeexTekstProef, BeforeAnyLoadTheEventAloneGivesTheSameAsNoFiles) {
  beginSpeex();
  ASSERT_FALSE(knop(ID_CODEER)->IsEnabled());
  antwoorden.opBericht(wxID_OK);
  codeerZonderMelding();
  EXPECT_EQ(tekst(),
            "/* Speex encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
  verwachtMelding(0);
}

TEST_F(SpeexTekstProef, NamesGoIntoTheTextUnchanged) {
  beginSpeex(1);
  SpeexFragmenten const fragmenten{{"%s%n", golf(160), "0.02"},
                                   {"a.b", golf(160), "0.02"},
                                   {"stil zwijgen", golf(160), "0.02"},
                                   {"één", golf(160), "0.02"}};
  laadFragmenten(fragmenten);
  EXPECT_TRUE(zelfdeTekst(codeerTekst(),
                          "/* Speex encoding output of 4 audio files \t\t*/\n"
                          "\n"
                          "/* Put these declarations in a header file :*/\n"
                          "// class Geluid\n"
                          "//{\n"
                          "\t//private:\n"
                          "// static const signed char %s%n[];\n"
                          "// static const signed char a.b[];\n"
                          "// static const signed char stil zwijgen[];\n"
                          "// static const signed char één[];\n"
                          "//};\n"
                          "\n"
                          "\n" +
                              blokken(fragmenten, {eersteInstelling(), "Geluid::"})));
}

TEST_F(SpeexTekstProef, AShorterSecondRunKeepsNothingOfTheFirst) {
  beginSpeex();
  laadFragmenten(drieFragmenten());
  codeer();
  laadFragmenten({{"bel", golf(160), "0.02"}});
  verwachtBel({"bel", golf(160), "0.02"}, eersteInstelling());
  EXPECT_TRUE(zelfdeTekst(
      bewaarTekst("uit.c"),
      kopVanBel + blokken({{"bel", golf(160), "0.02"}}, {eersteInstelling(), "", true})));
}

}  // namespace
