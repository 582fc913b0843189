// The tree of sizers below the window, element by element.
#include <wx/button.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/vensterProef.h"

namespace {

// As plain numbers the toolkit's layout flags join.
constexpr int rek = wxEXPAND;
constexpr int middenV = wxALIGN_CENTER_VERTICAL;
constexpr int middenH = wxALIGN_CENTER_HORIZONTAL;
constexpr int rondom = wxALL;
constexpr int boven = wxTOP;
constexpr int onder = wxBOTTOM;
constexpr int links = wxLEFT;
constexpr int rechts = wxRIGHT;

// One element: how deep it lies, what it is, and how it lies in its sizer.
struct Element {
  int diepte;
  std::string naam;
  int proportie;
  int vlaggen;
  int rand;

  bool operator==(Element const& ander) const {
    return diepte == ander.diepte && naam == ander.naam && proportie == ander.proportie &&
           vlaggen == ander.vlaggen && rand == ander.rand;
  }
};

void PrintTo(Element const& element, std::ostream* uit) {
  *uit << element.diepte << " " << element.naam << " " << element.proportie << " 0x" << std::hex
       << element.vlaggen << std::dec << " " << element.rand;
}

std::string sizerNaam(wxSizer* sizer) {
  if (auto* const vak = dynamic_cast<wxStaticBoxSizer*>(sizer)) {
    return (vak->GetOrientation() == wxHORIZONTAL ? "box row " : "box column ") +
           vak->GetStaticBox()->GetLabel().ToStdString();
  }
  if (auto* const doos = dynamic_cast<wxBoxSizer*>(sizer)) {
    return doos->GetOrientation() == wxHORIZONTAL ? "row" : "column";
  }
  if (auto* const rooster = dynamic_cast<wxGridSizer*>(sizer)) {
    return wxString::Format("grid %dx%d gaps %d %d", rooster->GetRows(), rooster->GetCols(),
                            rooster->GetVGap(), rooster->GetHGap())
        .ToStdString();
  }
  return "another sizer";
}

// A control by its kind and what tells it apart from others of that kind.
std::string vensterNaam(wxWindow const& venster) {
  wxString const soort = wxString(venster.GetClassInfo()->GetClassName()).Mid(2);
  wxString const kenmerk = venster.GetId() < 0
                               ? venster.GetLabel()
                               : wxString::Format("%d", static_cast<int>(venster.GetId()));
  return (kenmerk.empty() ? soort : soort + " " + kenmerk).ToStdString();
}

// As deep as the sizers lie in each other.
// NOLINTNEXTLINE(misc-no-recursion)
void loopAf(wxSizer const& sizer, int diepte, std::vector<Element>& elementen) {
  for (wxSizerItem const* item : sizer.GetChildren()) {
    elementen.push_back(
        {diepte, item->IsSizer() ? sizerNaam(item->GetSizer()) : vensterNaam(*item->GetWindow()),
         item->GetProportion(), item->GetFlag(), item->GetBorder()});
    if (item->IsSizer()) {
      loopAf(*item->GetSizer(), diepte + 1, elementen);
    }
  }
}

std::vector<Element> elementenVan(wxWindow const& venster) {
  std::vector<Element> elementen{{0, sizerNaam(venster.GetSizer()), 0, 0, 0}};
  loopAf(*venster.GetSizer(), 1, elementen);
  return elementen;
}

std::vector<Element> const vensterIndeling{{0, "column", 0, 0, 0}, {1, "Panel", 1, rek, 0}};

std::vector<Element> const paneelIndeling{
    {0, "column", 0, 0, 0},
    {1, "row", 1, rek, 0},
    {2, "column", 2, rek, 0},
    {3, "row", 2, rek, 0},

    {4, "column", 1, rek, 0},
    {5, "Button 5000", 0, rek | rondom, 5},
    {5, "TreeCtrl", 3, rek, 0},
    {5, "column", 1, rek, 0},
    {6, "Button 1", 0, rek | middenV | middenH | rondom, 5},
    {6, "Button 5004", 0, rek | links | rechts | onder, 5},

    {4, "box row Speex options", 0, rek, 0},
    {5, "grid 6x2 gaps 0 0", 0, rek | boven, 5},
    {6, "Choice 3", 0, 0, 5},
    {6, "Choice 11", 0, 0, 5},
    {6, "StaticText Quality:", 0, 0, 0},
    {6, "SpinCtrl 5", 0, 0, 0},
    {6, "StaticText Complexity:", 0, 0, 0},
    {6, "SpinCtrl 6", 0, 0, 0},
    {6, "CheckBox 7", 0, 0, 0},
    {6, "CheckBox 8", 0, 0, 0},
    {6, "CheckBox 4", 0, middenV, 0},
    {6, "CheckBox 12", 0, middenV, 0},
    {6, "StaticText (Maximum/Average)\nBit rate:", 0, middenV, 0},
    {6, "TextCtrl 13", 0, middenV, 0},

    {4, "box row Code generation", 1, rek, 0},
    {5, "column", 1, rek, 0},
    {6, "row", 1, rek, 0},
    {7, "RadioBox 18", 1, rek | middenV | boven | onder, 5},
    {7, "RadioBox 19", 1, rek | middenV | boven | onder, 5},
    {6, "box column C++ / Python  options", 0, rek, 0},
    {7, "row", 0, rek, 0},
    {8, "StaticText Class :", 1, middenV | rechts, 5},
    {8, "TextCtrl 14", 2, middenV, 0},
    {6, "CheckBox 16", 0, middenV, 0},
    {6, "Choice 17", 0, rek | middenV | rondom, 5},
    {6, "column", 1, rek, 0},
    {7, "Button 3", 0, rek | middenH | rondom, 5},
    {7, "Button 5003", 0, rek | links | rechts | onder, 5},
    {7, "Button 2", 0, rek | middenV | middenH | rondom, 5},

    {3, "TextCtrl 20", 1, rek, 0},
    {1, "Button 5006", 0, rek | middenH | rondom, 20},
};

class IndelingProef : public RustProef {};

TEST_F(IndelingProef, FrameHoldsThePanel) {
  EXPECT_EQ(elementenVan(*venster), vensterIndeling);
}

TEST_F(IndelingProef, PanelHoldsEveryElementInItsPlace) {
  std::vector<Element> const gevonden = elementenVan(*venster->GetChildren().GetFirst()->GetData());
  ASSERT_EQ(gevonden.size(), paneelIndeling.size());
  for (std::size_t i = 0; i < gevonden.size(); ++i) {
    EXPECT_EQ(gevonden[i], paneelIndeling[i]) << "element " << i;
  }
}

TEST_F(IndelingProef, EveryControlLiesInsideThePanelAtTheRememberedSize) {
  wxWindow const* const paneel = venster->GetChildren().GetFirst()->GetData();
  EXPECT_EQ(paneel->GetSize(), wxSize(800, 600));
  for (wxWindow const* kind : paneel->GetChildren()) {
    EXPECT_TRUE(paneel->GetClientRect().Contains(kind->GetRect()))
        << kind->GetId() << " " << kind->GetLabel().utf8_str();
  }
}

}  // namespace
