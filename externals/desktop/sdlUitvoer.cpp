#include "externals/desktop/sdlUitvoer.h"

#include <chrono>
#include <vector>

namespace {

// The device takes samples in blocks of about 32 ms, a power of two as some drivers want it. Longer
// ones would make it late, at its end too, and shorter ones would let a busy machine fall behind.
Uint16 blokSamples(int rate) {
  constexpr int blokkenPerSeconde = 32;
  constexpr Uint16 grootste = 4096;
  Uint16 samples = 1;
  while (samples < grootste && samples < rate / blokkenPerSeconde) {
    samples = static_cast<Uint16>(samples * 2);
  }
  return samples;
}

}  // namespace

SdlUitvoer::Bibliotheek::Bibliotheek(std::string const& naam) {
  // Without this an interrupt from the terminal would go into a queue of events that nobody reads.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, naam.c_str());
  gestart = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
}

SdlUitvoer::Bibliotheek::~Bibliotheek() {
  if (gestart) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }
}

SdlUitvoer::SdlUitvoer(GeluidVorm const& vorm, std::string const& naam) : bibliotheek(naam) {
  if (!bibliotheek.isGestart()) {
    return;
  }
  // On the way here SDL asked one sound system after the other, and keeps what the others said.
  SDL_ClearError();
  // Where it knows that there is no device, opening one would make the driver talk on standard
  // error.
  if (SDL_GetNumAudioDevices(0) == 0) {
    return;
  }
  SDL_AudioSpec wens{};
  wens.freq = vorm.rate;
  wens.format = vorm.soort;
  wens.channels = static_cast<Uint8>(vorm.kanalen);
  wens.samples = blokSamples(vorm.rate);
  // Without a callback: SDL copies the samples into a queue of its own and empties that.
  toestel = SDL_OpenAudioDevice(nullptr, 0, &wens, &spec, 0);
}

std::unique_ptr<SdlUitvoer> SdlUitvoer::open(GeluidVorm const& vorm, std::string const& naam,
                                             std::string& fout) {
  SDL_ClearError();
  std::unique_ptr<SdlUitvoer> uitvoer(new SdlUitvoer(vorm, naam));
  if (uitvoer->toestel == 0) {
    fout = SDL_GetError();
    return nullptr;
  }
  return uitvoer;
}

SdlUitvoer::~SdlUitvoer() {
  if (toestel != 0) {
    SDL_ClearQueuedAudio(toestel);
    SDL_CloseAudioDevice(toestel);
  }
}

// Not const, for what changes is on the other side of SDL.
// NOLINTBEGIN(readability-make-member-function-const)
bool SdlUitvoer::voegToe(void const* samples, std::size_t bytes) {
  return SDL_QueueAudio(toestel, samples, static_cast<Uint32>(bytes)) == 0;
}

bool SdlUitvoer::voegNaklankToe() {
  // A sound server holds some blocks of its own, and throws them away when the device is closed.
  constexpr int blokken = 6;
  std::vector<Uint8> const stilte(spec.size * std::size_t{blokken}, spec.silence);
  return voegToe(stilte.data(), stilte.size());
}

void SdlUitvoer::start() {
  SDL_PauseAudioDevice(toestel, 0);
}
// NOLINTEND(readability-make-member-function-const)

std::size_t SdlUitvoer::wachtend() const {
  return SDL_GetQueuedAudioSize(toestel);
}

void SdlUitvoer::wachtOpEinde(std::function<bool()> const& isGestopt) const {
  using Klok = std::chrono::steady_clock;
  constexpr std::chrono::seconds geduld{3};
  constexpr Uint32 pauze = 5;  // ms
  std::size_t laatste = wachtend();
  Klok::time_point sinds = Klok::now();
  while (laatste > 0 && !isGestopt() && Klok::now() - sinds < geduld) {
    SDL_Delay(pauze);
    std::size_t const nu = wachtend();
    if (nu != laatste) {
      laatste = nu;
      sinds = Klok::now();
    }
  }
}

std::size_t SdlUitvoer::bytesPerSeconde() const {
  constexpr std::size_t bitsPerByte = 8;
  return static_cast<std::size_t>(spec.freq) * spec.channels * SDL_AUDIO_BITSIZE(spec.format) /
         bitsPerByte;
}
