// The lines about the settings and the sizes, and the bytes of the header: whole texts of every
// band, kind of bit rate, flag and DAC width, and of files of odd lengths.
#include <gtest/gtest.h>

#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

// What differs between the texts of two settings of one narrowband file of 400 samples.
class EncoderInstelling : public EncoderProef {
 protected:
  void verwacht(Instelling const& instelling, InstelRegels const& regels) {
    std::vector<int> const samples = spraak(400, 8000);
    Frames const frames = LosseEncoder(instelling).bestand(samples);
    EXPECT_TRUE(zelfdeTekst(inC(instelling, wav("toon.wav", samples)),
                            bestandRegels("toon.wav", "8000", "400", "0.05") + regels.tekst() +
                                omvangRegels(frames, samples.size()) +
                                "const signed char toon[] = \n{\n" + uitlegRegel +
                                headerRegel("0x40", "0x1f", "0x90", "0x1") + frameRegels(frames) +
                                slotRegels("toon.wav")));
  }
};

TEST_F(EncoderInstelling, EveryKindOfBitrateHasItsName) {
  struct Soort {
    int soort;
    std::string naam;
  };
  for (Soort const& geval :
       {Soort{0, "Fixed Bitrate"}, {1, "Variable Bitrate"}, {2, "Averaged Bitrate"}}) {
    Instelling instelling;
    instelling.soort = geval.soort;
    InstelRegels regels;
    regels.soort = geval.naam;
    verwacht(instelling, regels);
  }
}

TEST_F(EncoderInstelling, UnknownKindOfBitrateHasNoName) {
  for (int const soort : {3, 7, -1}) {
    Instelling instelling;
    instelling.soort = soort;
    InstelRegels regels;
    regels.soort = "";
    verwacht(instelling, regels);
  }
}

TEST_F(EncoderInstelling, MaxBitrateIsTheWholeUnsignedNumber) {
  for (int const soort : {0, 1}) {
    Instelling instelling;
    instelling.soort = soort;
    instelling.maxBitrate = 4294967295U;
    InstelRegels regels;
    regels.soort = soort == 0 ? "Fixed Bitrate" : "Variable Bitrate";
    regels.max = "4294967295";
    verwacht(instelling, regels);
    instelling.maxBitrate = 0;
    regels.max = "0";
    verwacht(instelling, regels);
  }
}

TEST_F(EncoderInstelling, EachFlagHasItsOwnLine) {
  Instelling instelling;
  instelling.agc = true;
  InstelRegels regels;
  regels.agc = "true";
  verwacht(instelling, regels);

  instelling = {};
  instelling.denoise = true;
  regels = {};
  regels.denoise = "true";
  verwacht(instelling, regels);

  instelling = {};
  instelling.vad = true;
  regels = {};
  regels.vad = "true";
  verwacht(instelling, regels);
}

TEST_F(EncoderInstelling, EveryDacWidthIsToldInBits) {
  struct Dac {
    unsigned int gainBits;
    std::string breedte;
  };
  for (Dac const& geval : {Dac{8, "8"}, {6, "10"}, {4, "12"}, {0, "16"}}) {
    Instelling instelling;
    instelling.gainBits = geval.gainBits;
    InstelRegels regels;
    regels.dac = geval.breedte;
    verwacht(instelling, regels);
  }
}

TEST_F(EncoderInstelling, QualityAndComplexityHaveTheirOwnLines) {
  Instelling instelling;
  instelling.kwaliteit = 10;
  instelling.complexiteit = 1;
  InstelRegels regels;
  regels.kwaliteit = "10";
  regels.complexiteit = "1";
  verwacht(instelling, regels);
  instelling.kwaliteit = 0;
  instelling.complexiteit = 10;
  regels.kwaliteit = "0";
  regels.complexiteit = "10";
  verwacht(instelling, regels);
}

