// What the decoder makes of generated text: the sound of its frames, and what the count of the
// header does to it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "tests/externals/software/extern/speex/decoderHulp.h"
#include "tests/externals/software/extern/speex/oggLezer.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

// The sound of `samples`, and the last block until there are `telling` blocks.
Samples gehoordTot(std::size_t telling, Samples const& samples,
                   SpeexBandFormaat band = SpeexNarrowband) {
  Frames const frames = codeer(band, samples);
  return gehoord(frames, telling - frames.size(), band);
}

// The frame that a decoder finds in an absorbed array: the first byte of its header, 0x40, is taken
// for a size, and as many words of the frames follow. The size line gives two words that are no
// decimal numbers, and a tab alone on its line gives one.
Bytes geabsorbeerd(Frames const& frames) {
  constexpr std::size_t grootte = 0x40;
  Bytes woorden;
  for (Bytes const& frame : frames) {
    woorden.insert(woorden.end(), 2, 0);
    woorden.insert(woorden.end(), frame.begin(), frame.end());
    woorden.insert(woorden.end(), frame.size() % 8 == 0 ? 1 : 0, 0);
  }
  EXPECT_GT(woorden.size(), grootte);
  woorden.resize(grootte);
  return woorden;
}

TEST(SpeexDecodeer, TextOfARunGivesTheSoundAndThenItsLastBlockUpToTheCount) {
  for (SpeexBandFormaat const band : {SpeexNarrowband, SpeexWideband}) {
    Samples const samples = ruis(5 * blokVan(band));
    verwachtGeluid(decodeer(runVan({samples}, runDoel(band)), band), 1,
                   gehoordTot(samples.size(), samples, band));
  }
}

TEST(SpeexDecodeer, TheShellOfACppClassAndTheMarksOfARunAreNoFragments) {
  Samples const samples = ruis(480);
  SpeexDoel doel = runDoel();
  doel.taal = 1;
  std::string const tekst = runVan({samples}, doel);
  ASSERT_NE(tekst.find("// class Geluid\n//{\n"), std::string::npos);
  ASSERT_NE(tekst.find("const signed char Geluid::toon1[] = \n{\n"), std::string::npos);
  verwachtGeluid(decodeer(tekst), 1, gehoordTot(480, samples));
}

TEST(SpeexDecodeer, TextWithCrLfLineEndsSoundsTheSame) {
  Frames const frames = maakFrames(SpeexNarrowband, 5);
  std::string const tekst = arrayTekst(8000, 5, frames);
  std::string crlf;
  for (char const teken : tekst) {
    crlf += teken == '\n' ? "\r\n" : std::string(1, teken);
  }
  verwachtGeluid(decodeer(crlf), 1, gehoord(frames));
}

TEST(SpeexDecodeer, FramesOfEverySizeSoundAsTheLibraryMakesThem) {
  for (int kwaliteit = 0; kwaliteit <= 10; ++kwaliteit) {
    for (SpeexBandFormaat const band : {SpeexNarrowband, SpeexWideband}) {
      Frames const frames = maakFrames(band, 9, kwaliteit);
      SCOPED_TRACE(frames[0].size());
      verwachtGeluid(decodeer(arrayTekst(rateVan(band), 9, frames), band), 1,
                     gehoord(frames, 0, band));
    }
  }
}

TEST(SpeexDecodeer, TheScaleOfANarrowDacIsNotUndone) {
  Samples const samples = ruis(480);
  Samples klein = samples;
  for (short& sample : klein) {
    sample = static_cast<short>((sample + 32768) / 256 - 128);
  }
  SpeexDoel doel = runDoel();
  doel.instelling.gainBits = 8;
  verwachtGeluid(decodeer(runVan({samples}, doel)), 1, gehoordTot(480, klein));
}

TEST(SpeexDecodeer, ASecondFragmentIsAbsorbedWhileTheCountOfTheFirstRuns) {
  Samples const samples = ruis(1600);
  Samples const eerste(samples.begin(), samples.begin() + 800);
  Samples const tweede(samples.begin() + 800, samples.end());
  // The encoder's state runs on from file to file.
  Frames const frames = codeer(SpeexNarrowband, samples);
  ASSERT_EQ(frames.size(), 10U);
  ASSERT_EQ(frames[0].size(), 20U);

  Luisteraar luisteraar(SpeexNarrowband);
  luisteraar.hoorAlle({frames.begin(), frames.begin() + 5});
  // Seven comment lines hold an "x", in "Linux", "Speex" or "Max", that the scanner comes upon;
  // each takes the line behind it along.
  luisteraar.herhaal(7);
  luisteraar.hoor(geabsorbeerd({frames.begin() + 5, frames.begin() + 8}));
  luisteraar.hoorAlle({frames.begin() + 8, frames.end()});
  luisteraar.herhaal(800 - 5 - 7 - 1 - 2);
  verwachtGeluid(decodeer(runVan({eerste, tweede})), 1, luisteraar.samples);
}

