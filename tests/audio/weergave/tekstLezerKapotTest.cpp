// What the reader says of texts that are not what they were.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "audio/weergave/tekstLezer.h"
#include "tests/audio/codec/codecHulp.h"

bool operator==(TekstKlacht const& een, TekstKlacht const& ander) {
  return een.regel == ander.regel && een.reden == ander.reden;
}
void PrintTo(TekstKlacht const& klacht, std::ostream* uit) {
  *uit << klacht.regel << ": " << klacht.reden;
}

namespace {

using Klachten = std::vector<TekstKlacht>;

// The brace of the array stands in line 16, and its elements in 17 and 18.
VerwachteTekst const toon{0, true, "Geluid", "toon", "toon.wav", 8000, 2, {1, -1}};
std::string const& heel() {
  static std::string const tekst = maakVerwachteTekst(toon);
  return tekst;
}

// The text with the first of these words in other words.
std::string met(std::string const& oud, std::string const& nieuw) {
  std::string tekst = heel();
  std::size_t const plaats = tekst.find(oud);
  EXPECT_NE(plaats, std::string::npos) << oud;
  return tekst.replace(plaats, oud.size(), nieuw);
}

void verwacht(std::string const& tekst, Klachten const& klachten, std::size_t arrays = 0) {
  SCOPED_TRACE(tekst.substr(0, 1000));
  GelezenTekst const gelezen = ontleedTekst(tekst);
  EXPECT_EQ(gelezen.klachten, klachten);
  EXPECT_EQ(gelezen.arrays.size(), arrays);
}

std::string nietOpZijnPlaats(std::string const& wat) {
  return "\"" + wat +
         "\" is out of place in the array toon, or no number that its elements hold: encode it "
         "again";
}

std::string const geenNaam =
    "the name of this array is no identifier: rename its WAV file, encode it again";
std::string const geenCommentaar =
    "no comments of Kestrolin tell what this array holds: keep them before it";

std::string zonder(std::string const& wat) {
  return "no comment before the array toon tells its " + wat +
         ": take the text as Kestrolin made it";
}

}  // namespace

TEST(TekstLezerKapot, NoArrayAtAll) {
  Klachten const geen{{0, "no array of Kestrolin stands in this text"}};
  verwacht("", geen);
  verwacht("\n\n", geen);
  verwacht("int main(void) { return 0; }\n", geen);
  verwacht("extern const unsigned char toon[];\n", geen);
  verwacht("\xEF\xBB\xBF\xFF\x01'\"\\", geen);
}

TEST(TekstLezerKapot, NoText) {
  Klachten const geen{{0, "this is no text: give a file that Kestrolin wrote"}};
  verwacht(std::string(1, '\0'), geen);
  verwacht(heel() + std::string(1, '\0'), geen);
}

TEST(TekstLezerKapot, CutOffAnywhere) {
  std::size_t const einde = heel().find('}') + 1;
  for (std::size_t lengte = 0; lengte <= heel().size(); ++lengte) {
    SCOPED_TRACE(lengte);
    GelezenTekst const gelezen = ontleedTekst(heel().substr(0, lengte));
    EXPECT_EQ(gelezen.arrays.size(), lengte < einde ? 0U : 1U);
    // Within its last comment a text with its array lacks the end of that.
    bool const inCommentaar = lengte > heel().rfind("/*") + 1 && lengte < heel().rfind("*/") + 2;
    EXPECT_EQ(gelezen.klachten.empty(), lengte >= einde && !inCommentaar);
  }
}

TEST(TekstLezerKapot, CutOffWithAnotherBehindIt) {
  Klachten const afgebroken{{18, "the array toon is cut off here: encode it again"}};
  std::string const begin = heel().substr(0, heel().find("0xff"));
  verwacht(begin, afgebroken);
  verwacht(begin + "/* a comment that never ends", afgebroken);
  Klachten const later{{20, afgebroken[0].reden}};
  verwacht(begin + "\n" + heel(), later, 1);
  verwacht(begin + "\n\n/* PCM encoding output of 1 audio files \t\t*/" + heel(), later, 1);
  // Behind an element that is none too.
  verwacht(begin + "zz\n" + heel(), {{18, nietOpZijnPlaats("zz")}}, 1);
}

