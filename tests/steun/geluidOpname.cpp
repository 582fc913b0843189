#include "tests/steun/geluidOpname.h"

#include <wx/sound.h>

#include <functional>
#include <memory>
#include <tuple>
#include <utility>

namespace {

std::vector<OpgenomenGeluid>& geluiden() {
  static std::vector<OpgenomenGeluid> opgenomen;
  return opgenomen;
}

std::function<void(OpgenomenGeluid const&, GeluidBytes const&)>& toehoorder() {
  static std::function<void(OpgenomenGeluid const&, GeluidBytes const&)> functie;
  return functie;
}

bool& speelt() {
  static bool ja = true;
  return ja;
}

// False again where the toolkit has ended since, and has taken its players with it.
bool isGeplaatst = false;

// The toolkit's data begins at the head of the chunk of samples, 8 bytes before them.
GeluidBytes bytesVan(wxSoundData const& geluid) {
  constexpr std::size_t kop = 8;
  return {geluid.m_data + kop, geluid.m_data + kop + geluid.m_dataBytes};
}

class Recorder : public wxSoundBackend {
 public:
  Recorder() { isGeplaatst = true; }
  ~Recorder() override { isGeplaatst = false; }
  Recorder(Recorder const&) = delete;
  Recorder& operator=(Recorder const&) = delete;
  Recorder(Recorder&&) = delete;
  Recorder& operator=(Recorder&&) = delete;

  wxString GetName() const override { return "recorder"; }
  int GetPriority() const override { return 0; }
  bool IsAvailable() const override { return true; }
  bool HasNativeAsyncPlayback() const override { return true; }
  bool Play(wxSoundData* geluid, unsigned vlaggen,
            volatile wxSoundPlaybackStatus* /*stand*/) override {
    geluiden().push_back({geluid->m_channels, geluid->m_samplingRate, geluid->m_bitsPerSample,
                          geluid->m_samples, geluid->m_dataBytes, vlaggen});
    if (toehoorder()) {
      toehoorder()(OpgenomenGeluid(geluiden().back()), bytesVan(*geluid));
    }
    return speelt();
  }
  void Stop() override {}
  bool IsPlaying() const override { return false; }
};

// The way to the toolkit's player, which only a sound knows.
class Speler : public wxSound {
 public:
  // The toolkit owns it, and deletes it at its end.
  static void vervang(std::unique_ptr<wxSoundBackend> nieuw) {
    UnloadBackend();
    ms_backend = nieuw.release();
  }
};

}  // namespace

bool OpgenomenGeluid::operator==(OpgenomenGeluid const& ander) const {
  auto const velden = [](OpgenomenGeluid const& geluid) {
    return std::tie(geluid.kanalen, geluid.rate, geluid.bits, geluid.samples, geluid.bytes,
                    geluid.vlaggen);
  };
  return velden(*this) == velden(ander);
}

void bijElkGeluid(
    std::function<void(OpgenomenGeluid const& geluid, GeluidBytes const& bytes)> wat) {
  toehoorder() = std::move(wat);
}

void zegDatHetNietSpeelt() {
  speelt() = false;
}

std::vector<OpgenomenGeluid> neemGeluiden() {
  if (!isGeplaatst) {
    Speler::vervang(std::make_unique<Recorder>());
  }
  return std::exchange(geluiden(), {});
}
