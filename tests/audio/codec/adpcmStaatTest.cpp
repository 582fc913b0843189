// The state of the ADPCM coder: how it runs on over packets, that its two directions leave each
// other alone, and where it is held.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <set>
#include <vector>

#include "audio/codec/adpcmConverter.h"
#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/adpcmHulp.h"
#include "tests/audio/codec/adpcmModel.h"

namespace {

Breuk const freq(8000, 1);

using Samples = std::vector<int>;

Samples deel(Samples const& samples, std::size_t begin, std::size_t einde) {
  return {samples.begin() + static_cast<std::ptrdiff_t>(begin),
          samples.begin() + static_cast<std::ptrdiff_t>(einde)};
}

Bytes achterElkaar(Bytes eerste, Bytes const& tweede) {
  eerste.insert(eerste.end(), tweede.begin(), tweede.end());
  return eerste;
}

TEST(AdpcmCoderStaat, eenPakketSampleGeeftGeenByteEnTweeGevenEr) {
  for (std::size_t const aantal : {0U, 1U, 2U, 3U, 4U, 5U}) {
    std::vector<short> samples(aantal, 100);
    VelmoraPCMPakket const bron(samples.data(), samples.size(), freq);
    VelmoraADPCMPakket const doel(6, freq);
    vul(doel, Bytes(6, 0xEE));
    ADPCMConverter converter;
    converter.encodeer(bron, doel);
    Bytes verwacht(6, 0xEE);
    Bytes const geschreven{0x77, 0x87};
    std::copy_n(geschreven.begin(), aantal / 2, verwacht.begin());
    EXPECT_EQ(inhoud(doel), verwacht) << aantal;
  }
}

TEST(AdpcmCoderStaat, leegPakketEnEenSampleLatenDeStaatStaan) {
  ADPCMConverter converter;
  converter.encodeer(VelmoraPCMPakket(), VelmoraADPCMPakket());
  EXPECT_EQ(codes(converter, {}), Bytes{});
  EXPECT_EQ(codes(converter, {127}), Bytes{});
  EXPECT_EQ(codes(converter, {100, 100, 100, 100}), (Bytes{0x77, 0x87}));
}

TEST(AdpcmCoderStaat, tweedePakketGaatVerderWaarHetEersteBleef) {
  ADPCMConverter converter;
  EXPECT_EQ(codes(converter, {100, 100}), (Bytes{0x77}));
  EXPECT_EQ(codes(converter, {100, 100}), (Bytes{0x87}));
  ADPCMConverter nieuw;
  EXPECT_EQ(codes(nieuw, {100, 100}), (Bytes{0x77}));
}

TEST(AdpcmCoderStaat, onevenLaatsteSampleTeltNiet) {
  ADPCMConverter converter;
  EXPECT_EQ(codes(converter, {100, 100, -128}), (Bytes{0x77}));
  EXPECT_EQ(codes(converter, {100, 100, -128}), (Bytes{0x87}));
}

TEST(AdpcmCoderStaat, inStukkenZijnDeCodesDieVanHetGeheel) {
  for (Signaal const& signaal : signalen()) {
    ADPCMConverter heel;
    ADPCMConverter inStukken;
    std::size_t const helft = signaal.samples.size() / 4 * 2;
    Bytes const eerste = codes(inStukken, deel(signaal.samples, 0, helft));
    Bytes const tweede = codes(inStukken, deel(signaal.samples, helft, signaal.samples.size()));
    EXPECT_EQ(achterElkaar(eerste, tweede), codes(heel, signaal.samples)) << signaal.naam;
  }
}

TEST(AdpcmCoderStaat, nieuweSchuifGeldtVanafHetVolgendePakketEnLaatDeStaatStaan) {
  ADPCMConverter converter;
  EXPECT_EQ(codes(converter, {100, 100}), (Bytes{0x77}));
  converter.zetBitShift(4);
  // 96 and 111 are 6 to the coder, which stands at the second of the predictions by hand.
  AdpcmStand stand{16, 41};
  EXPECT_EQ(codes(converter, {96, 111}), modelBytes(stand, {6, 6}, 1));
  converter.zetBitShift(0);
  EXPECT_EQ(codes(converter, {6, 6}), modelBytes(stand, {6, 6}, 1));
}

TEST(AdpcmCoderStaat, losSampleEnPakketDelenDeStaat) {
  ADPCMConverter converter;
  EXPECT_EQ(converter.ADPCM_Encode(100), 7);
  EXPECT_EQ(converter.ADPCM_Encode(100), 7);
  EXPECT_EQ(codes(converter, {100, 100}), (Bytes{0x87}));
}

TEST(AdpcmCoderStaat, kopVanHetDoelBlijftZoalsHijWas) {
  VelmoraADPCMPakket const blok(1, freq);
  VelmoraADPCMPakket const doel(blok, Breuk(1234, 5), -300, 17);
  std::vector<short> samples{100, 100};
  ADPCMConverter converter;
  for (Bytes const& verwacht : {Bytes{0x77}, Bytes{0xDF}}) {
    converter.encodeer(VelmoraPCMPakket(samples.data(), 2, freq), doel);
    EXPECT_EQ(inhoud(doel), verwacht);
    EXPECT_EQ(doel.geefPredictor(), -300);
    EXPECT_EQ(doel.geefBeginIndex(), 17);
    EXPECT_EQ(doel.geefSampFreq().teller(), 1234);
    EXPECT_EQ(doel.geefSampFreq().noemer(), 5);
    samples = {-128, -128};
  }
}

TEST(AdpcmCoderStaat, decoderLaatDeCoderMetRust) {
  std::vector<int> const samples = smalleSignalen().front().samples;
  ADPCMConverter gestoord;
  ADPCMConverter rustig;
  for (std::size_t begin = 0; begin < 6000; begin += 100) {
    Samples const stuk = deel(samples, begin, begin + 100);
    EXPECT_EQ(codes(gestoord, stuk), codes(rustig, stuk)) << begin;
    gedecodeerd(gestoord, Bytes(50, 0x7F), -1000, 60);
    gestoord.ADPCM_Decode(7);
  }
}

TEST(AdpcmCoderStaat, coderLaatDeDecoderMetRust) {
  ADPCMConverter converter;
  EXPECT_EQ(losseSamples(converter, {0x77}), (Samples{11, 41}));
  codes(converter, Samples(200, -128));
  converter.ADPCM_Encode(32767);
  EXPECT_EQ(losseSamples(converter, {0x87}), (Samples{104, 95}));
}

TEST(AdpcmDecoderStaat, elkPakketBegintBijZijnEigenKop) {
  ADPCMConverter converter;
  for (int keer = 0; keer < 3; ++keer) {
    EXPECT_EQ(gedecodeerd(converter, {0x77, 0x87}, 0, 0), (Samples{11, 41, 104, 95}));
  }
}

TEST(AdpcmDecoderStaat, losseCodeGaatVerderNaHetPakket) {
  ADPCMConverter converter;
  EXPECT_EQ(gedecodeerd(converter, {0x77}, 0, 0), (Samples{11, 41}));
  EXPECT_EQ(losseSamples(converter, {0x87}), (Samples{104, 95}));
}

TEST(AdpcmDecoderStaat, leegPakketZetDeStaatOokOpZijnKop) {
  ADPCMConverter converter;
  losseSamples(converter, Bytes(20, 0x77));
  gedecodeerd(converter, {}, -30, 16);
  // A step of 34: 4, 17 and 8 below -30, and 34 as well.
  EXPECT_EQ(converter.ADPCM_Decode(15), -30 - 63);
  converter.decodeer(VelmoraADPCMPakket(), VelmoraPCMPakket());
  EXPECT_EQ(losseSamples(converter, {0x77, 0x87}), (Samples{11, 41, 104, 95}));
}

TEST(AdpcmDecoderStaat, negatievePredictorIsHetBegin) {
  ADPCMConverter converter;
  EXPECT_EQ(gedecodeerd(converter, {0x77, 0x87}, -1000, 0), (Samples{-989, -959, -896, -905}));
  EXPECT_EQ(gedecodeerd(converter, {0x00}, -32768, 0), (Samples{-32768, -32768}));
}

TEST(AdpcmDecoderStaat, beginIndexBoven88TeltAls88) {
  ADPCMConverter converter;
  // The step at 88 is 32767, of which code 0 adds an eighth.
  for (int const index : {88, 89, 127, 128, 200, 255}) {
    EXPECT_EQ(gedecodeerd(converter, {0x84}, -30000, index), (Samples{6862, 2767})) << index;
    EXPECT_EQ(gedecodeerd(converter, {0x00}, 0, index), (Samples{4095, 4095 + 3724})) << index;
    gedecodeerd(converter, {}, 0, index);
    EXPECT_EQ(converter.ADPCM_Decode(0), 4095) << index;
  }
}

TEST(AdpcmDecoderStaat, voorspellingStuitOpDeUitersteWaardenOokMiddenInEenByte) {
  ADPCMConverter converter;
  // A step of 32767, of which code 7 is 61436 in all.
  EXPECT_EQ(gedecodeerd(converter, {0xF7}, 32767, 88), (Samples{32767, -28669}));
  EXPECT_EQ(gedecodeerd(converter, {0x7F}, -32768, 88), (Samples{-32768, 28668}));
  EXPECT_EQ(gedecodeerd(converter, {0xFF, 0x77, 0x77}, 0, 88),
            (Samples{-32768, -32768, 28668, 32767, 32767, 32767}));
  // A step of 7, of which code 7 is 11 in all: just there, and one past it.
  EXPECT_EQ(gedecodeerd(converter, {0x07}, 32756, 0).front(), 32767);
  EXPECT_EQ(gedecodeerd(converter, {0x07}, 32757, 0).front(), 32767);
  EXPECT_EQ(gedecodeerd(converter, {0x07}, 32755, 0).front(), 32766);
  EXPECT_EQ(gedecodeerd(converter, {0x0F}, -32757, 0).front(), -32768);
  EXPECT_EQ(gedecodeerd(converter, {0x0F}, -32758, 0).front(), -32768);
  EXPECT_EQ(gedecodeerd(converter, {0x0F}, -32756, 0).front(), -32767);
}

TEST(AdpcmDecoderStaat, indexStuitOpNulEn88OokMiddenInEenByte) {
  ADPCMConverter converter;
  // Below 0 the step stays 7, of which code 4 is 7.
  EXPECT_EQ(gedecodeerd(converter, {0x40}, 0, 0), (Samples{0, 7}));
  EXPECT_EQ(gedecodeerd(converter, {0x04, 0x40}, 0, 0), (Samples{7, 8, 9, 16}));
  // Above 88 it stays 32767, of which an eighth is 4095.
  EXPECT_EQ(gedecodeerd(converter, {0x84}, 0, 88), (Samples{32767, 28672}));
  EXPECT_EQ(gedecodeerd(converter, {0x0F}, 0, 87), (Samples{-32768, -28673}));
  EXPECT_EQ(gedecodeerd(converter, {0x04}, -32768, 87), (Samples{750, 4845}));
}

// The index and the prediction at either end, and the codes all the way.
TEST(AdpcmCoderStaat, langeReeksKomtAanAlleGrenzenEnBlijftGelijkAanHetModel) {
  std::set<int> indexen;
  std::set<int> voorspellingen;
  ADPCMConverter converter;
  AdpcmStand stand;
  std::size_t nummer = 0;
  for (int ronde = 0; ronde < 5; ++ronde) {
    for (Signaal const& signaal : signalen()) {
      for (int const sample : signaal.samples) {
        int const code = modelCode(stand, sample);
        ASSERT_EQ(converter.ADPCM_Encode(static_cast<short>(sample)), code) << nummer;
        indexen.insert(stand.index);
        voorspellingen.insert(stand.voorspelling);
        ++nummer;
      }
    }
  }
  EXPECT_EQ(*indexen.begin(), 0);
  EXPECT_EQ(*indexen.rbegin(), 88);
  EXPECT_EQ(*voorspellingen.begin(), -32768);
  EXPECT_EQ(*voorspellingen.rbegin(), 32767);
}

TEST(AdpcmDecoder, schrijftOpDeElementenVanHetDoelEnNietsVerder) {
  VelmoraADPCMPakket const bron(2, freq);
  vul(bron, {0x77, 0x87});
  VelmoraPCMPakket const doel(6, freq);
  std::fill_n(doel.geefData(), 6, static_cast<short>(-7));
  ADPCMConverter().decodeer(bron, doel);
  EXPECT_EQ(std::vector<short>(doel.geefData(), doel.geefData() + 6),
            (std::vector<short>{11, 41, 104, 95, -7, -7}));
}

TEST(AdpcmDecoder, schuifHeeftErGeenDeelAan) {
  ADPCMConverter converter;
  converter.zetBitShift(8);
  EXPECT_EQ(gedecodeerd(converter, {0x77, 0x87}, 0, 0), (Samples{11, 41, 104, 95}));
}

TEST(AdpcmPakketGrootte, codesLiggenOpDeElementenVanHetPakket) {
  Bytes blok(8, 0xEE);
  BasisPakket const basis(blok.data(), 4, 2, false);
  VelmoraADPCMPakket const breed(basis, freq, 0, 0);
  std::vector<short> const samples(4, 100);
  ADPCMConverter().encodeer(VelmoraPCMPakket(samples.data(), 4, freq), breed);
  EXPECT_EQ(blok, (Bytes{0x77, 0xEE, 0x87, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
  std::vector<short> gehoord(8, -7);
  ADPCMConverter().decodeer(breed, VelmoraPCMPakket(gehoord.data(), 8, freq));
  EXPECT_EQ(gehoord, (std::vector<short>{11, 41, 104, 95, -7, -7, -7, -7}));
}

TEST(AdpcmPakketGrootte, samplesMogenOpEenOnevenAdresLiggen) {
  Bytes ruw{0, 4, 0, 0, 0, 0x40, 0x1F, 0, 0, 0, 0, 0, 0};
  std::size_t const kop = ruw.size();
  std::vector<short> samples(4, 100);
  std::size_t const bytes = samples.size() * sizeof samples[0];
  ruw.resize(kop + bytes);
  std::memcpy(ruw.data() + kop, samples.data(), bytes);
  VelmoraADPCMPakket const doel(2, freq);
  ADPCMConverter converter;
  converter.encodeer(VelmoraPCMPakket(ruw.data() + 1, nullptr), doel);
  EXPECT_EQ(inhoud(doel), (Bytes{0x77, 0x87}));
  converter.decodeer(doel, VelmoraPCMPakket(ruw.data() + 1, nullptr));
  std::memcpy(samples.data(), ruw.data() + kop, bytes);
  EXPECT_EQ(samples, (std::vector<short>{11, 41, 104, 95}));
}

}  // namespace
