// What the decoder does with text, files and numbers that are not as the tool writes them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>

#include "tests/externals/software/extern/speex/decoderHulp.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

using namespace std::string_literals;

namespace {

// 5 frames at 8000 Hz, as text and as sound.
class SpeexDecodeerFouten : public testing::Test {
 protected:
  void verwachtEenFragment(Gedecodeerd const& gevonden) const {
    verwachtGeluid(gevonden, 1, geluid);
  }

  Frames frames = maakFrames(SpeexNarrowband, 5);
  std::string tekst = arrayTekst(8000, 5, frames);
  Samples const geluid = gehoord(frames);
};

void verwachtNiets(Gedecodeerd const& gevonden, int uitslag) {
  EXPECT_EQ(gevonden.uitslag, uitslag);
  EXPECT_EQ(gevonden.fragmenten, 0U);
  EXPECT_TRUE(gevonden.samples.empty());
  EXPECT_TRUE(nietsGelogd(gevonden.log));
}

TEST_F(SpeexDecodeerFouten, BracesInCommentLinesAreNoFragments) {
  verwachtEenFragment(decodeer("/* { */\n// a {\n//{\n\t/* {{ 0x1,0x2,\n/ {\na / b {\n" + tekst +
                               "/* { 0x40,0x1f,0x1,0x0, */\n// {"));
}

TEST_F(SpeexDecodeerFouten, ACommentReachesToTheEndOfItsLineAlone) {
  verwachtNiets(decodeer("/* a comment\nof two lines { */\n"), 2);
  verwachtNiets(decodeer("/* two */ /* comments { */\n"), 0);
}

TEST_F(SpeexDecodeerFouten, OnlyCommentsGiveAWavWithoutSamplesThatOthersOpen) {
  TijdelijkeMap const map;
  maakBestand(map.pad("tekst.c"),
              "/* Speex encoding output of 0 audio files \t\t*/\n\n// class K\n//{\n//};\n");
  Gedecodeerd const gevonden = decodeerBestand(map.pad("tekst.c"), map.pad("uit.wav"));
  verwachtNiets(gevonden, 0);
  SF_INFO const info = wavInfo(map.pad("uit.wav"));
  EXPECT_EQ(info.samplerate, 8000);
  EXPECT_EQ(info.channels, 1);
  EXPECT_EQ(info.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  EXPECT_EQ(info.frames, 0);
  EXPECT_EQ(voerUit("sox '" + map.pad("uit.wav") + "' -t raw '" + map.pad("uit.raw") + "'"), 0);
  EXPECT_EQ(std::filesystem::file_size(map.pad("uit.raw")), 0U);
}

TEST_F(SpeexDecodeerFouten, EmptyTextGivesAWavWithoutSamples) {
  verwachtNiets(decodeer(""), 0);
}

TEST_F(SpeexDecodeerFouten, AnOpenBraceAsTheLastByteGivesTwo) {
  verwachtNiets(decodeer("{"), 2);
  verwachtNiets(decodeer("const signed char toon[] = \n{"), 2);
}

TEST_F(SpeexDecodeerFouten, AnArrayWithoutHeaderGivesTwo) {
  verwachtNiets(decodeer(arrayMet(frameRegels(frames))), 2);
  SpeexDoel doel = runDoel();
  doel.metHeader = false;
  verwachtNiets(decodeer(runVan({ruis(800)}, doel)), 2);
}

TEST_F(SpeexDecodeerFouten, AnArrayWithoutHeaderAndFewerThanTwoSizesEnds) {
  verwachtNiets(decodeer(arrayMet("")), 2);
  verwachtNiets(decodeer(arrayMet("1,2,3,\n")), 2);
  verwachtNiets(decodeer(arrayMet(frameRegels({frames[0]}))), 2);
}

TEST_F(SpeexDecodeerFouten, ABandOfAnotherFrequencyGivesTwo) {
  verwachtNiets(decodeer(tekst, SpeexWideband), 2);
  verwachtNiets(decodeer(tekst, SpeexUltraWideband), 2);
  verwachtNiets(decodeer(arrayTekst(16000, 5, frames)), 2);
}

TEST_F(SpeexDecodeerFouten, AWrongFrequencyBehindAGoodFragmentKeepsTheFirst) {
  Gedecodeerd const gevonden = decodeer(tekst + arrayTekst(16000, 5, frames) + tekst);
  EXPECT_EQ(gevonden.uitslag, 2);
  EXPECT_EQ(gevonden.fragmenten, 1U);
  EXPECT_TRUE(zelfdeSamples(gevonden.samples, geluid));
  EXPECT_EQ(gevonden.log.size(), 1U);
}

TEST_F(SpeexDecodeerFouten, ANulOutsideAFragmentEndsTheText) {
  verwachtNiets(decodeer("/* */\n\0\n"s + tekst), 0);
  verwachtEenFragment(decodeer(tekst + "\0"s + tekst));
}

TEST_F(SpeexDecodeerFouten, SizesAbove200ReadAllTheirNumbersAndKeepWithinTheBuffer) {
  std::map<std::size_t, std::string> const groottes{
      {200, "0xc8,"}, {201, "0xc9,"}, {254, "0xfe,"}, {255, "0xff,"}};
  for (auto const& [grootte, tekstVanGrootte] : groottes) {
    Bytes groot = frames[1];
    groot.resize(200);
    std::string lang = frameRegels({groot});
    lang.replace(lang.find("0xc8,"), 5, tekstVanGrootte);
    // Numbers that would be sizes, were they left unread. The 201st is the tab on the last line.
    for (std::size_t i = 201; i < grootte; ++i) {
      lang += "0x5,";
    }
    SCOPED_TRACE(grootte);
    verwachtGeluid(decodeer(arrayMet(headerRegel(8000, 3) + frameRegels({frames[0]}) + lang + "\n" +
                                     frameRegels({frames[2]}))),
                   1, gehoord({frames[0], groot, frames[2]}));
  }
}

TEST_F(SpeexDecodeerFouten, ASizeThatTheTextFallsShortOfReadsZeros) {
  Bytes kort(frames[4].begin(), frames[4].begin() + 10);
  std::string deel = frameRegels({kort});
  deel.replace(deel.find("0xa,"), 4, "0xff,");
  kort.resize(200);
  verwachtGeluid(decodeer("{" + headerRegel(8000, 2) + frameRegels({frames[0]}) + deel), 1,
                 gehoord({frames[0], kort}));
}

// The lines of the frames with each number as `schrijf` writes it.
template <typename Schrijf>
std::string anders(Frames const& frames, Schrijf schrijf) {
  std::string rijen = headerRegel(8000, static_cast<unsigned int>(frames.size()));
  for (Bytes const& frame : frames) {
    rijen += "\t0x14,  /* Encoded Frame [0] Size */\n";
    for (unsigned char const byte : frame) {
      rijen += schrijf(static_cast<int>(static_cast<signed char>(byte)));
    }
    rijen += "\n";
  }
  return arrayMet(rijen);
}

TEST_F(SpeexDecodeerFouten, NumbersOutOfRangeCountByTheirLowByte) {
  for (int const ronde : {-256, 256, 25600, 65536}) {
    verwachtEenFragment(decodeer(
        anders(frames, [ronde](int waarde) { return std::to_string(waarde + ronde) + ","; })));
  }
}

TEST_F(SpeexDecodeerFouten, BlanksEmptyLinesAndCommasAroundNumbersMakeNoDifference) {
  verwachtEenFragment(decodeer(
      anders(frames, [](int waarde) { return " \t" + std::to_string(waarde) + " ,,\n,\r\n"; })));
}

TEST_F(SpeexDecodeerFouten, OfAWordTheNumberAtItsBeginCounts) {
  verwachtEenFragment(decodeer(
      anders(frames, [](int waarde) { return std::to_string(waarde) + " = a byte\xC3\xA9,"; })));
}

TEST_F(SpeexDecodeerFouten, WordsThatAreNoNumbersAreZeros) {
  for (std::string const woord : {"abc,", "0x7f,", "-,", " ,", "};\n", "\xFF\xFE,"}) {
    Frames nullen = frames;
    std::fill(nullen[2].begin() + 3, nullen[2].begin() + 9, static_cast<unsigned char>(0));
    int plaats = 0;
    SCOPED_TRACE(testing::PrintToString(woord));
    verwachtGeluid(decodeer(anders(frames,
                                   [&](int waarde) {
                                     int const hier = plaats++ - 2 * 20;
                                     return hier >= 3 && hier < 9 ? woord
                                                                  : std::to_string(waarde) + ",";
                                   })),
                   1, gehoord(nullen));
  }
}

TEST_F(SpeexDecodeerFouten, ACountOf65535WithoutFramesWritesAsManyBlocksOfSilence) {
  verwachtGeluid(decodeer("{0x40,0x1f,0xff,0xff,\n};\n"), 1, Samples(std::size_t{65535} * 160));
}

TEST_F(SpeexDecodeerFouten, AnEndlessCountEndsWithinACountBehindTheText) {
  for (std::string const woord : {"0xffffffff,0xffffffff,", "0x0,0x-1,", "0xffff,0x1,"}) {
    Gedecodeerd const gevonden =
        decodeer("{0x40,0x1f," + woord + "\n" + frameRegels(frames) + "};\n");
    ASSERT_GE(gevonden.samples.size(), geluid.size());
    // The frames of the text, and then blocks of the last one.
    verwachtGeluid(gevonden, 1, gehoord(frames, gevonden.samples.size() / 160 - frames.size()));
    EXPECT_LE(gevonden.samples.size(), std::size_t{5 + 65535} * 160);
  }
}

TEST_F(SpeexDecodeerFouten, AFrameThatTheLibraryTurnsAwayWritesTheOldBlock) {
  Bytes const bedorven{0xff, 0xff, 0xff, 0xff};
  std::vector<short> blok(160);
  ASSERT_EQ(DirecteDecoder(SpeexNarrowband).decodeer(bedorven, blok), -2);
  Frames const gemengd{frames[0], bedorven, frames[1]};
  verwachtGeluid(decodeer(arrayTekst(8000, 3, gemengd)), 1, gehoord(gemengd));
}

TEST_F(SpeexDecodeerFouten, ATextThatEndsBetweenTheFieldsOfAHeaderIsAFragmentWithoutFrames) {
  Gedecodeerd const gevonden = decodeer("{0x40,0x1f,");
  verwachtGeluid(gevonden, 1, {});
  ASSERT_EQ(gevonden.log.size(), 1U);
  EXPECT_EQ(gevonden.log[0].tekst, "Fragment 1: sampling frequency 8000 Hz, number of frames 0");
}

TEST_F(SpeexDecodeerFouten, BytesThatTheBomRulesOutAreReadPastWhereverTheyStand) {
  std::string const bom = "\xEF\xBB\xBF";
  std::string const fout(90, '\x87');
  std::string const rijen = frameRegels(frames);
  verwachtEenFragment(decodeer(bom + fout + tekst));
  verwachtEenFragment(decodeer(bom + "// " + fout + "\n" + tekst));
  verwachtEenFragment(decodeer(bom + "{" + fout + "0x40,0" + fout + "x1f,0x5,0x0,\n" + rijen));
  verwachtEenFragment(decodeer(bom + "{0x40,0x1f,0x5,0x0,\n" + fout + rijen + fout));
}

TEST_F(SpeexDecodeerFouten, AnEndlessCountEndsWhereTheBomRulesTheRestOut) {
  Gedecodeerd const gevonden =
      decodeer("\xEF\xBB\xBF{0x40,0x1f,0xffffffff,0x0,\n" + frameRegels(frames) +
               "\x87\xCB, and more than the toolkit keeps\n" + frameRegels(frames));
  EXPECT_EQ(gevonden.uitslag, 0);
  EXPECT_EQ(gevonden.fragmenten, 1U);
  EXPECT_GE(gevonden.samples.size(), geluid.size());
  EXPECT_LE(gevonden.samples.size(), std::size_t{10 + 65535} * 160);
  ASSERT_FALSE(gevonden.log.empty());
  EXPECT_EQ(gevonden.log[0].tekst,
            "Fragment 1: sampling frequency 8000 Hz, number of frames 4294967295");
}

TEST_F(SpeexDecodeerFouten, ACountAbove65535PlaysAllFramesThatTheTextHas) {
  std::string rijen = frameRegels(frames);
  for (int i = 0; i < 70000; ++i) {
    rijen += "0x0,\n";
  }
  Luisteraar luisteraar(SpeexNarrowband);
  luisteraar.hoorAlle(frames);
  luisteraar.herhaal(70000);
  luisteraar.hoorAlle(frames);
  // 0x11175 is 70005.
  verwachtGeluid(decodeer("{0x40,0x1f,0x1175,0x1,\n" + rijen + "};\n" + tekst), 2,
                 luisteraar.samples);
}

}  // namespace
