// Sounds that go on behind the program's back, and how they end.
#include "tests/externals/desktop/geluidProef.h"

namespace {

using GeluidAsynchroon = GeluidProef;

// So long that a slow device is busy with it to the end of a test.
Bytes langGeluid() {
  return proefGeluid(160'000);
}

TEST_F(GeluidAsynchroon, PlayReturnsWhileTheSoundGoesOn) {
  startSpeler();
  naarBestand("uit", traag);
  auto const geluid = maakGeluid({}, langGeluid());
  EXPECT_TRUE(geluid->Play(wxSOUND_ASYNC));
  EXPECT_TRUE(wxSound::IsPlaying());
  EXPECT_TRUE(isOpen("uit"));
  EXPECT_LT(gehoord("uit").size(), langGeluid().size());
}

TEST_F(GeluidAsynchroon, SoundOutlivesItsObjectAndEndsByItselfWithTheDeviceClosed) {
  startSpeler();
  naarBestand("uit");
  Bytes const samples = langGeluid();
  maakGeluid({}, samples)->Play(wxSOUND_ASYNC);
  draaiTot([this] { return !isOpen("uit"); });
  EXPECT_FALSE(wxSound::IsPlaying());
  verwachtGeheel(gehoord("uit"), samples, {});
}

TEST_F(GeluidAsynchroon, NarrowStereoSoundIsHeardToItsEndToo) {
  startSpeler();
  naarBestand("uit");
  WavSoort const soort{22050, 2, 8};
  Bytes const samples = langGeluid();
  maakGeluid(soort, samples)->Play(wxSOUND_ASYNC);
  draaiTot([this] { return !isOpen("uit"); });
  verwachtGeheel(gehoord("uit", soort), samples, soort);
}

TEST_F(GeluidAsynchroon, NewSoundEndsTheOneBefore) {
  startSpeler();
  Bytes const eerste = langGeluid();
  Bytes const tweede = proefGeluid(8002);
  naarBestand("een", traag);
  EXPECT_TRUE(maakGeluid({}, eerste)->Play(wxSOUND_ASYNC));
  naarBestand("twee");
  EXPECT_TRUE(maakGeluid({}, tweede)->Play(wxSOUND_ASYNC));
  EXPECT_FALSE(isOpen("een"));
  EXPECT_TRUE(isOpen("twee"));
  draaiTot([this] { return !isOpen("twee"); });
  verwachtAfgebroken(gehoord("een"), eerste, {});
  verwachtGeheel(gehoord("twee"), tweede, {});
}

TEST_F(GeluidAsynchroon, SoundThatIsWaitedForEndsTheOneBefore) {
  startSpeler();
  Bytes const eerste = langGeluid();
  Bytes const tweede = proefGeluid(8002);
  naarBestand("een", traag);
  EXPECT_TRUE(maakGeluid({}, eerste)->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  naarBestand("twee");
  EXPECT_TRUE(maakGeluid({}, tweede)->Play(wxSOUND_SYNC));
  EXPECT_FALSE(isOpen("een"));
  EXPECT_FALSE(wxSound::IsPlaying());
  verwachtAfgebroken(gehoord("een"), eerste, {});
  verwachtGeheel(gehoord("twee"), tweede, {});
}

TEST_F(GeluidAsynchroon, EvenASoundThatCannotBePlayedEndsTheOneBefore) {
  startSpeler();
  naarBestand("een", traag);
  EXPECT_TRUE(maakGeluid({}, langGeluid())->Play(wxSOUND_ASYNC));
  EXPECT_FALSE(maakGeluid({8000, 1, 24}, proefGeluid(300))->Play(wxSOUND_ASYNC));
  EXPECT_FALSE(isOpen("een"));
  EXPECT_FALSE(wxSound::IsPlaying());
}

TEST_F(GeluidAsynchroon, StopEndsTheSoundAndClosesTheDevice) {
  startSpeler();
  naarBestand("uit", traag);
  EXPECT_TRUE(maakGeluid({}, langGeluid())->Play(wxSOUND_ASYNC));
  ASSERT_TRUE(isOpen("uit"));
  wxSound::Stop();
  EXPECT_FALSE(wxSound::IsPlaying());
  EXPECT_FALSE(isOpen("uit"));
  verwachtAfgebroken(gehoord("uit"), langGeluid(), {});
  // Nothing is left to stop.
  wxSound::Stop();
  EXPECT_FALSE(wxSound::IsPlaying());
}

TEST_F(GeluidAsynchroon, SoundCanBeHeardAgainAfterAStop) {
  startSpeler();
  naarBestand("een", traag);
  EXPECT_TRUE(maakGeluid({}, langGeluid())->Play(wxSOUND_ASYNC));
  wxSound::Stop();
  naarBestand("twee");
  Bytes const samples = proefGeluid(6002);
  EXPECT_TRUE(maakGeluid({}, samples)->Play(wxSOUND_ASYNC));
  draaiTot([this] { return !isOpen("twee"); });
  verwachtGeheel(gehoord("twee"), samples, {});
}

TEST_F(GeluidAsynchroon, LoopRepeatsWithoutAGapAfterItsObjectDiedUntilStop) {
  startSpeler();
  // A third of the pace of a real device: the event loop keeps up with that on a busy machine too.
  constexpr int rustig = 100;
  naarBestand("uit", rustig);
  Bytes const samples = proefGeluid(3554);
  EXPECT_TRUE(maakGeluid({}, samples)->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  // More than the device was given at the start.
  std::size_t const genoeg = samples.size() * 8;
  draaiTot([this, genoeg] { return gehoord("uit").size() >= genoeg; });
  EXPECT_TRUE(wxSound::IsPlaying());
  EXPECT_TRUE(isOpen("uit"));
  Bytes const klank = gehoord("uit");
  for (std::size_t plaats = 0; plaats < klank.size(); ++plaats) {
    ASSERT_EQ(klank[plaats], samples[plaats % samples.size()]) << "at byte " << plaats;
  }
  wxSound::Stop();
  EXPECT_FALSE(wxSound::IsPlaying());
  EXPECT_FALSE(isOpen("uit"));
}

TEST_F(GeluidAsynchroon, AfterALoopTheNextSoundIsHeardAloneAndOnce) {
  startSpeler();
  naarBestand("een", traag);
  EXPECT_TRUE(maakGeluid({}, langGeluid())->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  naarBestand("twee");
  Bytes const samples = proefGeluid(6002);
  EXPECT_TRUE(maakGeluid({}, samples)->Play(wxSOUND_ASYNC));
  draaiTot([this] { return !isOpen("twee"); });
  verwachtGeheel(gehoord("twee"), samples, {});
}

TEST_F(GeluidAsynchroon, LoopOfPartOfAFrameAddsNothingBetweenItsTurns) {
  startSpeler();
  naarBestand("uit");
  WavSoort const stereo{8000, 2, 16};
  Bytes const heel = proefGeluid(4004);
  Bytes samples = heel;
  samples.resize(heel.size() + 3, 0x77);
  EXPECT_TRUE(maakGeluid(stereo, samples)->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  // What the device is given at the start is more than this.
  std::size_t const genoeg = heel.size() * 5;
  draaiTot([this, genoeg] { return gehoord("uit").size() >= genoeg; });
  wxSound::Stop();
  Bytes const klank = gehoord("uit");
  for (std::size_t plaats = 0; plaats < genoeg; ++plaats) {
    ASSERT_EQ(klank[plaats], heel[plaats % heel.size()]) << "at byte " << plaats;
  }
}

TEST_F(GeluidAsynchroon, LoopOfLessThanAFrameIsOverAtOnce) {
  startSpeler();
  naarBestand("uit");
  EXPECT_TRUE(maakGeluid({8000, 2, 16}, {0x77, 0x77, 0x77})->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  EXPECT_FALSE(wxSound::IsPlaying());
}

TEST_F(GeluidAsynchroon, EndOfTheProgramEndsTheSound) {
  startSpeler();
  naarBestand("uit", traag);
  EXPECT_TRUE(maakGeluid({}, langGeluid())->Play(wxSOUND_ASYNC | wxSOUND_LOOP));
  ASSERT_TRUE(isOpen("uit"));
  stop();
  EXPECT_FALSE(isOpen("uit"));
  verwachtAfgebroken(gehoord("uit"), langGeluid(), {});
}

}  // namespace
