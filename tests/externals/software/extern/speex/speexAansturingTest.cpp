// What encoder and decoder ask of the Speex libraries, call by call. The numbers of the requests
// are written out: they are what the libraries understand.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>

#include "externals/software/extern/speex/speexDecoder.h"
#include "externals/software/extern/speex/speexEncoder.h"
#include "tests/externals/software/extern/speex/speexOproepen.h"

namespace {

using Regels = std::vector<std::string>;

Regels samen(Regels een, Regels const& ander) {
  een.insert(een.end(), ander.begin(), ander.end());
  return een;
}

// Settings whose values are told apart wherever they turn up.
SpeexEncodeConfig instellingen(int band, int soort) {
  return {static_cast<SpeexBandFormaat>(band),
          7,
          3,
          static_cast<SpeexBitrateType>(soort),
          12345,
          8,
          true,
          false,
          true};
}

Regels bouw(SpeexEncodeConfig const& config) {
  neemOproepen();
  SpeexEncoder const encoder(config);
  return teksten(neemOproepen());
}

std::set<void const*> toestanden(std::vector<Oproep> const& oproepen, std::string const& begin) {
  std::set<void const*> gevonden;
  for (Oproep const& oproep : metBegin(oproepen, begin)) {
    gevonden.insert(oproep.toestand);
  }
  return gevonden;
}

// By band, the last two as bands that do not exist.
struct Band {
  int waarde;
  std::string modus;
  std::string preprocess;  // its frame and frequency
  Regels haalt;            // narrowband is taken as it is
};
std::array<Band, 5> const banden{{{0, "narrowband", "160 8000", {}},
                                  {1, "wideband", "320 16000", {"speex_lib_get_mode 1"}},
                                  {2, "ultra wideband", "640 32000", {"speex_lib_get_mode 2"}},
                                  {7, "narrowband", "160 8000", {}},
                                  {-1, "narrowband", "160 8000", {}}}};

// The calls of every construction, up to the ones that the kind of bit rate adds.
Regels vasteOproepen(Band const& band) {
  return samen(
      samen({"speex_bits_init"}, band.haalt),
      {"speex_encoder_init " + band.modus, "speex_preprocess_state_init " + band.preprocess,
       "speex_preprocess_ctl 0 0", "speex_preprocess_ctl 2 1", "speex_encoder_ctl 4 7",
       "speex_encoder_ctl 16 3", "speex_encoder_ctl 30 1"});
}

Regels metVbr(Band const& band) {
  return samen(vasteOproepen(band),
               {"speex_encoder_ctl 12 1", "speex_encoder_ctl 14 7", "speex_encoder_ctl 42 12345"});
}

void verwachtVijfRegelingen(int soort) {
  for (Band const& band : banden) {
    EXPECT_EQ(bouw(instellingen(band.waarde, soort)), vasteOproepen(band)) << band.waarde;
  }
}

TEST(SpeexAansturing, FixedBitrateMakesFiveControlCalls) {
  verwachtVijfRegelingen(0);
}

TEST(SpeexAansturing, UnknownBitrateKindMakesFiveControlCalls) {
  for (int const soort : {7, 3, -1}) {
    verwachtVijfRegelingen(soort);
  }
}

TEST(SpeexAansturing, VariableBitrateMakesThreeMoreWithTheQualityAsAnInteger) {
  for (Band const& band : banden) {
    EXPECT_EQ(bouw(instellingen(band.waarde, 1)), metVbr(band)) << band.waarde;
  }
}

TEST(SpeexAansturing, AveragedBitrateMakesOneMoreWithTheConstant1) {
  for (Band const& band : banden) {
    EXPECT_EQ(bouw(instellingen(band.waarde, 2)),
              (samen(vasteOproepen(band), {"speex_encoder_ctl 32 1"})))
        << band.waarde;
  }
}

TEST(SpeexAansturing, EverySwitchGoesToItsOwnRequestAs0Or1) {
  auto const schakelaars = [](bool vad, bool denoise, bool agc) {
    Regels const regels = bouw({SpeexNarrowband, 8, 3, SpeexFixedBitrate, 0, 8, vad, denoise, agc});
    return Regels{regels.at(7), regels.at(3), regels.at(4)};
  };
  EXPECT_EQ(
      schakelaars(false, false, false),
      (Regels{"speex_encoder_ctl 30 0", "speex_preprocess_ctl 0 0", "speex_preprocess_ctl 2 0"}));
  EXPECT_EQ(
      schakelaars(true, false, false),
      (Regels{"speex_encoder_ctl 30 1", "speex_preprocess_ctl 0 0", "speex_preprocess_ctl 2 0"}));
  EXPECT_EQ(
      schakelaars(false, true, false),
      (Regels{"speex_encoder_ctl 30 0", "speex_preprocess_ctl 0 1", "speex_preprocess_ctl 2 0"}));
  EXPECT_EQ(
      schakelaars(false, false, true),
      (Regels{"speex_encoder_ctl 30 0", "speex_preprocess_ctl 0 0", "speex_preprocess_ctl 2 1"}));
}

TEST(SpeexAansturing, NumbersPassAsTheyStand) {
  Regels const regels = bouw({SpeexNarrowband, 4294967295U, 2147483648U, SpeexVariableBitrate,
                              4000000000U, 8, false, false, false});
  // The same 32 bits, read as signed.
  EXPECT_EQ(Regels(regels.begin() + 5, regels.end()),
            (Regels{"speex_encoder_ctl 4 -1", "speex_encoder_ctl 16 -2147483648",
                    "speex_encoder_ctl 30 0", "speex_encoder_ctl 12 1", "speex_encoder_ctl 14 -1",
                    "speex_encoder_ctl 42 -294967296"}));
}

TEST(SpeexAansturing, PreprocessorGetsTheNumeratorOfTheFrequency) {
  SpeexEncodeConfig config = instellingen(1, 0);
  config.sampFreq = Breuk(22050, 2);
  EXPECT_EQ(bouw(config).at(3), "speex_preprocess_state_init 320 22050");
}

TEST(SpeexAansturing, EveryControlCallOfAnEncoderGetsTheAddressOfTheSameInteger) {
  for (int const soort : {0, 1, 2, 7}) {
    neemOproepen();
    SpeexEncoder const encoder(instellingen(1, soort));
    std::set<void const*> adressen;
    for (Oproep const& oproep : neemOproepen()) {
      if (oproep.tekst.find("_ctl ") != std::string::npos) {
        adressen.insert(oproep.adres);
      }
    }
    EXPECT_EQ(adressen.size(), 1U) << soort;
    EXPECT_EQ(adressen.count(nullptr), 0U) << soort;
  }
}

TEST(SpeexAansturing, EncoderIsDestroyedPreprocessorFirstAndBitsLast) {
  neemOproepen();
  auto encoder = std::make_unique<SpeexEncoder>(instellingen(0, 1));
  std::vector<Oproep> oproepen = neemOproepen();
  encoder.reset();
  std::vector<Oproep> const einde = neemOproepen();
  EXPECT_EQ(teksten(einde), (Regels{"speex_preprocess_state_destroy", "speex_encoder_destroy",
                                    "speex_bits_destroy"}));

  // Each call goes to what was made, and what was made is destroyed.
  oproepen.insert(oproepen.end(), einde.begin(), einde.end());
  EXPECT_EQ(toestanden(oproepen, "speex_encoder").size(), 1U);
  EXPECT_EQ(toestanden(oproepen, "speex_preprocess").size(), 1U);
  EXPECT_EQ(toestanden(oproepen, "speex_bits").size(), 1U);
}

TEST(SpeexAansturing, DecoderAsksTheFrameSizeAndTurnsEnhancementOn) {
  for (Band const& band : banden) {
    neemOproepen();
    SpeexDecoder const decoder(static_cast<SpeexBandFormaat>(band.waarde));
    EXPECT_EQ(teksten(neemOproepen()), samen(samen({"speex_bits_init"}, band.haalt),
                                             {"speex_decoder_init " + band.modus,
                                              "speex_decoder_ctl 3", "speex_decoder_ctl 0 1"}))
        << band.waarde;
  }
}

TEST(SpeexAansturing, DecoderIsDestroyedBeforeItsBits) {
  neemOproepen();
  auto decoder = std::make_unique<SpeexDecoder>(SpeexWideband);
  std::vector<Oproep> oproepen = neemOproepen();
  decoder.reset();
  std::vector<Oproep> const einde = neemOproepen();
  EXPECT_EQ(teksten(einde), (Regels{"speex_decoder_destroy", "speex_bits_destroy"}));

  oproepen.insert(oproepen.end(), einde.begin(), einde.end());
  EXPECT_EQ(toestanden(oproepen, "speex_decoder").size(), 1U);
  EXPECT_EQ(toestanden(oproepen, "speex_bits").size(), 1U);
}

TEST(SpeexAansturing, RefusedControlCallsChangeNoOtherCall) {
  MetStreek const leugen(Streek::liegt);
  EXPECT_EQ(bouw(instellingen(2, 1)), metVbr(banden[2]));
  neemOproepen();
  { SpeexDecoder const decoder(SpeexNarrowband); }
  EXPECT_EQ(teksten(neemOproepen()),
            (Regels{"speex_bits_init", "speex_decoder_init narrowband", "speex_decoder_ctl 3",
                    "speex_decoder_ctl 0 1", "speex_decoder_destroy", "speex_bits_destroy"}));
}

class OpenDecoder : public SpeexDecoder {
 public:
  using SpeexDecoder::frameSize;
  using SpeexDecoder::SpeexDecoder;
};

TEST(SpeexAansturing, FrameSizeThatTheLibraryTellsIsDropped) {
  MetStreek const leugen(Streek::liegt);
  EXPECT_EQ(OpenDecoder(SpeexNarrowband).frameSize, 160);
  EXPECT_EQ(OpenDecoder(SpeexWideband).frameSize, 320);
  EXPECT_EQ(OpenDecoder(SpeexUltraWideband).frameSize, 640);
}

// The calls that a run over `frames` fixed frames of 38 bytes makes.
Regels vasteFrames(std::size_t frames) {
  Regels regels;
  for (std::size_t frame = 0; frame < frames; ++frame) {
    regels.insert(regels.end(), {"speex_bits_read_from 38", "speex_decode_int"});
  }
  return regels;
}

TEST(SpeexAansturing, FixedFramesDecodesOneFrameAndWhatTheCountIsAbove161) {
  struct Geval {
    unsigned long long aantal;
    std::size_t frames;
  };
  std::array<char, 190> const data{};  // five of 38
  for (Geval const& geval : {Geval{0, 0}, Geval{1, 1}, Geval{159, 1}, Geval{160, 1}, Geval{161, 1},
                             Geval{162, 2}, Geval{165, 5}}) {
    SpeexDecoder decoder(SpeexNarrowband);
    std::array<short, 160> uitvoer{};
    neemOproepen();
    decoder.decodeerFixedFrames(data.data(), 38, uitvoer.data(), geval.aantal);
    std::vector<Oproep> const oproepen = neemOproepen();
    EXPECT_EQ(teksten(oproepen), vasteFrames(geval.frames)) << geval.aantal;
    char const* plaats = data.data();
    for (Oproep const& lees : metBegin(oproepen, "speex_bits_read_from")) {
      EXPECT_EQ(lees.adres, plaats) << geval.aantal;
      plaats += 38;
    }
  }
}

}  // namespace