TEST(TekstLezerKapot, ElementsThatAreNone) {
  for (std::string const wat :
       {"0x100", "256", "0xg", "0x", "0x1p", "1.5", "08", "9999999999999", "0x+1", "-1",
        "(signed char)0x1", "toon", "'a'", "\"a\"", "{", ";"}) {
    std::string const eerste = wat[0] == '-' || wat[0] == '(' ? wat.substr(0, 1)
                               : wat == "0x+1"                ? "0x"
                                                              : wat;
    verwacht(met("0xff", wat), {{18, nietOpZijnPlaats(eerste)}});
  }
  verwacht(met("0x1f,", "0x1f "), {{17, nietOpZijnPlaats("0x1")}});
  verwacht(met("0x1f,", "0x1f,,"), {{17, nietOpZijnPlaats(",")}});
  verwacht(met("0x1f", "\x01\xC3\xA9"), {{17, nietOpZijnPlaats("?")}});
  verwacht(met("0x1f", std::string(50, '7')),
           {{17, nietOpZijnPlaats(std::string(40, '7') + "...")}});
}

TEST(TekstLezerKapot, ElementsOfSpeexThatAreNone) {
  std::string const begin =
      "/* Encoded on Linux */\n/* Sampling frequency : 8000 Hz */\n/* Original size : 1 frames "
      "*/\nconst signed char toon[] = {\n";
  verwacht(begin + "1,0,}", {}, 1);
  for (auto const& [wat, waar] :
       std::vector<std::pair<std::string, std::string>>{{"-129", "129"},
                                                        {"256", "256"},
                                                        {"(char)0x1", "char"},
                                                        {"(signed char", "}"},
                                                        {"(signed char)-1", "-"},
                                                        {"-", "}"}}) {
    verwacht(begin + wat + "}", {{5, nietOpZijnPlaats(waar)}});
  }
}

TEST(TekstLezerKapot, ArraysOfWhichNoCommentTells) {
  std::string const kaal = "const unsigned char toon[] = {1, 2};\n";
  verwacht(kaal, {{1, geenCommentaar}});
  verwacht("\nint const tabel[][2] = {{1, 2}, {3, 4}};\n", {{2, geenCommentaar}});
  verwacht(heel() + kaal, {{23, geenCommentaar}}, 1);
  verwacht(met("/* const unsigned int toon_pcmNumberOfEncSamples=2; */", ""),
           {{16, zonder("encoder")}});
  verwacht(met("/* Sampling frequency  ", "/* Frequency "), {{16, zonder("sampling frequency")}});
  verwacht(met("8000 Hz", "much Hz"), {{16, zonder("sampling frequency")}});
  verwacht(met("8000 Hz", "65536 Hz"), {{16, zonder("sampling frequency")}});
  verwacht(met("8000 Hz", "-8000 Hz"), {{16, zonder("sampling frequency")}});
  verwacht(met("Samples=2", "Samples=?"), {{16, zonder("number of samples")}});
  verwacht(met("Samples=2", "Samples=-4294967294"), {{16, zonder("number of samples")}});
  verwacht(met("Samples=2", "Samples=4294967298"), {{16, zonder("number of samples")}});
  verwacht(met("const unsigned char", "const signed char"), {{16, zonder("encoder")}});
  verwacht(met("/* WAV file", "/* Full Scale gain adapted to : 17 bits *//* WAV file"),
           {{16, zonder("width of the DAC")}});
  verwacht(met("/* WAV file", "/* Full Scale gain adapted to : 0 bits *//* WAV file"),
           {{16, zonder("width of the DAC")}});
}

TEST(TekstLezerKapot, ARecordingThatCouldNotBeRead) {
  VerwachteTekst weg = toon;
  weg.rate = 0;
  weg.frames = 0;
  weg.samples.clear();
  verwacht(maakVerwachteTekst(weg),
           {{16, "the array toon was made of a WAV file that could not be read: encode it again"}});
}

TEST(TekstLezerKapot, BytesThatDoNotFitTheComments) {
  auto const past = [](std::string const& bytes, std::string const& samples) {
    return Klachten{{16, "the " + bytes + " bytes of the array toon are not the " + samples +
                             " samples of PCM at 8000 Hz that its comments tell: encode it again"}};
  };
  verwacht(met("0xff,", ""), past("9", "2"));
  verwacht(met("0xff,", "0xff,0,0,"), past("12", "2"));
  verwacht(met("Samples=2", "Samples=3"), past("10", "3"));
  verwacht(met("Samples=2", "Samples=-2"), past("10", "4294967294"));
  verwacht(met("\t0x2,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n\t0xff,0xff,", ""), past("0", "2"));
}

