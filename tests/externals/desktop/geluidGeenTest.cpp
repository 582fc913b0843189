// The build without SDL: the toolkit's own player stays.
#include <gtest/gtest.h>
#include <wx/sound.h>

#include <memory>
#include <string>
#include <vector>

#include "externals/desktop/geluidSpeler.h"
#include "tests/steun/wavMaker.h"

namespace {

// A player that stands for the toolkit's own.
class EigenSpeler : public wxSoundBackend {
 public:
  EigenSpeler(int& gespeeldBij, bool& levendBij) : gespeeld(gespeeldBij), levend(levendBij) {
    levend = true;
  }
  ~EigenSpeler() override { levend = false; }
  EigenSpeler(EigenSpeler const&) = delete;
  EigenSpeler& operator=(EigenSpeler const&) = delete;
  EigenSpeler(EigenSpeler&&) = delete;
  EigenSpeler& operator=(EigenSpeler&&) = delete;

  wxString GetName() const override { return "eigen"; }
  int GetPriority() const override { return 0; }
  bool IsAvailable() const override { return true; }
  bool HasNativeAsyncPlayback() const override { return true; }
  bool Play(wxSoundData* /*geluid*/, unsigned /*vlaggen*/,
            volatile wxSoundPlaybackStatus* /*stand*/) override {
    ++gespeeld;
    return true;
  }
  void Stop() override {}
  bool IsPlaying() const override { return false; }

 private:
  int& gespeeld;
  bool& levend;
};

class Ingang : public wxSound {
 public:
  static void plaats(std::unique_ptr<wxSoundBackend> speler) { ms_backend = speler.release(); }
  static wxSoundBackend const* speler() { return ms_backend; }
};

TEST(GeluidGeen, PlayerThatTheToolkitHasStaysAndPlays) {
  int gespeeld = 0;
  bool levend = false;
  auto eigen = std::make_unique<EigenSpeler>(gespeeld, levend);
  wxSoundBackend const* const verwacht = eigen.get();
  Ingang::plaats(std::move(eigen));
  plaatsGeluidSpeler();
  EXPECT_EQ(Ingang::speler(), verwacht);
  EXPECT_TRUE(levend);
  std::string const wav = wavBytes({}, std::string(100, '\1'));
  EXPECT_TRUE(wxSound(wav.size(), wav.data()).Play(wxSOUND_SYNC));
  EXPECT_EQ(gespeeld, 1);
  wxSound::UnloadBackend();
  EXPECT_FALSE(levend);
}

TEST(GeluidGeen, ToolkitThatHasNotChosenYetChoosesByItself) {
  ASSERT_EQ(Ingang::speler(), nullptr);
  plaatsGeluidSpeler();
  EXPECT_EQ(Ingang::speler(), nullptr);
}

}  // namespace
