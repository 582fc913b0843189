// The function of the module that plays, called as kestrolin-cli calls it.
#include "opdrachtregel/geluidSpelen.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "tests/steun/bytes.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"

extern "C" char const* kestrolinSpeel(short const* samples, std::size_t aantal, int rate,
                                      int kanalen);

namespace {

SDL_AudioSpec& laatste() {
  static SDL_AudioSpec vorm{};
  return vorm;
}

}  // namespace

// The driver writes bytes of any form: the form shows only here.
extern "C" SDL_AudioDeviceID opgenomenToestel(char const* naam, int opname,
                                              SDL_AudioSpec const* wens, SDL_AudioSpec* gekregen,
                                              int vrijheid) asm("__wrap_SDL_OpenAudioDevice");
extern "C" SDL_AudioDeviceID echtToestel(char const* naam, int opname, SDL_AudioSpec const* wens,
                                         SDL_AudioSpec* gekregen,
                                         int vrijheid) asm("__real_SDL_OpenAudioDevice");

SDL_AudioDeviceID opgenomenToestel(char const* naam, int opname, SDL_AudioSpec const* wens,
                                   SDL_AudioSpec* gekregen, int vrijheid) {
  laatste() = *wens;
  return echtToestel(naam, opname, wens, gekregen, vrijheid);
}

TEST(GeluidSpelen, OpensADeviceOfTheForm) {
  TijdelijkeMap const map;
  OmgevingsWaarde const driver("SDL_AUDIODRIVER", "disk");
  OmgevingsWaarde const bestand("SDL_DISKAUDIOFILE", map.pad("geluid"));
  OmgevingsWaarde const tempo("SDL_DISKAUDIODELAY", "1");
  std::array<short, 4> const samples{0x0102, -2, 3, 0x7FFF};
  EXPECT_EQ(kestrolinSpeel(samples.data(), samples.size(), 32000, 2), nullptr);
  EXPECT_EQ(laatste().freq, 32000);
  EXPECT_EQ(laatste().channels, 2);
  EXPECT_EQ(laatste().format, AUDIO_S16LSB);
  Bytes const gehoord = leesBytes(map.pad("geluid"));
  Bytes const verwacht{0x02, 0x01, 0xFE, 0xFF, 0x03, 0x00, 0xFF, 0x7F};
  auto const begin =
      std::find_if(gehoord.begin(), gehoord.end(), [](auto een) { return een != 0; });
  ASSERT_GE(gehoord.end() - begin, 8);
  EXPECT_EQ(Bytes(begin, begin + 8), verwacht);
}

TEST(GeluidSpelen, TellsWhyItCannot) {
  std::array<short, 1> const samples{1};
  {
    OmgevingsWaarde const driver("SDL_AUDIODRIVER", "geenToestel");
    EXPECT_STREQ(kestrolinSpeel(samples.data(), samples.size(), 8000, 1),
                 "no sound device was found (Audio target 'geenToestel' not available)");
  }
  OmgevingsWaarde const driver("SDL_AUDIODRIVER", "disk");
  OmgevingsWaarde const bestand("SDL_DISKAUDIOFILE", "/weg/geluid");
  EXPECT_NE(kestrolinSpeel(samples.data(), samples.size(), 8000, 1), nullptr);
}
