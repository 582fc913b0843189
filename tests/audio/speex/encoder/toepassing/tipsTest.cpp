// The tooltips of the main window: their texts, in each of the languages.
#include <wx/radiobox.h>
#include <wx/tooltip.h>

#include <utility>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"

namespace {

// What has a tip, in the order of its making, and the tip.
using Tips = std::vector<std::pair<std::string, std::string>>;

Tips const engels{
    {"wxButton 5004", "Embeds the loaded WAV files whole, without an encoder."},
    {"wxTextCtrl 13",
     "What you type here has no effect: the bit rate stays as the settings file has it. Enter "
     "presses Encode."},
    {"wxRadioBox 18 row 1",
     "Keeps only the low byte of each sample. Bring recordings down to 8 bits first, and choose 16 "
     "Bit DAC."},
    {"wxRadioBox 19 row 2",
     "Not available. Choosing it gives up the last result and leaves the language as it was."},
    {"wxTextCtrl 14",
     "The name of the C++ class. For C++, Encode stays disabled until there is a name."},
    {"wxButton 3",
     "Usable when files are loaded, no result fits the options, and, for C++, the class has a "
     "name."},
    {"wxButton 2",
     "Save first: playing an ADPCM or PCM text may need more memory than there is, and then the "
     "program ends."}};

void voegTipsToe(wxWindow const& control, Tips& tips) {
  std::string const naam = wxString(control.GetClassInfo()->GetClassName()).utf8_string() + " " +
                           std::to_string(control.GetId());
  if (!control.GetToolTipText().empty()) {
    tips.emplace_back(naam, control.GetToolTipText().utf8_string());
  }
  auto const* const vak = dynamic_cast<wxRadioBox const*>(&control);
  for (unsigned int rij = 0; vak != nullptr && rij < vak->GetCount(); ++rij) {
    if (wxToolTip const* const tip = vak->GetItemToolTip(rij)) {
      tips.emplace_back(naam + " row " + std::to_string(rij), tip->GetTip().utf8_string());
    }
  }
}

class TipsProef : public ElkeTaalProef {
 protected:
  // Every tip that the window has.
  Tips tips() const {
    Tips alle;
    std::vector<wxWindow const*> vensters{venster};
    for (std::size_t i = 0; i < vensters.size(); ++i) {
      voegTipsToe(*vensters[i], alle);
      for (wxWindow const* const kind : vensters[i]->GetChildren()) {
        vensters.push_back(kind);
      }
    }
    return alle;
  }
};
class TipsEngels : public TipsProef {};

TEST_P(TipsEngels, StandOnWhatSurprisesAndNowhereElse) {
  beginInTaal(EncoderSpeex);
  EXPECT_EQ(tips(), engels);
}

TEST_P(TipsProef, SpeakTheLanguage) {
  beginInTaal(EncoderSpeex);
  Tips verwacht = engels;
  for (auto& tip : verwacht) {
    tip.second = anders(tip.second);
  }
  EXPECT_EQ(tips(), verwacht);
}

INSTANTIATE_TEST_SUITE_P(, TipsEngels, ::testing::Values(Taal{"en", wxLANGUAGE_ENGLISH}), taalCode);
INSTANTIATE_TEST_SUITE_P(Talen, TipsProef, ::testing::ValuesIn(talen()), taalCode);

}  // namespace
