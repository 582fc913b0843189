// The window as it stands after a start: every control with its kind, its id, its label, its style
// and its state.
#include <wx/app.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/image.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/statusbr.h>
#include <wx/stockitem.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <algorithm>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/vensterProef.h"

namespace {

struct Control {
  char const* soort;
  int id;
  wxString label;
  long stijl;
  bool aan;
};

// What the toolkit adds to a style by itself: the scroll bars and keys of a tree.
constexpr long eigenStijlen = wxVSCROLL | wxHSCROLL | wxWANTS_CHARS;
constexpr long boomStijl = wxTR_HAS_BUTTONS | wxTR_NO_LINES | wxTR_LINES_AT_ROOT |
                           wxTR_FULL_ROW_HIGHLIGHT | wxSUNKEN_BORDER;

// The panel's controls in the order in which they are made. wxID_ANY: a number of the toolkit's
// own.
std::vector<Control> verwachteControls() {
  auto const voorraad = [](int id) { return wxGetStockLabel(id); };
  return {
      {"wxStaticBox", wxID_ANY, "C++ / Python  options", 0, true},
      {"wxStaticBox", wxID_ANY, "Code generation", 0, true},
      {"wxStaticBox", wxID_ANY, "Speex options", 0, true},
      {"wxButton", wxID_OPEN, voorraad(wxID_OPEN), 0, true},
      {"wxTreeCtrl", wxID_ANY, "", boomStijl, false},
      {"wxButton", 1, "Play WAV Files", 0, false},
      {"wxButton", wxID_SAVEAS, voorraad(wxID_SAVEAS), 0, false},
      {"wxChoice", 3, "", 0, true},
      {"wxChoice", 11, "", 0, true},
      {"wxStaticText", wxID_ANY, "Quality:", 0, true},
      {"wxSpinCtrl", 5, "", wxSP_ARROW_KEYS, true},
      {"wxStaticText", wxID_ANY, "Complexity:", 0, true},
      {"wxSpinCtrl", 6, "", wxSP_ARROW_KEYS, true},
      {"wxCheckBox", 7, "Voice Activated \nDetection", wxCHK_2STATE, true},
      {"wxCheckBox", 8, "Adaptive Gain Control", wxCHK_2STATE, true},
      {"wxCheckBox", 4, "Denoise input", wxCHK_2STATE, true},
      {"wxCheckBox", 12, "Perpetual\nEnhancement", wxCHK_2STATE, true},
      {"wxStaticText", wxID_ANY, "(Maximum/Average)\nBit rate:", 0, true},
      {"wxTextCtrl", 13, "", 0, true},
      {"wxRadioBox", 18, "Encoder type", wxRA_SPECIFY_ROWS, true},
      {"wxRadioBox", 19, "Implementation Language", wxRA_SPECIFY_ROWS, true},
      {"wxStaticText", wxID_ANY, "Class :", 0, true},
      {"wxTextCtrl", 14, "", 0, true},
      {"wxCheckBox", 16, "Include header in array", wxCHK_2STATE, true},
      {"wxChoice", 17, "", 0, true},
      {"wxButton", 3, "Encode", 0, false},
      {"wxButton", wxID_SAVE, voorraad(wxID_SAVE), 0, false},
      {"wxButton", 2, "Play Encoded", 0, false},
      {"wxTextCtrl", 20, "", wxTE_MULTILINE | wxTE_READONLY, true},
      {"wxButton", wxID_EXIT, voorraad(wxID_EXIT), 0, true},
  };
}

class StartProef : public RustProef {
 protected:
  wxPanel* paneel() const {
    return dynamic_cast<wxPanel*>(venster->GetChildren().GetFirst()->GetData());
  }
};

TEST_F(StartProef, FirstStartShowsItsOwnTitleAndLogsNothing) {
  EXPECT_EQ(venster->GetTitle(), "Kestrolin Encoder for embedded applications");
  EXPECT_TRUE(venster->IsShown());
  EXPECT_EQ(venster->GetClientSize(), wxSize(800, 600));
  EXPECT_EQ(status(), "No audio file loaded");
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(StartProef, FrameHasTheDefaultStyleNoParentAndTheSystemsBackground) {
  EXPECT_EQ(venster->GetWindowStyleFlag(), wxDEFAULT_FRAME_STYLE);
  EXPECT_EQ(venster->GetWindowStyleFlag(), 541072960);
  EXPECT_EQ(venster->GetParent(), nullptr);
  EXPECT_EQ(venster->GetBackgroundStyle(), wxBG_STYLE_SYSTEM);
  EXPECT_EQ(wxTheApp->GetTopWindow(), venster);
}

TEST_F(StartProef, PanelHoldsEveryControlInTheOrderOfItsMaking) {
  ASSERT_NE(paneel(), nullptr);
  EXPECT_EQ(paneel()->GetWindowStyleFlag(), wxTAB_TRAVERSAL | wxNO_BORDER);
  EXPECT_EQ(paneel()->GetWindowStyleFlag(), 2621440);
  std::vector<Control> const verwacht = verwachteControls();
  ASSERT_EQ(paneel()->GetChildren().size(), verwacht.size());
  auto control = verwacht.begin();
  for (wxWindow const* kind : paneel()->GetChildren()) {
    SCOPED_TRACE(std::string(control->soort) + " " + control->label.ToStdString());
    EXPECT_EQ(wxString(kind->GetClassInfo()->GetClassName()), control->soort);
    if (control->id == wxID_ANY) {
      EXPECT_LT(kind->GetId(), 0);
    } else {
      EXPECT_EQ(kind->GetId(), control->id);
    }
    EXPECT_EQ(kind->GetLabel(), control->label);
    EXPECT_EQ(kind->GetWindowStyleFlag() & ~eigenStijlen, control->stijl);
    EXPECT_EQ(kind->IsEnabled(), control->aan);
    EXPECT_TRUE(kind->IsShown());
    ++control;
  }
}

TEST_F(StartProef, StylesHaveTheirNumbers) {
  EXPECT_EQ(boomStijl, 134225933);
  EXPECT_EQ(wxTE_MULTILINE | wxTE_READONLY, 48);
}

TEST_F(StartProef, FrameHoldsThePanelAndTheStatusBarAlone) {
  ASSERT_EQ(venster->GetChildren().size(), 2U);
  EXPECT_EQ(venster->GetChildren().GetFirst()->GetData(), paneel());
  EXPECT_EQ(venster->GetChildren().GetLast()->GetData(), venster->GetStatusBar());
}

TEST_F(StartProef, StatusBarHasOneFieldOverTheWholeWidth) {
  wxStatusBar const* const balk = venster->GetStatusBar();
  ASSERT_NE(balk, nullptr);
  EXPECT_EQ(balk->GetId(), 0);
  EXPECT_EQ(balk->GetFieldsCount(), 1);
  EXPECT_EQ(balk->GetStatusWidth(0), -1);
  EXPECT_EQ(balk->GetStatusText(0), "No audio file loaded");
  EXPECT_FALSE(balk->HasFlag(wxSTB_SIZEGRIP));
  EXPECT_FALSE(balk->HasFlag(wxSTB_SHOW_TIPS));
}

TEST_F(StartProef, EncodeIsTheDefaultButton) {
  EXPECT_EQ(venster->GetDefaultItem(), knop(ID_CODEER));
}

TEST_F(StartProef, ChoicesHoldTheirRowsAndStandOnTheDefaults) {
  EXPECT_EQ(keuze(ID_FORMAAT)->GetStrings(),
            (wxArrayString{
                3, std::array<wxString, 3>{"Narrowband", "Wideband", "Ultra Wideband"}.data()}));
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), 0);
  EXPECT_EQ(
      keuze(ID_BITRATE_TYPE)->GetStrings(),
      (wxArrayString{
          3,
          std::array<wxString, 3>{"Fixed Bitrate", "Variable Bitrate", "Average Bitrate"}.data()}));
  EXPECT_EQ(keuze(ID_BITRATE_TYPE)->GetSelection(), 0);
  EXPECT_EQ(
      keuze(ID_DAC_TYPE)->GetStrings(),
      (wxArrayString{
          4,
          std::array<wxString, 4>{"8 Bit DAC", "10 Bit DAC", "12 Bit DAC", "16 Bit DAC"}.data()}));
  EXPECT_EQ(keuze(ID_DAC_TYPE)->GetSelection(), 3);
}

