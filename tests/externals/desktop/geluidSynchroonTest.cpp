// Sounds that the program waits for: what the device has been given when Play returns.
#include <algorithm>
#include <csignal>

#include "tests/externals/desktop/geluidProef.h"

namespace {

using GeluidSynchroon = GeluidProef;

struct Vorm {
  char const* naam;
  WavSoort soort;
  std::size_t frames;
};

// Samples of that form.
Bytes samplesVan(Vorm const& vorm) {
  return proefGeluid(vorm.frames *
                     static_cast<std::size_t>(vorm.soort.kanalen * vorm.soort.bits / 8));
}

TEST_F(GeluidSynchroon, EachFormIsHeardWholeOnADeviceOfItsFormWithSilenceBehind) {
  startSpeler();
  // No number of frames here is a whole number of any device's blocks, but one.
  for (Vorm const& vorm :
       {Vorm{"Mono8000Hz", {8000, 1, 16}, 5001}, Vorm{"Stereo8000Hz", {8000, 2, 16}, 5001},
        Vorm{"Narrow8000Hz", {8000, 1, 8}, 5001}, Vorm{"NarrowStereo11025Hz", {11025, 2, 8}, 7003},
        Vorm{"Mono16000Hz", {16000, 1, 16}, 7003}, Vorm{"Stereo22050Hz", {22050, 2, 16}, 7003},
        Vorm{"Mono32000Hz", {32000, 1, 16}, 7003}, Vorm{"Stereo44100Hz", {44100, 2, 16}, 20011},
        Vorm{"Mono48000Hz", {48000, 1, 16}, 20011}, Vorm{"Mono96000Hz", {96000, 1, 16}, 20011},
        Vorm{"Mono192000Hz", {192000, 1, 16}, 20011}, Vorm{"ThreeChannels", {8000, 3, 16}, 5001},
        Vorm{"EightChannels", {8000, 8, 16}, 5001}, Vorm{"EightNarrowChannels", {8000, 8, 8}, 5001},
        Vorm{"OneFrame", {8000, 1, 16}, 1}, Vorm{"WholeBlocks", {8000, 1, 16}, 4096}}) {
    SCOPED_TRACE(vorm.naam);
    naarBestand(vorm.naam);
    Bytes const samples = samplesVan(vorm);
    EXPECT_TRUE(maakGeluid(vorm.soort, samples)->Play(wxSOUND_SYNC));
    EXPECT_FALSE(isOpen(vorm.naam));
    EXPECT_FALSE(wxSound::IsPlaying());
    verwachtGeheel(gehoord(vorm.naam, vorm.soort), samples, vorm.soort);
    ToestelVorm const toestel = laatsteToestel();
    EXPECT_EQ(toestel.rate, vorm.soort.rate);
    EXPECT_EQ(toestel.kanalen, vorm.soort.kanalen);
    EXPECT_EQ(toestel.bits, vorm.soort.bits);
    // Narrow samples of a WAV file have no sign, wide ones have, with their low byte first.
    EXPECT_EQ(toestel.metTeken, vorm.soort.bits == 16);
    EXPECT_TRUE(toestel.laagEerst);
    EXPECT_TRUE(toestel.vast);
  }
}

TEST_F(GeluidSynchroon, TwoSoundsAreHeardInTheirOrderEachToItsEnd) {
  startSpeler();
  Bytes const eerste = proefGeluid(18'002);
  Bytes tweede = proefGeluid(6002);
  tweede.front() = 0x11;
  naarBestand("een");
  EXPECT_TRUE(maakGeluid({}, eerste)->Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("een"), eerste, {});
  naarBestand("twee");
  EXPECT_TRUE(maakGeluid({}, tweede)->Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("een"), eerste, {});
  verwachtGeheel(gehoord("twee"), tweede, {});
}

TEST_F(GeluidSynchroon, SameSoundCanBePlayedAgainInAnotherForm) {
  startSpeler();
  Bytes const samples = proefGeluid(3000);
  WavSoort const smal{16000, 2, 8};
  auto const geluid = maakGeluid(smal, samples);
  naarBestand("een");
  EXPECT_TRUE(geluid->Play(wxSOUND_SYNC));
  naarBestand("twee");
  EXPECT_TRUE(maakGeluid({}, samples)->Play(wxSOUND_SYNC));
  naarBestand("drie");
  EXPECT_TRUE(geluid->Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("een", smal), samples, smal);
  verwachtGeheel(gehoord("twee"), samples, {});
  verwachtGeheel(gehoord("drie", smal), samples, smal);
}

TEST_F(GeluidSynchroon, SamplesThatSpellTheNameOfTheirChunkAreHeardToo) {
  startSpeler();
  naarBestand("uit");
  Bytes samples = proefGeluid(4000);
  std::string const naam = "data";
  std::copy(naam.begin(), naam.end(), samples.begin());
  EXPECT_TRUE(maakGeluid({}, samples)->Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("uit"), samples, {});
}

TEST_F(GeluidSynchroon, ChunkBeforeTheSamplesIsNotHeard) {
  startSpeler();
  naarBestand("uit");
  Bytes const samples = proefGeluid(4000);
  std::string wav = wavBytes({}, std::string(samples.begin(), samples.end()));
  // Behind "RIFF", its size, "WAVE", and a format chunk of 24 bytes.
  wav.insert(36, std::string("LIST\x04\0\0\0INFO", 12));
  wxSound const geluid(wav.size(), wav.data());
  if (!geluid.IsOk()) {
    GTEST_SKIP() << "this toolkit reads no such file";
  }
  EXPECT_TRUE(geluid.Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("uit"), samples, {});
}

TEST_F(GeluidSynchroon, SoundFromMemoryIsHeardAsOneFromAFile) {
  startSpeler();
  naarBestand("uit");
  Bytes const samples = proefGeluid(4000);
  std::string const wav = wavBytes({}, std::string(samples.begin(), samples.end()));
  EXPECT_TRUE(wxSound(wav.size(), wav.data()).Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("uit"), samples, {});
}

// The toolkit's sound checks little of what its header says.
TEST_F(GeluidSynchroon, FileWithoutSamplesIsOverAtOnceAndNoDeviceIsOpened) {
  startSpeler();
  naarBestand("uit");
  auto const geluid = maakGeluid({}, {});
  EXPECT_TRUE(geluid->Play(wxSOUND_SYNC));
  EXPECT_TRUE(geluid->Play(wxSOUND_ASYNC));
  EXPECT_TRUE(geluid->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  EXPECT_FALSE(wxSound::IsPlaying());
  EXPECT_TRUE(gehoord("uit").empty());
}

TEST_F(GeluidSynchroon, StrangeFormIsRefusedAtOnceWithoutADevice) {
  startSpeler();
  naarBestand("uit");
  for (Vorm const& vorm :
       {Vorm{"Of24Bits", {8000, 1, 24}, 1000}, Vorm{"Of32Bits", {8000, 1, 32}, 1000},
        Vorm{"Of9Channels", {8000, 9, 16}, 1000}, Vorm{"Of257Channels", {8000, 257, 8}, 100},
        Vorm{"Of0Hz", {0, 1, 16}, 1000}, Vorm{"OfMoreHzThanAnInt", {-1, 1, 16}, 1000}}) {
    SCOPED_TRACE(vorm.naam);
    auto const geluid = maakGeluid(vorm.soort, samplesVan(vorm));
    ::testing::internal::CaptureStderr();
    for (unsigned int const hoe : {unsigned{wxSOUND_SYNC}, unsigned{wxSOUND_ASYNC},
                                   unsigned{wxSOUND_ASYNC | wxSOUND_LOOP}}) {
      EXPECT_FALSE(geluid->Play(hoe));
      EXPECT_FALSE(wxSound::IsPlaying());
    }
    // Nothing about devices: they have no part in it.
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(gehoord("uit").empty());
  }
}

TEST_F(GeluidSynchroon, PartOfAFrameAtTheEndIsLeftOut) {
  startSpeler();
  WavSoort const stereo{8000, 2, 16};
  Bytes const heel = proefGeluid(4004);
  for (std::size_t const rest : {1U, 2U, 3U}) {
    Bytes samples = heel;
    samples.resize(heel.size() + rest, 0x77);
    std::string const naam = "uit" + std::to_string(rest);
    naarBestand(naam);
    EXPECT_TRUE(maakGeluid(stereo, samples)->Play(wxSOUND_SYNC));
    verwachtGeheel(gehoord(naam), heel, stereo);
  }
}

TEST_F(GeluidSynchroon, FileThatHoldsLessThanOneFrameIsSilence) {
  startSpeler();
  naarBestand("uit");
  EXPECT_TRUE(maakGeluid({8000, 2, 16}, {1, 2, 3})->Play(wxSOUND_SYNC));
  EXPECT_TRUE(gehoord("uit").empty());
}

TEST_F(GeluidSynchroon, DeviceThatTakesNothingMoreIsNotWaitedFor) {
  startSpeler();
  constexpr int naEenBlokNiets = 6000;
  naarBestand("uit", naEenBlokNiets);
  Bytes const samples = proefGeluid(80'000);
  EXPECT_TRUE(maakGeluid({}, samples)->Play(wxSOUND_SYNC));
  EXPECT_FALSE(isOpen("uit"));
  verwachtAfgebroken(gehoord("uit"), samples, {});
}

TEST_F(GeluidSynchroon, InterruptStillEndsTheProcessWhileAndAfterASoundPlays) {
  static_cast<void>(std::signal(SIGINT, SIG_DFL));
  static_cast<void>(std::signal(SIGTERM, SIG_DFL));
  auto const isGewoon = [](int signaal) {
    struct sigaction stand {};
    return sigaction(signaal, nullptr, &stand) == 0 && stand.sa_handler == SIG_DFL;
  };
  startSpeler();
  naarBestand("een", traag);
  EXPECT_TRUE(maakGeluid({}, proefGeluid(80'000))->Play(wxSOUND_ASYNC));
  ASSERT_TRUE(isOpen("een"));
  EXPECT_TRUE(isGewoon(SIGINT));
  EXPECT_TRUE(isGewoon(SIGTERM));
  naarBestand("twee");
  EXPECT_TRUE(maakGeluid({}, proefGeluid(800))->Play(wxSOUND_SYNC));
  EXPECT_TRUE(isGewoon(SIGINT));
  EXPECT_TRUE(isGewoon(SIGTERM));
}

}  // namespace
