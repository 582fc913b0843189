// Machines on which nothing can be played: what Play says, and what the user is told.
#include <SDL.h>
#include <wx/sound.h>

#include <cstdlib>
#include <string>

#include "tests/externals/desktop/geluidProef.h"

namespace {

class GeluidLoos : public GeluidProef {
 protected:
  // Plays a sound in each way, twice over. Returns what came out on standard error, and how many
  // were played.
  std::string speelAlles() {
    auto const geluid = maakGeluid({}, proefGeluid(2000));
    ::testing::internal::CaptureStderr();
    for (int keer = 0; keer < 2; ++keer) {
      for (unsigned int const hoe : {unsigned{wxSOUND_SYNC}, unsigned{wxSOUND_ASYNC},
                                     unsigned{wxSOUND_ASYNC | wxSOUND_LOOP}}) {
        gespeeld += geluid->Play(hoe) ? 1 : 0;
        EXPECT_FALSE(gespeeld == 0 && wxSound::IsPlaying());
      }
    }
    rust();
    return ::testing::internal::GetCapturedStderr();
  }

  static std::string deRegel() {
    return proefNaam().ToStdString() + ": no sound device was found, so nothing can be heard";
  }

  // One line, with or without the system's reason, nothing in the log and no box.
  void verwachtDeRegel(std::string const& fouten) const {
    std::string const begin = deRegel();
    ASSERT_EQ(fouten.substr(0, begin.size()), begin);
    std::string const rest = fouten.substr(begin.size());
    if (rest != "\n") {
      EXPECT_EQ(rest.substr(0, 2), " (");
      EXPECT_EQ(rest.find('\n'), rest.size() - 1) << rest;
      EXPECT_EQ(rest.rfind(")\n"), rest.size() - 2) << rest;
    }
    EXPECT_TRUE(nietsGelogd(log));
    EXPECT_TRUE(antwoorden.berichten.empty());
  }

  int gespeeld = 0;
};

TEST_F(GeluidLoos, DriverThatDoesNotExistIsToldOnceWithTheReason) {
  startSpeler();
  setenv("SDL_AUDIODRIVER", "geenToestel", 1);
  std::string const fouten = speelAlles();
  EXPECT_EQ(gespeeld, 0);
  verwachtDeRegel(fouten);
  EXPECT_EQ(fouten, deRegel() + " (Audio target 'geenToestel' not available)\n");
}

TEST_F(GeluidLoos, DriverWithoutADeviceIsToldOnce) {
  startSpeler();
  setenv("SDL_AUDIODRIVER", "alsa", 1);
  std::string const fouten = speelAlles();
  if (gespeeld > 0) {
    GTEST_SKIP() << "this machine has a sound device";
  }
  verwachtDeRegel(fouten);
}

TEST_F(GeluidLoos, MachineWithoutADeviceIsToldOnceWithoutAReason) {
  startSpeler();
  unsetenv("SDL_AUDIODRIVER");
  std::string const fouten = speelAlles();
  if (gespeeld > 0) {
    GTEST_SKIP() << "this machine has a sound device";
  }
  verwachtDeRegel(fouten);
  // What each sound system of another desktop had to say is no reason.
  EXPECT_EQ(fouten, deRegel() + "\n");
}

TEST_F(GeluidLoos, DeviceThatAppearsLaterIsHeard) {
  startSpeler();
  setenv("SDL_AUDIODRIVER", "geenToestel", 1);
  Bytes const samples = proefGeluid(2000);
  auto const geluid = maakGeluid({}, samples);
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(geluid->Play(wxSOUND_SYNC));
  ::testing::internal::GetCapturedStderr();
  setenv("SDL_AUDIODRIVER", "disk", 1);
  naarBestand("uit");
  EXPECT_TRUE(geluid->Play(wxSOUND_SYNC));
  verwachtGeheel(gehoord("uit"), samples, {});
}

TEST_F(GeluidLoos, DeviceThatGoesIsToldOnceToo) {
  startSpeler();
  naarBestand("uit");
  auto const geluid = maakGeluid({}, proefGeluid(2000));
  EXPECT_TRUE(geluid->Play(wxSOUND_SYNC));
  setenv("SDL_AUDIODRIVER", "geenToestel", 1);
  std::string const fouten = speelAlles();
  EXPECT_EQ(gespeeld, 0);
  verwachtDeRegel(fouten);
}

TEST_F(GeluidLoos, DeviceThatCannotBeOpenedIsToldWithTheReason) {
  startSpeler();
  naarBestand("nergens/uit");
  std::string const fouten = speelAlles();
  EXPECT_EQ(gespeeld, 0);
  // The driver has lines of its own before ours. SDL 2.26 gives no reason of the system, 2.32 does.
  SDL_version sdl{};
  SDL_GetVersion(&sdl);
  bool const metReden = SDL_VERSIONNUM(sdl.major, sdl.minor, sdl.patch) >= SDL_VERSIONNUM(2, 32, 0);
  std::string const verwacht = deRegel() + " (Couldn't open " + map.pad("nergens/uit") +
                               (metReden ? ": No such file or directory" : "") + ")\n";
  std::size_t const plaats = fouten.find(verwacht);
  ASSERT_NE(plaats, std::string::npos) << fouten;
  EXPECT_EQ(fouten.find(proefNaam().ToStdString(), plaats + 1), std::string::npos) << fouten;
  EXPECT_TRUE(nietsGelogd(log));
}

}  // namespace