TEST_F(StartProef, RadioBoxesHoldTheirRowsAndStandOnTheDefaults) {
  wxRadioBox const* const encoder = radio(ID_ENCODER_TYPE);
  ASSERT_EQ(encoder->GetCount(), 3U);
  EXPECT_EQ(encoder->GetString(0), "Speex");
  EXPECT_EQ(encoder->GetString(1), "ADPCM");
  EXPECT_EQ(encoder->GetString(2), "PCM");
  EXPECT_EQ(encoder->GetSelection(), 0);
  wxRadioBox const* const taal = radio(ID_LANG_IMPL);
  ASSERT_EQ(taal->GetCount(), 3U);
  // The blank behind the C is part of the label.
  EXPECT_EQ(taal->GetString(0), "C ");
  EXPECT_EQ(taal->GetString(1), "C++");
  EXPECT_EQ(taal->GetString(2), "Python");
  EXPECT_EQ(taal->GetSelection(), 1);
}

TEST_F(StartProef, SpinControlsGoFrom0To10AndStandOnTheDefaults) {
  for (int const id : {ID_QUALITY, ID_COMPLEXITY}) {
    EXPECT_EQ(spin(id)->GetMin(), 0);
    EXPECT_EQ(spin(id)->GetMax(), 10);
    EXPECT_EQ(spin(id)->GetIncrement(), 1);
  }
  EXPECT_EQ(spin(ID_QUALITY)->GetValue(), 8);
  EXPECT_EQ(spin(ID_COMPLEXITY)->GetValue(), 3);
}