// As a save leaves them that appends to the file of an earlier one.
TEST(SpeexDecodeer, TwoWholeRunTextsInOneFileAreDecodedAsOne) {
  // As below: of 411 frames in each the first 160 are played.
  Samples const samples = ruis(2 * 65696);
  Samples const eerste(samples.begin(), samples.begin() + 65696);
  Samples const tweede(samples.begin() + 65696, samples.end());
  Luisteraar luisteraar(SpeexNarrowband);
  for (Samples const& een : {eerste, tweede}) {
    Frames const frames = codeer(SpeexNarrowband, een);
    luisteraar.hoorAlle({frames.begin(), frames.begin() + 160});
  }
  SpeexDoel inKlasse = runDoel();
  inKlasse.taal = 1;
  verwachtGeluid(decodeer(runVan({eerste}) + runVan({tweede}, inKlasse)), 2, luisteraar.samples);
}

TEST(SpeexDecodeer, TheSecondOfTwoRunTextsIsAbsorbedWhileTheCountOfTheFirstRuns) {
  Samples const samples = ruis(1600);
  Samples const eerste(samples.begin(), samples.begin() + 800);
  Samples const tweede(samples.begin() + 800, samples.end());
  Luisteraar luisteraar(SpeexNarrowband);
  luisteraar.hoorAlle(codeer(SpeexNarrowband, eerste));
  // The "x" of "Speex" in the first line of the run and that of "extern" come to the seven above.
  luisteraar.herhaal(2 + 7);
  Frames const frames = codeer(SpeexNarrowband, tweede);
  luisteraar.hoor(geabsorbeerd({frames.begin(), frames.begin() + 3}));
  luisteraar.hoorAlle({frames.begin() + 3, frames.end()});
  luisteraar.herhaal(800 - 5 - 2 - 7 - 1 - 2);
  verwachtGeluid(decodeer(runVan({eerste}) + runVan({tweede})), 1, luisteraar.samples);
}

TEST(SpeexDecodeer, AnAbsorbedArrayWithoutHeaderIsHeardWhole) {
  Frames const frames = maakFrames(SpeexNarrowband, 9);
  verwachtGeluid(decodeer(arrayTekst(8000, 12, {frames.begin(), frames.begin() + 4}) +
                          arrayMet(frameRegels({frames.begin() + 4, frames.end()}))),
                 1, gehoord(frames, 3));
}

TEST(SpeexDecodeer, TheHeaderOfAnAbsorbedArrayIsTakenForASize) {
  // Frames of 16 bytes: their last line holds a tab alone.
  Frames frames(5, Bytes(16, 0));
  Frames const echt = maakFrames(SpeexNarrowband, 5);
  std::transform(echt.begin(), echt.end(), frames.begin(),
                 [](Bytes const& frame) { return Bytes(frame.begin(), frame.begin() + 16); });
  Frames verwacht = echt;
  verwacht.push_back(geabsorbeerd({frames.begin(), frames.end() - 1}));
  verwacht.push_back(frames[4]);
  verwachtGeluid(decodeer(arrayTekst(8000, 7, echt) + arrayTekst(8000, 5, frames)), 1,
                 gehoord(verwacht));
}

TEST(SpeexDecodeer, TheStateOfTheLibraryRunsOnFromFragmentToFragment) {
  Frames const frames = maakFrames(SpeexNarrowband, 8);
  Frames const eerste(frames.begin(), frames.begin() + 3);
  Frames const tweede(frames.begin() + 3, frames.end());
  Samples const verwacht = gehoord(frames);
  ASSERT_NE(gehoord(tweede), Samples(verwacht.begin() + 480, verwacht.end()));
  verwachtGeluid(decodeer(arrayTekst(8000, 3, eerste) + arrayTekst(8000, 5, tweede)), 2, verwacht);
}

TEST(SpeexDecodeer, ACountBelowTheTrueOneStopsEarlyAndTheRestIsSkipped) {
  Frames const frames = maakFrames(SpeexNarrowband, 5);
  verwachtGeluid(decodeer(arrayTekst(8000, 2, frames) + arrayTekst(8000, 3, frames)), 2,
                 gehoord({frames[0], frames[1], frames[0], frames[1], frames[2]}));
}

