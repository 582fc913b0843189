#include <wx/app.h>
#include <wx/sound.h>
#include <wx/timer.h>

#include <cstring>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>

#include "externals/desktop/geluidSpeler.h"
#include "externals/desktop/sdlUitvoer.h"

namespace {

// The samples alone. This toolkit lets its data begin at the head of the chunk that holds them, of
// 8 bytes: "data" and their size. Played along, it would be a click.
unsigned char const* geefSamples(wxSoundData const& geluid) {
  constexpr char const* naam = "data";
  constexpr std::size_t naamBytes = 4;
  constexpr std::size_t kopBytes = 8;
  bool const metKop = std::memcmp(geluid.m_data, naam, naamBytes) == 0;
  return geluid.m_data + (metKop ? kopBytes : 0);
}

std::optional<GeluidVorm> geefVorm(wxSoundData const& geluid) {
  constexpr unsigned int meesteKanalen = 8;
  constexpr unsigned int smal = 8;
  constexpr unsigned int breed = 16;
  bool const goedeBits = geluid.m_bitsPerSample == smal || geluid.m_bitsPerSample == breed;
  bool const goedeKanalen = geluid.m_channels >= 1 && geluid.m_channels <= meesteKanalen;
  bool const goedeRate =
      geluid.m_samplingRate >= 1 && geluid.m_samplingRate <= std::numeric_limits<int>::max();
  if (!goedeBits || !goedeKanalen || !goedeRate) {
    return std::nullopt;
  }
  return GeluidVorm{
      static_cast<int>(geluid.m_samplingRate), static_cast<int>(geluid.m_channels),
      geluid.m_bitsPerSample == smal ? SDL_AudioFormat{AUDIO_U8} : SDL_AudioFormat{AUDIO_S16LSB}};
}

// The bytes of its whole frames. Part of one at the end would shift whatever comes behind it by a
// channel or half a sample.
std::size_t heleFrames(wxSoundData const& geluid) {
  constexpr std::size_t bitsPerByte = 8;
  std::size_t const frameBytes = geluid.m_bitsPerSample / bitsPerByte * geluid.m_channels;
  return geluid.m_dataBytes / frameBytes * frameBytes;
}

// Once is enough: the user knows it, or will not read it.
void meldGeenUitvoer(std::string const& reden) {
  static bool isGemeld = false;
  if (!isGemeld) {
    isGemeld = true;
    std::cerr << wxTheApp->GetAppDisplayName().utf8_str()
              << ": no sound device was found, so nothing can be heard"
              << (reden.empty() ? "" : " (" + reden + ")") << std::endl;
  }
}

class SdlSpeler : public wxSoundBackend {
 public:
  SdlSpeler() {
    wekker.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { kijkNaar(); });
  }

  wxString GetName() const override { return "SDL"; }
  // The order of the toolkit's own choice, which never comes to this player.
  int GetPriority() const override { return 0; }
  bool IsAvailable() const override { return true; }
  bool HasNativeAsyncPlayback() const override { return true; }

  bool Play(wxSoundData* geluid, unsigned vlaggen, volatile wxSoundPlaybackStatus* stand) override;
  void Stop() override;
  bool IsPlaying() const override { return uitvoer && uitvoer->wachtend() > 0; }

 private:
  struct Loslater {
    void operator()(wxSoundData* geluid) const { geluid->DecRef(); }
  };

  bool vulAan(wxSoundData const& geluid);
  void kijkNaar();

  std::unique_ptr<SdlUitvoer> uitvoer;               // null while nothing plays
  std::unique_ptr<wxSoundData, Loslater> herhaling;  // the sound that starts over at its end
  wxTimer wekker;                                    // runs while an asynchronous sound plays
};

bool SdlSpeler::Play(wxSoundData* geluid, unsigned vlaggen, volatile wxSoundPlaybackStatus* stand) {
  Stop();
  if (geluid->m_dataBytes == 0) {
    return true;
  }
  std::optional<GeluidVorm> const vorm = geefVorm(*geluid);
  if (!vorm) {
    return false;
  }
  if (heleFrames(*geluid) == 0) {
    return true;
  }
  std::string fout;
  uitvoer = SdlUitvoer::open(*vorm, wxTheApp->GetAppDisplayName().utf8_string(), fout);
  if (!uitvoer) {
    meldGeenUitvoer(fout);
    return false;
  }
  bool const eindeloos = (vlaggen & wxSOUND_LOOP) != 0;
  if (!vulAan(*geluid) || (!eindeloos && !uitvoer->voegNaklankToe())) {
    Stop();
    return false;
  }
  uitvoer->start();
  if ((vlaggen & wxSOUND_ASYNC) != 0) {
    constexpr int periode = 100;  // ms
    if (eindeloos) {
      geluid->IncRef();
      herhaling.reset(geluid);
    }
    wekker.Start(periode);
    kijkNaar();
  } else {
    uitvoer->wachtOpEinde([stand] { return stand->m_stopRequested; });
    Stop();
  }
  return true;
}

void SdlSpeler::Stop() {
  wekker.Stop();
  herhaling.reset();
  uitvoer.reset();
}

bool SdlSpeler::vulAan(wxSoundData const& geluid) {
  return uitvoer->voegToe(geefSamples(geluid), heleFrames(geluid));
}

// What an asynchronous sound needs while it plays: a loop its samples in time, and the end of the
// sound the device's end.
void SdlSpeler::kijkNaar() {
  while (herhaling && uitvoer->wachtend() < uitvoer->bytesPerSeconde()) {
    if (!vulAan(*herhaling)) {
      herhaling.reset();
    }
  }
  if (!IsPlaying()) {
    Stop();
  }
}

// The way to the toolkit's player, which only a sound knows.
class Ingang : public wxSound {
 public:
  static void plaats(std::unique_ptr<wxSoundBackend> speler) {
    UnloadBackend();
    ms_backend = speler.release();
  }
};

}  // namespace

void plaatsGeluidSpeler() {
  Ingang::plaats(std::make_unique<SdlSpeler>());
}
