// What tells a whole image from a cut one. The images are made by hand, from the definition of WAV.
#include "audio/codec/wavBeeld.h"

#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/volleSchijf.h"
#include "tests/steun/wxMain.h"

namespace {

std::string getal(unsigned int waarde, unsigned int bytes) {
  Bytes const rij = laagEerst(waarde, bytes);
  return {rij.begin(), rij.end()};
}

std::string chunk(std::string const& naam, std::string const& inhoud) {
  return naam + getal(static_cast<unsigned int>(inhoud.size()), 4) + inhoud;
}

std::string riff(std::string const& chunks) {
  return chunk("RIFF", "WAVE" + chunks);
}

std::string formaat(unsigned int soort, unsigned int blokBytes, std::string const& meer = "") {
  return chunk("fmt ", getal(soort, 2) + getal(1, 2) + getal(8000, 4) + getal(16000, 4) +
                           getal(blokBytes, 2) + getal(16, 2) + meer);
}

// 16-bit PCM, one channel.
std::string pcm(std::size_t frames) {
  return riff(formaat(1, 2) + chunk("data", std::string(2 * frames, '\x11')));
}

// IMA ADPCM in blocks of 256 bytes with 505 frames each.
std::string ima(std::size_t dataBytes) {
  return riff(formaat(0x11, 256, getal(2, 2) + getal(505, 2)) + chunk("fact", getal(505, 4)) +
              chunk("data", std::string(dataBytes, '\x11')));
}

bool isHeel(std::string const& beeld, sf_count_t frames) {
  return isHeelWavBeeld(beeld, beeld.size(), frames);
}

TEST(HeelWavBeeld, OfPcmHasAllItsFramesAndNoMore) {
  EXPECT_TRUE(isHeel(pcm(100), 100));
  EXPECT_TRUE(isHeel(pcm(0), 0));
  EXPECT_FALSE(isHeel(pcm(99), 100));
  EXPECT_FALSE(isHeel(pcm(101), 100));
}

TEST(HeelWavBeeld, OfTwoChannelsCountsFrames) {
  std::string const stereo = riff(formaat(1, 4) + chunk("data", std::string(40, '\x11')));
  EXPECT_TRUE(isHeel(stereo, 10));
  EXPECT_FALSE(isHeel(stereo, 20));
}

TEST(HeelWavBeeld, OfImaHasWholeBlocksForItsFrames) {
  EXPECT_TRUE(isHeel(ima(512), 1010));
  EXPECT_TRUE(isHeel(ima(512), 506));
  EXPECT_TRUE(isHeel(ima(0), 0));
  EXPECT_FALSE(isHeel(ima(512), 1011));
  EXPECT_FALSE(isHeel(ima(512), 505));
  // The last block is cut, in a file that fits together otherwise.
  EXPECT_FALSE(isHeel(ima(400), 1010));
}

TEST(HeelWavBeeld, IsNotCutWithItsHeaderLeftAsItWas) {
  std::string const heel = pcm(100);
  for (std::size_t bytes = 0; bytes < heel.size(); ++bytes) {
    EXPECT_FALSE(isHeel(heel.substr(0, bytes), 100)) << bytes;
  }
  EXPECT_FALSE(isHeel(heel + "x", 100));
}

// The header is written when the file is opened, and once more with its sizes when it is closed.
TEST(HeelWavBeeld, HasItsSizesInTheHeader) {
  std::string beeld = pcm(100);
  beeld.replace(4, 4, getal(0, 4));
  EXPECT_FALSE(isHeel(beeld, 100));
  beeld = pcm(100);
  beeld.replace(40, 4, getal(0, 4));
  EXPECT_FALSE(isHeel(beeld, 100));
}

TEST(HeelWavBeeld, IsJudgedByItsBeginAlone) {
  std::string const heel = pcm(100000);
  EXPECT_TRUE(isHeelWavBeeld(std::string_view(heel).substr(0, 64), heel.size(), 100000));
  EXPECT_FALSE(isHeelWavBeeld(std::string_view(heel).substr(0, 64), heel.size() - 1, 100000));
}

TEST(HeelWavBeeld, MayHaveOtherChunksBeforeItsSamples) {
  std::string const data = chunk("data", std::string(20, '\x11'));
  EXPECT_TRUE(isHeel(riff(formaat(1, 2) + chunk("odd ", "abc") + "x" + data), 10));
  EXPECT_FALSE(isHeel(riff(formaat(1, 2)), 10));
  EXPECT_FALSE(isHeel(riff(formaat(1, 2) + "da"), 10));
}

TEST(HeelWavBeeld, OfAnotherKindOfFileIsAnythingButEmpty) {
  EXPECT_TRUE(isHeel("RIFX and what else there is", 10));
  EXPECT_FALSE(isHeel("", 10));
}

// What embedding returns where its image finds no room. The text goes to memory.
class InbedUitslag : public InbedProef {
 protected:
  bool lukt(std::string const& pad) {
    wxMemoryOutputStream uit;
    bool const heel = schrijfInbedding(bestandsnaam(pad), {0, "", 16}, uit);
    tekst = tekstVan(uit);
    return heel;
  }
  void verwachtGemerktTot(rlim_t bytes, rlim_t stap) {
    for (rlim_t plaats = 0; plaats < bytes; plaats += stap) {
      VolleSchijf const vol(plaats);
      EXPECT_FALSE(lukt(toon)) << plaats;
      EXPECT_NE(tekst.find("};\n\n/* end of WAV file         : toon.wav         */\n"),
                std::string::npos)
          << plaats;
    }
    VolleSchijf const ruim(bytes);
    EXPECT_TRUE(lukt(toon));
  }