TEST(SpeexDecodeer, OfAFileOfOver65536SamplesTheWrappedCountIsPlayed) {
  // 65696 is 65536 + 160: of 411 frames the first 160 are played.
  Samples const samples = ruis(65696);
  constexpr std::ptrdiff_t gespeeld = 25600;  // 160 frames
  Samples const begin(samples.begin(), samples.begin() + gespeeld);
  verwachtGeluid(decodeer(runVan({samples})), 1, gehoordTot(160, begin));
}

TEST(SpeexDecodeer, AHeaderCountOfZeroIsAFragmentWithoutFrames) {
  Frames const frames = maakFrames(SpeexNarrowband, 4);
  verwachtGeluid(decodeer(arrayTekst(8000, 0, frames)), 1, {});
  verwachtGeluid(decodeer(arrayTekst(8000, 0, frames) + arrayTekst(8000, 4, frames)), 2,
                 gehoord(frames));
}

TEST(SpeexDecodeer, AFrameOfSizeZeroWritesTheOldBlockAndTheNextWordIsASize) {
  Frames const frames = maakFrames(SpeexNarrowband, 3);
  Luisteraar luisteraar(SpeexNarrowband);
  luisteraar.hoor(frames[0]);
  luisteraar.herhaal(1);
  luisteraar.hoor(frames[1]);
  luisteraar.herhaal(2);
  luisteraar.hoor(frames[2]);
  verwachtGeluid(decodeer(arrayTekst(8000, 6, {frames[0], {}, frames[1], {}, {}, frames[2]})), 1,
                 luisteraar.samples);
}

TEST(SpeexDecodeer, AFragmentOf32000HzGivesTwoAndAReadableWavWithoutSamples) {
  Gedecodeerd const gevonden =
      decodeer(runVan({ruis(1280)}, runDoel(SpeexUltraWideband)), SpeexUltraWideband);
  EXPECT_EQ(gevonden.uitslag, 2);
  EXPECT_EQ(gevonden.fragmenten, 0U);
  EXPECT_TRUE(gevonden.samples.empty());
  EXPECT_TRUE(nietsGelogd(gevonden.log));
}

TEST(SpeexDecodeer, TextOf32000HzEditedToTwoDigitsIsHeard) {
  Samples const samples = ruis(1280);
  std::string tekst = runVan({samples}, runDoel(SpeexUltraWideband));
  // 1280 is 0x500.
  std::string const geschreven =
      "(signed char)0x0,(signed char)0x7d,(signed char)0x0,(signed char)0x5,";
  std::size_t const plaats = tekst.find(geschreven);
  ASSERT_NE(plaats, std::string::npos);
  tekst.replace(plaats, geschreven.size(), "0x00,0x7d,0x00,0x5,");
  verwachtGeluid(decodeer(tekst, SpeexUltraWideband), 1,
                 gehoordTot(1280, samples, SpeexUltraWideband));
}

// As the library's own tools hear it, which leave out the samples before the first of the source.
TEST(SpeexDecodeer, FramesOfSpeexencSoundAsSpeexdecPlaysThem) {
  TijdelijkeMap const map;
  for (SpeexBandFormaat const band : {SpeexNarrowband, SpeexWideband}) {
    maakWav(map.pad("in.wav"), proefSamples(20 * blokVan(band)), {rateVan(band), 1, 16, 1});
    ASSERT_EQ(voerUit("cd '" + map.pad() + "' && speexenc in.wav a.spx >log 2>&1 && " +
                      "speexdec a.spx a.raw >>log 2>&1"),
              0)
        << leesTekst(map.pad("log"));
    Bytes const ruw = leesBytes(map.pad("a.raw"));
    Samples gespeeld;
    for (std::size_t i = 0; i + 1 < ruw.size(); i += 2) {
      gespeeld.push_back(static_cast<short>(ruw[i] + 256 * ruw[i + 1]));
    }
    ASSERT_GT(gespeeld.size(), 15 * blokVan(band));

    // Behind the two headers.
    Frames const pakketten = oggPakketten(leesBytes(map.pad("a.spx")));
    ASSERT_GT(pakketten.size(), 2U);
    Frames const frames(pakketten.begin() + 2, pakketten.end());
    ASSERT_GE(frames.size(), 20U);
    Gedecodeerd const gevonden =
        decodeer(arrayTekst(rateVan(band), static_cast<unsigned int>(frames.size()), frames), band);
    EXPECT_EQ(gevonden.samples.size(), frames.size() * blokVan(band));
    EXPECT_NE(std::search(gevonden.samples.begin(), gevonden.samples.end(), gespeeld.begin(),
                          gespeeld.end()),
              gevonden.samples.end());
  }
}

}  // namespace
