// The module that kestrolin-cli plays by.
#include "opdrachtregel/geluidSpelen.h"

#include <string>
#include <type_traits>

#include "externals/desktop/sdlUitvoer.h"

extern "C" __attribute__((visibility("default"))) char const* kestrolinSpeel(short const* samples,
                                                                             std::size_t aantal,
                                                                             int rate,
                                                                             int kanalen) {
  static std::string fout;
  std::string reden;
  auto const uitvoer = SdlUitvoer::open({rate, kanalen, AUDIO_S16SYS}, "Kestrolin", reden);
  if (!uitvoer) {
    fout = "no sound device was found" + (reden.empty() ? "" : " (" + reden + ")");
    return fout.c_str();
  }
  if (!uitvoer->voegToe(samples, aantal * sizeof *samples) || !uitvoer->voegNaklankToe()) {
    return "there is not enough memory";
  }
  uitvoer->start();
  uitvoer->wachtOpEinde([] { return false; });
  return nullptr;
}

static_assert(std::is_same_v<decltype(&kestrolinSpeel), GeluidFunctie>);