  std::string tekst;
};

TEST_F(InbedUitslag, OfAWholeImageIsTrue) {
  schrijfWav(toon, golf(100));
  EXPECT_TRUE(lukt(toon));
  schrijfWav(toon, golf(101), {32000, 2});
  EXPECT_TRUE(lukt(toon));
  schrijfWav(toon, {});
  EXPECT_TRUE(lukt(toon));
  for (std::size_t const samples : {0U, 1U, 505U, 506U, 100000U}) {
    schrijfSnd(toon, golf(samples), {}, wavAdpcm);
    EXPECT_TRUE(lukt(toon)) << samples;
  }
  schrijfSnd(toon, golf(5000), {16000, 2}, wavAdpcm);
  EXPECT_TRUE(lukt(toon));
}

// Kinds that only a file that was replaced after its loading can have.
TEST_F(InbedUitslag, OfAWholeImageOfAnotherKindIsTrue) {
  for (int const kind :
       {SF_FORMAT_WAV | SF_FORMAT_PCM_U8, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
        SF_FORMAT_WAVEX | SF_FORMAT_PCM_16, SF_FORMAT_WAV | SF_FORMAT_PCM_16 | SF_ENDIAN_BIG,
        SF_FORMAT_WAV | SF_FORMAT_FLOAT, SF_FORMAT_AIFF | SF_FORMAT_PCM_16,
        SF_FORMAT_WAV | SF_FORMAT_MS_ADPCM}) {
    for (std::size_t const samples : {100U, 101U}) {
      schrijfSnd(toon, golf(samples), {}, kind);
      EXPECT_TRUE(lukt(toon)) << kind << ", " << samples;
    }
  }
}

TEST_F(InbedUitslag, WithoutRoomForAllOfAPcmImageIsFalseWhereverItIsCut) {
  schrijfWav(toon, golf(100));
  verwachtGemerktTot(244, 1);
}

TEST_F(InbedUitslag, WithoutRoomForAllOfAnImaImageIsFalseWhereverItIsCut) {
  schrijfSnd(toon, golf(1000), {}, wavAdpcm);
  Bytes const heel = leesBytes(toon);
  verwachtGemerktTot(heel.size(), 7);
}

TEST_F(InbedUitslag, WithoutATemporaryDirectoryIsFalse) {
  schrijfWav(toon, golf(100));
  OmgevingsWaarde const nergens("TMPDIR", "/proc");
  EXPECT_FALSE(lukt(toon));
}

TEST_F(InbedUitslag, WithoutItsSourceIsFalse) {
  EXPECT_FALSE(lukt(map.pad("weg.wav")));
}

TEST_F(InbedUitslag, OfAnImageUnderALongNameIsTrue) {
  std::string const lang = map.pad(std::string(251, 'a') + ".wav");
  schrijfWav(lang, golf(100));
  EXPECT_TRUE(lukt(lang));
  EXPECT_EQ(namen()[0].size(), 255U);
}

}  // namespace
