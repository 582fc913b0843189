// The plain audio settings.
#include "audio/codec/audioConfig.h"

#include <gtest/gtest.h>

namespace {

TEST(AudioConfig, houdtFrequentieEnBreedte) {
  VelmoraAudioConfig const config(Breuk(16000, 1), 16);
  EXPECT_EQ(config.sampFreq.teller(), 16000);
  EXPECT_EQ(config.sampFreq.noemer(), 1);
  EXPECT_EQ(config.aantalBits, 16U);
}

TEST(AudioConfig, kopieertDeFrequentieZoalsZeStaat) {
  Breuk frequentie(88200, 2);
  VelmoraAudioConfig const config(frequentie, 1ULL << 40U);
  frequentie *= 5;
  EXPECT_EQ(config.sampFreq.teller(), 88200);
  EXPECT_EQ(config.sampFreq.noemer(), 2);
  EXPECT_EQ(config.aantalBits, 1ULL << 40U);
}

}  // namespace
