// The lines about the settings and the sizes, and the bytes of the header: whole texts of every
// band, kind of bit rate, flag and DAC width, and of files of odd lengths.
#include <gtest/gtest.h>

#include <ostream>
#include <utility>

#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

// A text, and parts of it that were worked out by hand.
struct Geval {
  std::string naam;
  Instelling instelling;
  std::vector<int> samples;
  std::vector<std::string> delen;
  bool metHeader = true;
};

void PrintTo(Geval const& geval, std::ostream* uit) {
  *uit << geval.naam;
}

class EncoderInstelling : public EncoderProef, public testing::WithParamInterface<Geval> {};

TEST_P(EncoderInstelling, StandsInTheText) {
  Geval const& geval = GetParam();
  std::string const tekst = verwachtToon(geval.instelling, geval.samples, geval.metHeader);
  for (std::string const& deel : geval.delen) {
    EXPECT_NE(tekst.find(deel), std::string::npos) << deel;
  }
}

// Changes the settings that all others differ from.
template <typename Wijziging>
Instelling met(Wijziging wijziging) {
  Instelling instelling;
  wijziging(instelling);
  return instelling;
}

std::vector<Geval> instellingen() {
  std::vector<Geval> gevallen;
  auto const voegToe = [&gevallen](std::string const& naam, std::string const& regel,
                                   auto wijziging) {
    gevallen.push_back({naam, met(wijziging), spraak(400, 8000), {"/* " + regel + "\t\t*/\n"}});
  };
  std::string const soort = "Speex Bitrate                   : ";
  voegToe("FixedBitrate", soort + "Fixed Bitrate ", [](auto& een) { een.soort = 0; });
  voegToe("VariableBitrate", soort + "Variable Bitrate ", [](auto& een) { een.soort = 1; });
  voegToe("AveragedBitrate", soort + "Averaged Bitrate ", [](auto& een) { een.soort = 2; });
  voegToe("FirstUnknownBitrateWithoutAName", soort + " ", [](auto& een) { een.soort = 3; });
  voegToe("UnknownBitrateWithoutAName", soort + " ", [](auto& een) { een.soort = 7; });
  voegToe("NegativeBitrateWithoutAName", soort + " ", [](auto& een) { een.soort = -1; });
  std::string const max = "Speex Max Bitrate               : ";
  for (int const elk : {0, 1}) {
    std::string const bij = elk == 0 ? "OfFixed" : "OfVariable";
    voegToe("LargestMaxBitrate" + bij, max + "4294967295 bytes ", [elk](auto& een) {
      een.soort = elk;
      een.maxBitrate = 4294967295U;
    });
    voegToe("MaxBitrateOfZero" + bij, max + "0 bytes ", [elk](auto& een) {
      een.soort = elk;
      een.maxBitrate = 0;
    });
  }
  voegToe("AgcFlag", "Speex AGC                       : true ", [](auto& een) { een.agc = true; });
  voegToe("DenoiseFlag", "Speex Denoise                   : true ",
          [](auto& een) { een.denoise = true; });
  voegToe("VoiceFlag", "Speex Voice Activated Detection : true ",
          [](auto& een) { een.vad = true; });
  std::string const dac = "Full Scale gain adapted to : ";
  voegToe("DacOf8", dac + "8 bits", [](auto& een) { een.gainBits = 8; });
  voegToe("DacOf10", dac + "10 bits", [](auto& een) { een.gainBits = 6; });
  voegToe("DacOf12", dac + "12 bits", [](auto& een) { een.gainBits = 4; });
  voegToe("DacOf16", dac + "16 bits", [](auto& een) { een.gainBits = 0; });
  for (auto const& [kwaliteit, complexiteit] : {std::pair{10U, 1U}, {0U, 10U}}) {
    voegToe("Quality" + std::to_string(kwaliteit),
            "Speex Quality                   : " + std::to_string(kwaliteit) +
                "  \t\t*/\n/* Speex Complexity                : " + std::to_string(complexiteit) +
                "  ",
            [kwaliteit = kwaliteit, complexiteit = complexiteit](auto& een) {
              een.kwaliteit = kwaliteit;
              een.complexiteit = complexiteit;
            });
  }
  return gevallen;
}