TEST(TekstLezerKapot, SpeexThatDoesNotFitItsComments) {
  // Two frames of no bytes, behind a header of 161 samples at 8000 Hz or without one.
  auto const tekst = [](bool header, std::string const& samples, std::string const& frequentie) {
    return "/* Encoded on Linux */\n/* Sampling frequency : " + frequentie +
           " Hz */\n/* Original size : " + samples + " frames */\nconst signed char toon[] =\n{\n" +
           (header ? "(signed char)0x40,(signed char)0x1f,(signed char)0xa1,(signed char)0x0,"
                   : "") +
           "0,0,};";
  };
  auto const past = [](std::string const& bytes, std::string const& samples,
                       std::string const& frequentie) {
    return Klachten{{5, "the " + bytes + " bytes of the array toon are not the " + samples +
                            " samples of Speex at " + frequentie +
                            " Hz that its comments tell: encode it again"}};
  };
  verwacht(tekst(true, "161", "8000"), {}, 1);
  verwacht(tekst(true, "162", "8000"), past("6", "162", "8000"));
  verwacht(tekst(true, "160", "8000"), past("6", "160", "8000"));
  verwacht(tekst(true, "161", "16000"), past("6", "161", "16000"));
  verwacht(tekst(false, "161", "8000"), {}, 1);
  verwacht(tekst(false, "320", "8000"), {}, 1);
  verwacht(tekst(false, "321", "8000"), past("2", "321", "8000"));
  verwacht(tekst(false, "160", "8000"), past("2", "160", "8000"));
  verwacht(tekst(false, "321", "16000"), {}, 1);
  verwacht(tekst(false, "161", "44100"), past("2", "161", "44100"));
}

TEST(TekstLezerKapot, AWavFileThatDoesNotFitItsComments) {
  std::string const wav = wavBytes({16000, 2}, std::vector<int>{1, 2, 3, 4, 5, 6});
  auto const tekst = [&wav](std::string const& samples, std::string const& frequentie) {
    return "/* Embedded on Linux */\n/* Sampling frequency : " + frequentie +
           " Hz */\n/* Size : " + samples + " bytes */\nconst unsigned char toon[] =\n{\n" +
           verwachteRijen({wav.begin(), wav.end()}) + "};";
  };
  auto const past = [](std::string const& samples, std::string const& frequentie) {
    return Klachten{{5, "the 56 bytes of the array toon are not the " + samples +
                            " samples of WAV at " + frequentie +
                            " Hz that its comments tell: encode it again"}};
  };
  verwacht(tekst("6", "16000"), {}, 1);
  verwacht(tekst("7", "16000"), {}, 1);
  verwacht(tekst("8", "16000"), past("8", "16000"));
  verwacht(tekst("5", "16000"), past("5", "16000"));
  verwacht(tekst("6", "8000"), past("6", "8000"));
}

TEST(TekstLezerKapot, NamesThatAreNoIdentifiers) {
  for (std::string const naam : {"my file", "1st", "a-b", "it's", "a{b", "a=b", "\xFF", "\xC2\x85",
                                 "\xC3", "a\nb", "", "a(b)", "\"a\""}) {
    std::string const tekst = met("char toon[", "char " + naam + "[");
    GelezenTekst const gelezen = ontleedTekst(tekst);
    SCOPED_TRACE(naam);
    EXPECT_EQ(gelezen.arrays.size(), 0U);
    ASSERT_FALSE(gelezen.klachten.empty());
    EXPECT_EQ(gelezen.klachten[0].reden, geenNaam);
  }
  verwacht(met("char toon[", "char Geluid::my toon["), {{16, geenNaam}});
  verwacht(met("char toon[", "int toon["), {{16, geenNaam}});
  verwacht(met("unsigned char toon[", "char toon["), {{16, geenNaam}});
  verwacht(met("unsigned char toon[", "unsigned signed char toon["), {{16, geenNaam}});
}

TEST(TekstLezerKapot, FragmentsWithoutAnArray) {
  std::string const kop = heel().substr(0, heel().find("const unsigned char"));
  std::string const mist = "the array of this fragment is missing: make the text again";
  verwacht(kop, {{2, mist}});
  verwacht(kop + heel(), {{2, mist}}, 1);
  verwacht(kop + "/* ADPCM encoding output of 1 audio files */" + heel(), {{2, mist}}, 1);
  // A language without arrays has the rows alone.
  verwacht(kop + "\t0x1,0x2,\n};\n", {{2, mist}});
}

TEST(TekstLezerKapot, ACommentWithoutEnd) {
  verwacht(heel() + "\n/* end", {{24, "this comment has no end: the text is cut off"}}, 1);
}

TEST(TekstLezerKapot, ComplainsTwentyTimesAtMost) {
  std::string tekst;
  for (std::size_t i = 0; i < 2 * maxKlachten; ++i) {
    tekst += "char a[] = {1};\n";
  }
  GelezenTekst const gelezen = ontleedTekst(tekst);
  ASSERT_EQ(gelezen.klachten.size(), 20U);
  EXPECT_EQ(gelezen.klachten.back(), (TekstKlacht{20, geenCommentaar}));
}
