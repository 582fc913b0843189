// The text of a Speex run, whole: the languages, the bands, the widths of a DAC, the header, the
// settings; files that end a run; and the mean of what came out.
#include <array>
#include <filesystem>
#include <tuple>

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/runProef.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/steun/wxMain.h"

namespace {

class SpeexRun : public RunProef {
 protected:
  SpeexRun() { instellingen.speexOutputLanguage = 0; }

  // Writes and takes these files, the last one first.
  void laadFragmenten(SpeexFragmenten const& fragmenten, int rate = 8000) {
    std::vector<std::string> namen;
    for (SpeexFragment const& een : fragmenten) {
      wav(een.naam + ".wav", {een.samples.begin(), een.samples.end()}, {rate});
      namen.insert(namen.begin(), een.naam + ".wav");
    }
    laad(namen);
  }
  void verwacht(SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
    laadFragmenten(fragmenten, doel.instelling.rate());
    EXPECT_TRUE(zelfdeTekst(speex(), runTekst(fragmenten, doel)));
    EXPECT_TRUE(nietsGelogd(neemLog()));
  }
  int gemiddelde(SpeexFragmenten const& fragmenten) {
    laadFragmenten(fragmenten);
    SpeexMaker maker;
    tekstVan(maker);
    return maker.geefGemiddelde();
  }
  // What ends a run, in the log.
  static void verwachtLog(wxString const& naam, int rate, int vanEncoder = 8000) {
    std::vector<LogRegel> const log = neemLog();
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(
        log[0].tekst,
        naam + wxString::Format(" has a different sampling frequency (%d)\nthan the encoder (%d)",
                                rate, vanEncoder));
  }