TEST_F(EncoderInstelling, BandThatDoesNotExistCountsAsNarrowband) {
  SpeexEncodeConfig config = Instelling().config();
  config.formaat = static_cast<SpeexBandFormaat>(7);
  SpeexDesktopEncoder encoder(config, SpeexEncoderOpties());
  std::string const pad = wav("toon.wav", spraak(400, 8000));
  EXPECT_TRUE(zelfdeTekst(zonderMoment(codeer(encoder, pad).tekst), inC(Instelling(), pad)));
}

class EncoderOmvang : public EncoderProef {};

TEST_F(EncoderOmvang, WidebandFrameOfThirtyTwoBytesEndsInALineWithATab) {
  Instelling instelling;
  instelling.band = 1;
  instelling.kwaliteit = 4;
  std::vector<int> const samples = spraak(640, 16000);
  Frames const frames = LosseEncoder(instelling).bestand(samples);
  InstelRegels regels;
  regels.frame = "320";
  regels.band = "Wideband";
  regels.kwaliteit = "4";
  // 12.8 kbit/s for 20 ms are 256 bits.
  std::string const tekst = inC(instelling, wav("toon.wav", samples, 16000));
  EXPECT_TRUE(zelfdeTekst(tekst, bestandRegels("toon.wav", "16000", "640", "0.04") +
                                     regels.tekst() + omvangRegels("66", "10", "32") +
                                     "const signed char toon[] = \n{\n" + uitlegRegel +
                                     headerRegel("0x80", "0x3e", "0x80", "0x2") +
                                     frameRegels(frames) + slotRegels("toon.wav")));
  EXPECT_NE(tekst.find(",\n\t\n\t0x20,  /* Encoded Frame [1] Size */\n"), std::string::npos);
  EXPECT_NE(tekst.find(",\n\t\n};\n"), std::string::npos);
}

TEST_F(EncoderOmvang, UltraWidebandHeaderBeginsWithAZeroOfOneDigit) {
  Instelling instelling;
  instelling.band = 2;
  std::vector<int> const samples = spraak(1600, 32000);
  Frames const frames = LosseEncoder(instelling).bestand(samples);
  InstelRegels regels;
  regels.frame = "640";
  regels.band = "Ultra Wideband";
  EXPECT_TRUE(zelfdeTekst(inC(instelling, wav("toon.wav", samples, 32000)),
                          bestandRegels("toon.wav", "32000", "1600", "0.05") + regels.tekst() +
                              omvangRegels(frames, samples.size()) +
                              "const signed char toon[] = \n{\n" + uitlegRegel +
                              headerRegel("0x0", "0x7d", "0x40", "0x6") + frameRegels(frames) +
                              slotRegels("toon.wav")));
}

TEST_F(EncoderOmvang, LargestFrameAndTotalAreCountedOverAllFrames) {
  Instelling instelling;
  instelling.vad = true;
  std::vector<int> samples = spraak(8000, 8000);
  samples.resize(12000, 0);
  Frames const frames = LosseEncoder(instelling).bestand(samples);
  ASSERT_LT(frames.back().size(), frames.front().size());
  InstelRegels regels;
  regels.vad = "true";
  EXPECT_TRUE(zelfdeTekst(inC(instelling, wav("toon.wav", samples)),
                          bestandRegels("toon.wav", "8000", "12000", "1.50") + regels.tekst() +
                              omvangRegels(frames, samples.size()) +
                              "const signed char toon[] = \n{\n" + uitlegRegel +
                              headerRegel("0x40", "0x1f", "0xe0", "0x2e") + frameRegels(frames) +
                              slotRegels("toon.wav")));
}

TEST_F(EncoderOmvang, HeaderHoldsTheLowSixteenBitsOfTheSampleCount) {
  std::vector<int> const samples = golf(65536 + 5);
  Frames const frames = LosseEncoder(Instelling()).bestand(samples);
  ASSERT_EQ(frames.size(), 410U);
  // 410 frames of 38 bytes.
  EXPECT_TRUE(
      zelfdeTekst(inC(Instelling(), wav("toon.wav", samples)),
                  toonInC(bestandRegels("toon.wav", "8000", "65541", "8.19"), {},
                          omvangRegels("15990", "24", "38"),
                          uitlegRegel + headerRegel("0x40", "0x1f", "0x5", "0x0"), frames)));
}

