// The WAV files that the encoder takes: channels, widths and compressed samples, and names that go
// into the text as they stand.
#include <gtest/gtest.h>
#include <sndfile.h>

#include <algorithm>
#include <clocale>
#include <filesystem>

#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/opdracht.h"

namespace {

class EncoderBron : public EncoderProef {
 protected:
  // A file of 400 sample frames, whose text tells them while its blocks hold interleaved values.
  void verwachtInterleaved(int kanalen) {
    std::vector<int> const waarden = golf(400 * static_cast<std::size_t>(kanalen));
    Frames const frames = LosseEncoder(Instelling()).bestand(waarden, 400);
    ASSERT_EQ(frames.size(), 3U);
    EXPECT_TRUE(zelfdeTekst(inC(Instelling(), wav("toon.wav", waarden, 8000, kanalen)),
                            fragmentTekst("toon", 400, frames)));
  }
  // The text of toon.wav as it stands there, of these samples.
  void verwachtSamples(std::vector<int> const& samples) {
    EXPECT_TRUE(zelfdeTekst(
        inC(Instelling(), map.pad("toon.wav")),
        fragmentTekst("toon", samples.size(), LosseEncoder(Instelling()).bestand(samples))));
  }
};

TEST_F(EncoderBron, StereoIsTakenAsItIsInterleavedAndHalfOfItIsUsed) {
  verwachtInterleaved(2);
}

TEST_F(EncoderBron, ThreeChannelsAreTakenAsTheyAreInterleaved) {
  verwachtInterleaved(3);
}

TEST_F(EncoderBron, ShortFileOfThreeChannelsEndsInSilence) {
  // 50 sample frames are 150 values, so that the one block has ten zeros.
  std::vector<int> waarden = golf(150);
  std::string const tekst = inC(Instelling(), wav("toon.wav", waarden, 8000, 3));
  waarden.resize(160, 0);
  EXPECT_EQ(framesIn(tekst), Frames{LosseEncoder(Instelling()).encode(waarden)});
}

TEST_F(EncoderBron, EightBitsAreTakenAsTheHighByte) {
  std::vector<int> const waarden{-128, 127, 0, -1, 1, 64, -64};
  std::vector<int> acht;
  std::vector<int> zestien;
  for (int keer = 0; keer < 40; ++keer) {
    for (int const waarde : waarden) {
      acht.push_back(waarde);
      zestien.push_back(waarde * 256);
    }
  }
  schrijfWav(map.pad("toon.wav"), acht, {8000, 1, 8, 1});
  EXPECT_EQ(framesIn(inC(Instelling(), map.pad("toon.wav"))),
            LosseEncoder(Instelling()).bestand(zestien));
}

// Made by sox, of 8000 samples in blocks that hold a few more, and read by libsndfile at once.
TEST_F(EncoderBron, ImaAdpcmIsEncodedInWholeBlocksAndEndsInSamplesOfTheFrameBefore) {
  std::string const opdracht =
      "sox '" + wav("in.wav", spraak(8000, 8000)) + "' -e ima-adpcm '" + map.pad("toon.wav") + "'";
  ASSERT_EQ(voerUit(opdracht), 0);
  SF_INFO info{};
  SNDFILE* const bestand = sf_open(map.pad("toon.wav").c_str(), SFM_READ, &info);
  ASSERT_NE(bestand, nullptr);
  std::vector<short> gelezen(static_cast<std::size_t>(info.frames));
  EXPECT_EQ(sf_read_short(bestand, gelezen.data(), info.frames), info.frames);
  sf_close(bestand);
  // 16 blocks of 505 samples.
  ASSERT_EQ(info.frames, 8080);
  ASSERT_NE(info.frames % 160, 0);
  verwachtSamples({gelezen.begin(), gelezen.end()});
}

TEST_F(EncoderBron, ChunkBehindTheSamplesIsNoSoundAndLeavesTheTailAsItIs) {
  std::vector<int> const samples = golf(161);
  std::string wavTekst = leesTekst(wav("kaal.wav", samples));
  std::string const lijst = "LIST" + std::string("\x90\x01\0\0", 4) + std::string(400, 'q');
  Bytes const grootte = laagEerst(wavTekst.size() + lijst.size() - 8, 4);
  std::copy(grootte.begin(), grootte.end(), wavTekst.begin() + 4);
  maakBestand(map.pad("toon.wav"), wavTekst + lijst);
  verwachtSamples(samples);
}

TEST_F(EncoderBron, HeaderThatPromisesMoreThanThereIsCountsWhatThereIs) {
  std::string const heel = leesTekst(wav("heel.wav", golf(1000)));
  maakBestand(map.pad("toon.wav"), heel.substr(0, 44 + 400));
  // What the block holds beyond them is the end of the first.
  verwachtSamples(golf(200));
}

class EncoderNamen : public EncoderProef {
 protected:
  // The texts in C and C++ of a file of that name, for an array called `naam`.
  void verwacht(std::string const& bestand, std::string const& naam) {
    std::string const pad = wav(bestand, golf(160));
    Frames const frames = LosseEncoder(Instelling()).bestand(golf(160));
    std::string const kop = kopRegels(bestand, 160, Instelling(), frames) + "const signed char ";
    std::string const einde = naam + "[] = \n{\n" + frameRegels(frames) + slotRegels(bestand);
    EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad, false), kop + einde));
    SpeexDesktopEncoder cpp(Instelling().config(), SpeexEncoderOpties("K"));
    EXPECT_TRUE(zelfdeTekst(zonderMoment(codeer(cpp, pad, false).tekst), kop + "K::" + einde));
  }
};

TEST_F(EncoderNamen, StandInTheTextAsTheyAre) {
  verwacht("two blanks here.wav", "two blanks here");
  verwacht("a.b.c.wav", "a.b.c");
  verwacht("\xC3\xBC-h\xC3\xA9-\xE2\x82\xAC.wav", "\xC3\xBC-h\xC3\xA9-\xE2\x82\xAC");
  verwacht("100%.wav", "100%");
  verwacht("%s%n%d.wav", "%s%n%d");
  verwacht("a%%b.WAV", "a%%b");
  verwacht("none", "none");
  verwacht(".wav", ".wav");
  verwacht("9*x.wav", "9*x");
}

TEST_F(EncoderNamen, HaveNoPath) {
  std::filesystem::create_directory(map.pad("a.b"));
  EXPECT_TRUE(
      zelfdeTekst(inC(Instelling(), wav("a.b/toon.wav", golf(160))),
                  fragmentTekst("toon", 160, LosseEncoder(Instelling()).bestand(golf(160)))));
}

TEST_F(EncoderBron, TextDoesNotDependOnTheLocale) {
  std::string const pad = wav("toon.wav", spraak(12345, 8000));
  std::string const gewoon = inC(Instelling(), pad);
  ASSERT_NE(gewoon.find(" : 1.54 s\t"), std::string::npos);
  TijdelijkeLocale const duits(LC_ALL, "de_DE.UTF-8");
  ASSERT_TRUE(duits.isGelukt()) << "the locale de_DE.UTF-8 is missing";
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad), gewoon));
}

}  // namespace