std::vector<Geval> omvangen() {
  auto const header = [](std::string const& b0, std::string const& b1, std::string const& b2,
                         std::string const& b3) {
    std::string const cast = "(signed char)";
    return "\t" + cast + b0 + "," + cast + b1 + "," + cast + b2 + "," + cast + b3 + ",\n";
  };
  Instelling const smal;
  Instelling const breed = met([](auto& een) {
    een.band = 1;
    een.kwaliteit = 4;
  });
  Instelling const ultra = met([](auto& een) { een.band = 2; });
  Instelling const groot = met([](auto& een) {
    een.band = 2;
    een.kwaliteit = 10;
  });
  Instelling const stil = met([](auto& een) { een.vad = true; });
  std::vector<int> metStilte = spraak(8000, 8000);
  metStilte.resize(12000, 0);
  return {
      // 12.8 kbit/s for 20 ms are 256 bits.
      {"FramesOf32BytesEndInALineWithATab",
       breed,
       spraak(640, 16000),
       {omvangRegels(66, 10, 32), ",\n\t\n\t0x20,  /* Encoded Frame [1] Size */\n", ",\n\t\n};\n"}},
      {"UltraWidebandHeaderBeginsWithAZeroOfOneDigit",
       ultra,
       spraak(1600, 32000),
       {header("0x0", "0x7d", "0x40", "0x6")}},
      {"LargestFrameIsCountedOverAllFrames",
       stil,
       metStilte,
       {"/* Max bytes/encoded frame         : 38 "}},
      // 65541 is 0x10005; 410 frames of 38 bytes.
      {"HeaderHoldsTheLow16BitsOfTheSampleCount",
       smal,
       golf(65541),
       {header("0x40", "0x1f", "0x5", "0x0"), omvangRegels(15990, 24, 38)}},
      // 620 frames of 110 bytes, 44 kbit/s; 396800 samples are 0x60e00.
      {"TotalIsCountedBeyond16Bits",
       groot,
       golf(396800),
       {header("0x0", "0x7d", "0x0", "0xe"), omvangRegels(68820, 17, 110)}},
      // Two frames of 38 bytes: 7800 / 201 is 38.8.
      {"RatioIsCutOffToAWholeNumber", smal, golf(201), {omvangRegels(78, 38, 38)}},
      // A frame of 38 bytes for a single sample would be 3900 per cent, and 39 samples come to 100.
      {"RatioOfOneSampleIsAHundred", smal, golf(1), {omvangRegels(39, 100, 38)}},
      {"RatioOf38SamplesIsAHundred", smal, golf(38), {omvangRegels(39, 100, 38)}},
      {"RatioOf39SamplesIsAHundred", smal, golf(39), {omvangRegels(39, 100, 38)}},
      {"RatioOf40SamplesIsBelowAHundred", smal, golf(40), {omvangRegels(39, 97, 38)}},
      {"FileWithoutSamplesHasAnArrayOfTheHeaderAlone",
       smal,
       {},
       {omvangRegels(0, 0, 0) + "const signed char toon[] = \n{\n" + uitlegRegel +
        header("0x40", "0x1f", "0x0", "0x0") + "};\n"}},
      {"FileWithoutSamplesAndHeaderHasAnEmptyArray",
       smal,
       {},
       {omvangRegels(0, 0, 0) + "const signed char toon[] = \n{\n};\n"},
       false},
      {"SizesWithHeader", smal, golf(500), {omvangRegels(156, 31, 38)}},
      {"SizesAreTheSameWithoutHeader", smal, golf(500), {omvangRegels(156, 31, 38)}, false},
  };
}

std::string naamVan(testing::TestParamInfo<Geval> const& geval) {
  return geval.param.naam;
}

INSTANTIATE_TEST_SUITE_P(Setting, EncoderInstelling, testing::ValuesIn(instellingen()), naamVan);
INSTANTIATE_TEST_SUITE_P(Size, EncoderInstelling, testing::ValuesIn(omvangen()), naamVan);

class EncoderOmvang : public EncoderProef {};

TEST_F(EncoderOmvang, TheCallerGetsTheRatioThatTheTextTells) {
  for (auto const& [lengte, procent] :
       {std::pair{201U, 38.0}, {1U, 100.0}, {38U, 100.0}, {39U, 100.0}, {40U, 97.0}, {0U, 0.0}}) {
    EXPECT_EQ(codeer(Instelling(), wav("toon.wav", golf(lengte))).verhouding, procent) << lengte;
  }
}

TEST_F(EncoderOmvang, BandThatDoesNotExistCountsAsNarrowband) {
  SpeexEncodeConfig config = Instelling().config();
  config.formaat = static_cast<SpeexBandFormaat>(7);
  SpeexDesktopEncoder encoder(config, SpeexEncoderOpties());
  std::string const pad = wav("toon.wav", spraak(400, 8000));
  EXPECT_TRUE(zelfdeTekst(zonderMoment(codeer(encoder, pad).tekst), inC(Instelling(), pad)));
}

}  // namespace