TEST_F(EncoderOmvang, TotalIsCountedBeyondSixteenBits) {
  Instelling instelling;
  instelling.band = 2;
  instelling.kwaliteit = 10;
  std::vector<int> const samples = golf(std::size_t{640} * 620);
  Frames const frames = LosseEncoder(instelling).bestand(samples);
  InstelRegels regels;
  regels.frame = "640";
  regels.band = "Ultra Wideband";
  regels.kwaliteit = "10";
  // 620 frames of 110 bytes, 44 kbit/s; 396800 samples are 0x60e00.
  EXPECT_TRUE(zelfdeTekst(inC(instelling, wav("toon.wav", samples, 32000)),
                          toonInC(bestandRegels("toon.wav", "32000", "396800", "12.40"), regels,
                                  omvangRegels("68820", "17", "110"),
                                  uitlegRegel + headerRegel("0x0", "0x7d", "0x0", "0xe"), frames)));
}

TEST_F(EncoderOmvang, RatioIsCutOffToAWholeNumber) {
  // Two frames of 38 bytes: 7800 / 201 is 38.8.
  std::vector<int> const samples = golf(201);
  std::string const pad = wav("toon.wav", samples);
  EXPECT_EQ(codeer(Instelling(), pad).verhouding, 38.0);
  EXPECT_TRUE(zelfdeTekst(
      inC(Instelling(), pad, false),
      toonInC(bestandRegels("toon.wav", "8000", "201", "0.03"), {}, omvangRegels("78", "38", "38"),
              "", LosseEncoder(Instelling()).bestand(samples))));
}

TEST_F(EncoderOmvang, RatioIsAHundredAtTheMost) {
  // A frame of 38 bytes for a single sample would be 3900 per cent, and 39 samples come to 100.
  for (std::size_t const lengte : {1U, 38U, 39U}) {
    std::vector<int> const samples = golf(lengte);
    std::string const pad = wav("toon.wav", samples);
    EXPECT_EQ(codeer(Instelling(), pad).verhouding, 100.0);
    EXPECT_TRUE(zelfdeTekst(
        inC(Instelling(), pad, false),
        toonInC(bestandRegels("toon.wav", "8000", std::to_string(lengte), "0.00"), {},
                omvangRegels("39", "100", "38"), "", LosseEncoder(Instelling()).bestand(samples))));
  }
  EXPECT_EQ(codeer(Instelling(), wav("toon.wav", golf(40))).verhouding, 97.0);
}

TEST_F(EncoderOmvang, FileWithoutSamplesGivesAnArrayOfTheHeaderAlone) {
  std::string const pad = wav("toon.wav", {});
  std::string const kop = bestandRegels("toon.wav", "8000", "0", "0.00") + InstelRegels().tekst() +
                          omvangRegels("0", "0", "0") + "const signed char toon[] = \n{\n";
  EXPECT_TRUE(zelfdeTekst(
      inC(Instelling(), pad),
      kop + uitlegRegel + headerRegel("0x40", "0x1f", "0x0", "0x0") + slotRegels("toon.wav")));
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad, false), kop + slotRegels("toon.wav")));
  EXPECT_EQ(codeer(Instelling(), pad).verhouding, 0.0);
}

TEST_F(EncoderOmvang, SizesAreTheSameWithoutHeader) {
  std::vector<int> const samples = golf(500);
  std::string const pad = wav("toon.wav", samples);
  Frames const frames = LosseEncoder(Instelling()).bestand(samples);
  std::string const bestand = bestandRegels("toon.wav", "8000", "500", "0.06");
  std::string const sizes = omvangRegels("156", "31", "38");
  std::string const header = uitlegRegel + headerRegel("0x40", "0x1f", "0xf4", "0x1");
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad), toonInC(bestand, {}, sizes, header, frames)));
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad, false), toonInC(bestand, {}, sizes, "", frames)));
}

}  // namespace
