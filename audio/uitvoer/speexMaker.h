// The maker of Speex fragments.
#pragma once

#include <optional>

#include "audio/uitvoer/fragmentMaker.h"
#include "externals/software/extern/speex/speexDesktopEncoder.h"
#include "numeriek/lopendGemiddelde.h"

// Each run has an encoder of its own, so that its first frame knows nothing of a run before. The
// encoder goes with its maker.
class SpeexMaker : public FragmentMaker {
 public:
  SpeexMaker();

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override;
  // `mislukt` where the recording has another frequency than the settings, or cannot be read; the
  // log tells which.
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override;

  // What the recordings of this run came to on average, in whole per cent of their number of
  // samples, rounded down. 0 before the first.
  int geefGemiddelde() const;

 private:
  std::unique_ptr<SpeexDesktopEncoder> encoder;
  std::optional<LopendGemiddelde> gemiddelde;
};
