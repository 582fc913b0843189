// The fixture of the tests that play the loaded files: what is heard of them, and what stands in
// bold meanwhile.
#pragma once

#include <wx/button.h>

#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/speelProef.h"

using Paden = std::vector<wxString>;
using Lengten = std::vector<unsigned int>;
using Vet = std::vector<Rijen>;

class SpeelBronProef : public SpeelProef {
 protected:
  void SetUp() override {
    begin();
    neemOp();
  }

  // The same as `wav`, told apart from others by its number of samples.
  wxString klank(std::string const& naam, std::size_t aantal) {
    return wav(naam, proefSamples(aantal));
  }

  // Loads these, all of which the tool takes, and plays them.
  void speel(Paden const& paden) {
    ASSERT_EQ(laad(paden).size(), paden.size());
    log().clear();
    klik(ID_SPEEL_BRON);
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_EQ(vetteRijen(), Rijen{});
  }

  // The number of samples of each sound.
  Lengten lengten() const {
    Lengten alle;
    for (Gehoord const& een : gehoord) {
      alle.push_back(een.geluid.samples);
    }
    return alle;
  }
  // The rows in bold during each sound.
  Vet vet() const {
    Vet alle;
    for (Gehoord const& een : gehoord) {
      alle.push_back(een.vet);
    }
    return alle;
  }
};
