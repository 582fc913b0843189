// Every encoder of the Speex library that a run takes is given back: by a run that reached its end
// at once, by a failed one with the window. The library's calls are counted on their way.
#include <speex/speex.h>
#include <wx/choice.h>

#include <algorithm>

#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

std::vector<void*> gemaakt;
std::vector<void*> vernietigd;

}  // namespace

// The linker sends each call here, and the call of the library's own function to that.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
extern "C" {
void* __real_speex_encoder_init(SpeexMode const* modus);
void __real_speex_encoder_destroy(void* toestand);
void* __wrap_speex_encoder_init(SpeexMode const* modus);
void __wrap_speex_encoder_destroy(void* toestand);

void* __wrap_speex_encoder_init(SpeexMode const* modus) {
  gemaakt.push_back(__real_speex_encoder_init(modus));
  return gemaakt.back();
}

void __wrap_speex_encoder_destroy(void* toestand) {
  vernietigd.push_back(toestand);
  __real_speex_encoder_destroy(toestand);
}
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)

namespace {

class SpeexHandvatProef : public WerkProef {
 protected:
  void SetUp() override {
    gemaakt.clear();
    vernietigd.clear();
    beginSpeex();
    laad({wav("bel.wav", proefSamples(160)), wav("zoem.wav", proefSamples(160))});
    ASSERT_TRUE(gemaakt.empty());
  }
  void codeerVerkeerd() {
    kies(keuze(ID_FORMAAT), 1);
    klik(ID_CODEER);
    kies(keuze(ID_FORMAAT), 0);
  }
};

TEST_F(SpeexHandvatProef, AGoodRunOfTwoFilesTakesOneEncoderAndGivesItBack) {
  antwoorden.opBericht(wxID_OK, [] { EXPECT_TRUE(vernietigd.empty()); });
  klik(ID_CODEER);
  EXPECT_EQ(gemaakt.size(), 1U);
  EXPECT_EQ(vernietigd, gemaakt);
  stop();
  EXPECT_EQ(vernietigd, gemaakt);
}

TEST_F(SpeexHandvatProef, TheEncodersOfFailedRunsStayUntilTheWindowsEndWhateverRunsAfterThem) {
  codeerVerkeerd();
  codeerVerkeerd();
  ASSERT_EQ(gemaakt.size(), 2U);
  EXPECT_TRUE(vernietigd.empty());
  codeer();
  ASSERT_EQ(gemaakt.size(), 3U);
  EXPECT_EQ(vernietigd, std::vector<void*>{gemaakt[2]});
  codeerVerkeerd();
  EXPECT_EQ(gemaakt.size(), 4U);
  EXPECT_EQ(vernietigd.size(), 1U);
  stop();
  ASSERT_EQ(vernietigd.size(), 4U);
  EXPECT_TRUE(
      std::is_permutation(vernietigd.begin(), vernietigd.end(), gemaakt.begin(), gemaakt.end()));
}

}  // namespace