TEST_F(StartProef, BoxesAreAllTicked) {
  for (int const id : {ID_VAD, ID_AGC, ID_DENOISE, ID_PERPENH, ID_INCL_HEADER}) {
    EXPECT_TRUE(vakje(id)->GetValue()) << id;
  }
}

TEST_F(StartProef, PicturesInXpmCanBeRead) {
  EXPECT_NE(wxImage::FindHandler(wxBITMAP_TYPE_XPM), nullptr);
}

TEST_F(StartProef, FieldsHoldTheBitRateAndNoClass) {
  EXPECT_EQ(veld(ID_MAX_RATE)->GetValue(), "5000");
  EXPECT_FALSE(veld(ID_MAX_RATE)->HasFlag(wxTE_PROCESS_ENTER));
  EXPECT_EQ(veld(ID_KLASSE)->GetValue(), "");
  EXPECT_EQ(tekst(), "");
  EXPECT_FALSE(veld(ID_TEKST)->IsEditable());
  // Rows of bytes stand in columns.
  EXPECT_TRUE(veld(ID_TEKST)->GetFont().IsFixedWidth());
  EXPECT_EQ(veld(ID_TEKST)->GetFont().GetPointSize(), veld(ID_KLASSE)->GetFont().GetPointSize());
}

TEST_F(StartProef, TreeIsEmpty) {
  EXPECT_EQ(boom()->GetCount(), 0U);
}

TEST_F(StartProef, DacWidthsStandInTheOrderOfTheirChoice) {
  EXPECT_EQ(HoofdVenster::DacAantalBits, (std::array<long long, 4>{8, 10, 12, 16}));
}

}  // namespace