  SpeexDoel eerste{eersteInstelling()};
};

// The language, and the band.
class SpeexRunTekst : public SpeexRun, public testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(SpeexRunTekst, IsThatOfTheLibrarysFramesForEveryDacWithHeaderAndWithout) {
  auto const [taal, band] = GetParam();
  instellingen.speexOutputLanguage = taal;
  instellingen.speexFormat = band;
  for (int dac = 0; dac < 4; ++dac) {
    for (bool const kop : {true, false}) {
      SCOPED_TRACE(testing::Message() << dac << kop);
      instellingen.dacNumberOfBits = dac;
      metHeader = kop;
      SpeexDoel doel{eersteInstelling(band), taal, kop};
      doel.instelling.gainBits = std::array{8U, 6U, 4U, 0U}[static_cast<std::size_t>(dac)];
      verwacht(drieFragmenten(), doel);
    }
  }
}

// 2 and 99 have no declarations, and fragments of C++.
INSTANTIATE_TEST_SUITE_P(LanguageAndBand, SpeexRunTekst,
                         testing::Combine(testing::Values(0, 1, 2, 99), testing::Values(0, 1, 2)));

TEST_F(SpeexRun, EverySettingReachesTheEncoder) {
  SpeexFragment const bel = spraakFragment();
  auto const na = [&](char const* wat, bool andereFrames, auto wijziging) {
    SCOPED_TRACE(wat);
    instellingen = {};
    instellingen.speexOutputLanguage = 0;
    SpeexDoel doel = eerste;
    wijziging(instellingen, doel.instelling);
    EXPECT_EQ(framesVan({bel}, doel.instelling) != framesVan({bel}, eerste.instelling),
              andereFrames);
    verwacht({bel}, doel);
  };
  na("quality", true, [](auto& is, auto& wordt) { is.speexQuality = wordt.kwaliteit = 3; });
  na("complexity", true,
     [](auto& is, auto& wordt) { is.speexComplexity = wordt.complexiteit = 10; });
  na("variable", true, [](auto& is, auto& wordt) { is.speexBitRateChoice = wordt.soort = 1; });
  na("averaged", true, [](auto& is, auto& wordt) { is.speexBitRateChoice = wordt.soort = 2; });
  na("limit of a variable bit rate", true, [](auto& is, auto& wordt) {
    is.speexBitRateChoice = wordt.soort = 1;
    is.speexBitRate = wordt.maxBitrate = 3000;
  });
  na("limit of a fixed bit rate", false,
     [](auto& is, auto& wordt) { is.speexBitRate = wordt.maxBitrate = 24600; });
  na("voice", true, [](auto& is, auto& wordt) { is.speexVAC = wordt.vad = false; });
  na("denoise", false, [](auto& is, auto& wordt) { is.speexDenoise = wordt.denoise = false; });
  na("gain control", false, [](auto& is, auto& wordt) { is.speexAGC = wordt.agc = false; });
  na("all", true, [](auto& is, auto& wordt) {
    is = {0, 6, 5, 1, 7000, 0, false, false, false, true, 2};
    wordt = {0, 6, 5, 1, 7000, 4, false, false, false};
  });
  na("numbers out of every range", true, [](auto& is, auto& wordt) {
    is.speexFormat = 7;
    is.speexBitRateChoice = 9;
    is.speexQuality = 4000000000U;
    is.speexBitRate = 4294967295U;
    wordt.kwaliteit = 0;
    wordt.maxBitrate = 2147483647;
  });
}

TEST_F(SpeexRun, NamesOfFilesAndClassGoIntoTheTextUnchanged) {
  instellingen.speexOutputLanguage = 1;
  for (std::string const naam : {"A%s::Één", ""}) {
    klasse = naam;
    verwacht(
        {{"%s%n", golf(160)}, {"a.b", golf(160)}, {"stil zwijgen", golf(160)}, {"één", golf(160)}},
        {eersteInstelling(), 1, true, naam});
  }
}

TEST_F(SpeexRun, AFileWithoutSamplesHasAnArrayOfItsHeader) {
  verwacht({{"bel", {}}}, eerste);
  EXPECT_EQ(gemiddelde({{"bel", {}}}), 0);
}

TEST_F(SpeexRun, NoFilesGiveAHeadAndInCPlusPlusTheShellOfTheClass) {
  EXPECT_EQ(speex(),
            "/* Speex encoding output of 0 audio files \t\t*/\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
  instellingen.speexOutputLanguage = 1;
  EXPECT_EQ(speex(),
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

TEST_F(SpeexRun, StateRunsOnFromFileToFileAndEachRunStartsAnew) {
  SpeexFragmenten const tweemaal{spraakFragment("bel"), spraakFragment("zoem")};
  std::vector<Frames> const frames = framesVan(tweemaal, eerste.instelling);
  ASSERT_NE(frames[0], frames[1]);
  laadFragmenten(tweemaal);
  SpeexMaker maker;
  for (int keer = 0; keer < 2; ++keer) {
    EXPECT_TRUE(zelfdeTekst(tekstVan(maker), runTekst(tweemaal, eerste)));
  }
}

TEST_F(SpeexRun, TheMeanIsThatOfTheFilesRatiosCutToAWholePercentage) {
  // 10, 2 and 2 frames, of 39 bytes with their size bytes.
  for (Frames const& een : framesVan(drieFragmenten(), eerste.instelling)) {
    for (Bytes const& frame : een) {
      ASSERT_EQ(frame.size(), 38U);
    }
  }
  // The mean of the ratios before they are cut is 37.2, the rounded one 37, and all bytes over all
  // samples are 27 per cent.
  constexpr int som = 10 * 39 * 100 / 1600 + 2 * 39 * 100 / 161 + 2 * 39 * 100 / 201;
  static_assert(som == 24 + 48 + 38);
  EXPECT_EQ(gemiddelde(drieFragmenten()), som / 3);
}

TEST_F(SpeexRun, ARatioAboveTheWholeCountsAs100PerCentInTheMean) {
  // 39 bytes for 30 samples, and 39 for 100.
  EXPECT_EQ(gemiddelde({{"bel", golf(30)}, {"zoem", golf(100)}}), (100 + 39) / 2);
}

TEST_F(SpeexRun, TheMeanIsZeroBeforeARunAndOverNoFiles) {
  EXPECT_EQ(SpeexMaker().geefGemiddelde(), 0);
  EXPECT_EQ(gemiddelde({}), 0);
}

TEST_F(SpeexRun, EndsAtTheFirstFileOfABandThatDoesNotFit) {
  for (int const band : {1, 2}) {
    instellingen.speexFormat = band;
    laadFragmenten(drieFragmenten());
    SpeexMaker maker;
    EXPECT_EQ(tekstTot(1, maker), runTot(1, drieFragmenten(), eerste));
    // The other files do not fit either: they were not tried.
    verwachtLog("bel.wav", 8000, bandRates.at(static_cast<std::size_t>(band)));
    EXPECT_TRUE(gedaan.empty());
    EXPECT_EQ(maker.geefGemiddelde(), 0);
  }
}

TEST_F(SpeexRun, EndsAtASecondFileThatVanishedOrHasAnotherRateAndTheNextRunIsWhole) {
  std::string const heel = runTekst(drieFragmenten(), eerste);
  std::string const deel = runTot(2, drieFragmenten(), eerste);
  SpeexMaker maker;
  for (int const rate : {0, 44100}) {
    laadFragmenten(drieFragmenten());
    if (rate == 0) {
      std::filesystem::remove(map.pad("tik.wav"));
    } else {
      wav("tik.wav", proefSamples(320), {rate});
    }
    EXPECT_TRUE(zelfdeTekst(tekstTot(2, maker), deel));
    verwachtLog("tik.wav", rate);
    EXPECT_EQ(gedaan, std::vector<std::size_t>{1});
    laadFragmenten(drieFragmenten());
    EXPECT_TRUE(zelfdeTekst(tekstVan(maker), heel));
    EXPECT_EQ(maker.geefGemiddelde(), 36);
  }
}

// The layout of the arrays: rate and number of samples where there is a header, low bytes first,
// and each frame behind a byte with its size.
Bytes beeldVan(SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
  std::vector<Frames> const frames = framesVan(fragmenten, doel.instelling);
  Bytes beeld;
  auto const voegToe = [&beeld](Bytes const& bytes) {
    beeld.insert(beeld.end(), bytes.begin(), bytes.end());
  };
  for (std::size_t i = 0; i < fragmenten.size(); ++i) {
    if (doel.metHeader) {
      voegToe(laagEerst(static_cast<unsigned long long>(doel.instelling.rate()), 2));
      voegToe(laagEerst(fragmenten[i].samples.size(), 2));
    }
    for (Bytes const& frame : frames[i]) {
      voegToe(laagEerst(frame.size(), 1));
      voegToe(frame);
    }
  }
  return beeld;
}

class SpeexRunBron : public SpeexRun {
 protected:
  // Compiles a program around the text of three files, with the declarations that the text itself
  // asks for, and expects it to find their frames in the arrays.
  void verwachtArrays(SpeexDoel const& doel) {
    instellingen.speexOutputLanguage = doel.taal;
    instellingen.speexFormat = doel.instelling.band;
    instellingen.speexQuality = doel.instelling.kwaliteit;
    metHeader = doel.metHeader;
    laadFragmenten(drieFragmenten(), doel.instelling.rate());
    std::string const tekst = speex();
    std::string const kop = "/* Put these declarations in a header file :*/\n";
    std::size_t const begin = tekst.find(kop) + kop.size();
    wxString declaraties = wxTekst(tekst.substr(begin, tekst.find("/*", begin) - begin));
    declaraties.Replace("//", "");
    declaraties.Replace("};", " friend int main();\n};");
    std::string programma = "#include <stdio.h>\n" + declaraties.utf8_string() +
                            "#include \"geluid.c\"\nint main() {\n";
    for (std::string const naam : {"bel", "tik", "zoem"}) {
      std::string const array = (doel.taal == 1 ? klasse + "::" : "") + naam;
      programma.append("  fwrite(").append(array).append(", 1, sizeof ").append(array);
      programma += ", stdout);\n";
    }
    bestand("geluid.c", tekst);
    bestand("programma.c", programma + "  return 0;\n}\n");
    EXPECT_TRUE(luktIn(map.pad(), (doel.taal == 1 ? "g++ -std=c++17 -x c++" : "gcc -std=c99") +
                                      std::string(" -Wall -Wextra -Wpedantic -Werror programma.c "
                                                  "-o programma && ./programma > uitvoer")));
    EXPECT_EQ(leesBytes(map.pad("uitvoer")), beeldVan(drieFragmenten(), doel));
  }
};

TEST_F(SpeexRunBron, OfThreeFilesHoldsTheirFramesInEitherLanguageWithHeaderAndWithout) {
  for (int const taal : {0, 1}) {
    verwachtArrays({eersteInstelling(), taal, true});
    verwachtArrays({eersteInstelling(), taal, false});
  }
}

TEST_F(SpeexRunBron, HasTheSizesOfTheLargestFramesAsSignedCharsInCPlusPlus) {
  SpeexDoel doel{eersteInstelling(2), 1};
  doel.instelling.kwaliteit = 10;
  verwachtArrays(doel);
}

}  // namespace
