// The main window as it comes up in each of the languages.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/radiobox.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <array>
#include <fstream>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"

namespace {

// What the toolkit's own catalogs make of the buttons that have no label of the program's.
struct StockTeksten {
  char const* open;
  char const* bewaarAls;
  char const* bewaar;
  char const* weg;
};
std::map<std::string, StockTeksten> const stockTeksten{
    {"nl", {"Openen...", "Opslaan Als...", "Opslaan", "Afsluiten"}},
    {"de", {"Öffnen …", "Speichern unter …", "Speichern", "Beenden"}},
    {"fr", {"Ouvrir...", "Enregistrer sous...", "Enregistrer", "Quitter"}},
    {"it", {"Apri...", "Salva con nome...", "Salva", "Esci"}},
    {"es", {"Abrir…", "Guardar como…", "Guardar", "Salir"}}};

bool isStockKnop(wxWindow const& venster) {
  constexpr std::array<int, 4> ids{wxID_OPEN, wxID_SAVEAS, wxID_SAVE, wxID_EXIT};
  return dynamic_cast<wxButton const*>(&venster) != nullptr &&
         std::find(ids.begin(), ids.end(), venster.GetId()) != ids.end();
}

// What one control says: its label, its rows, its field.
std::string opschrift(wxWindow const& control) {
  std::string regel = wxString(control.GetClassInfo()->GetClassName()).utf8_string() + " ";
  regel += isStockKnop(control) ? "(stock)" : control.GetLabel().utf8_string();
  if (auto const* const lijst = dynamic_cast<wxItemContainerImmutable const*>(&control)) {
    for (wxString const& rij : lijst->GetStrings()) {
      regel += "|" + rij.utf8_string();
    }
  }
  if (auto const* const balk = dynamic_cast<wxStatusBar const*>(&control)) {
    regel += balk->GetStatusText(0).utf8_string();
  }
  return regel + "\n";
}

class TaalStart : public ElkeTaalProef {
 protected:
  // All that the window and its menus say, a line for each text, level by level.
  std::string opschriften() const {
    std::string regels = venster->GetTitle().utf8_string() + "\n";
    std::vector<wxWindow const*> vensters{venster};
    for (std::size_t i = 0; i < vensters.size(); ++i) {
      for (wxWindow const* kind : vensters[i]->GetChildren()) {
        regels += opschrift(*kind);
        vensters.push_back(kind);
      }
    }
    return regels + menuOpschriften();
  }

 private:
  std::string menuOpschriften() const {
    std::string regels;
    std::vector<wxMenu const*> menus;
    wxMenuBar const& balk = *venster->GetMenuBar();
    for (std::size_t i = 0; i < balk.GetMenuCount(); ++i) {
      regels += balk.GetMenuLabel(i).utf8_string() + "\n";
      menus.push_back(balk.GetMenu(i));
    }
    for (std::size_t i = 0; i < menus.size(); ++i) {
      for (wxMenuItem const* item : menus[i]->GetMenuItems()) {
        regels += " " + item->GetItemLabel().utf8_string() + "\n";
        if (item->IsSubMenu()) {
          menus.push_back(item->GetSubMenu());
        }
      }
    }
    return regels;
  }
};

TEST_P(TaalStart, AllButTheStockButtonsSaysTheSameAsInEnglishAndNothingIsLogged) {
  inEigenProces([this] {
    beginIn(wxLANGUAGE_ENGLISH, EncoderSpeex);
    std::ofstream(map.pad("engels")) << opschriften();
    stop();
  });
  std::string const engels = leesTekst(map.pad("engels"));
  EXPECT_EQ(telTekst(engels, "Kestrolin Encoder for embedded applications\n"), 1U);
  EXPECT_EQ(telTekst(engels, "wxButton (stock)\n"), 4U);
  EXPECT_EQ(telTekst(engels, "Recently loaded files\n"), 1U);
  EXPECT_EQ(telTekst(engels, "Narrowband|Wideband|Ultra Wideband\n"), 1U);
  beginInTaal(EncoderSpeex);
  EXPECT_TRUE(zelfdeTekst(opschriften(), engels));
  StockTeksten const& verwacht = stockTeksten.at(GetParam().code);
  EXPECT_EQ(knop(wxID_OPEN)->GetLabelText().utf8_string(), verwacht.open);
  EXPECT_EQ(knop(wxID_SAVEAS)->GetLabelText().utf8_string(), verwacht.bewaarAls);
  EXPECT_EQ(knop(wxID_SAVE)->GetLabelText().utf8_string(), verwacht.bewaar);
  EXPECT_EQ(knop(wxID_EXIT)->GetLabelText().utf8_string(), verwacht.weg);
  EXPECT_TRUE(antwoorden.berichten.empty());
  stop();
  EXPECT_TRUE(nietsGelogd(log()));
}

INSTANTIATE_TEST_SUITE_P(Talen, TaalStart, ::testing::ValuesIn(talen()), taalCode);

}  // namespace
