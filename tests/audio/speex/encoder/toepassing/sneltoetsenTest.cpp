// The keys that work from anywhere in the window: those of the menus, and Alt with the underlined
// letters of the stock buttons, which are GTK's own in each language.
#include <wx/button.h>
#include <wx/intl.h>
#include <wx/menu.h>
#include <wx/radiobox.h>

#include <array>
#include <ostream>
#include <vector>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/invoerProef.h"

namespace {

// A letter and the id of what it works.
struct Sneltoets {
  char letter;
  int id;
};

struct TaalToetsen {
  char const* code;
  int taal;
  // Those that no menu has.
  std::vector<Sneltoets> knoppen;
  // Those of the menus File and Speex, which go first: the next press goes to the button.
  std::vector<Sneltoets> achterMenus;
};

void PrintTo(TaalToetsen const& toetsen, std::ostream* uit) {
  *uit << toetsen.code;
}

class SneltoetsProef : public InvoerProef {
 protected:
  // A fresh result, so that everything but Encode can be used.
  void startKlaar(int taal) {
    start(
        wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n"
                         "[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\n",
                         taal));
    laad({maakFragment("fragment.wav")});
    codeerPcm();
    ASSERT_TRUE(isGecodeerd());
    richt(radio(ID_ENCODER_TYPE));
  }

  // Notes the events of that kind and id in the place of their work.
  void noteer(wxEvtHandler* bron, wxEventTypeTag<wxCommandEvent> const& soort, int id) {
    bron->Bind(
        soort, [this](wxCommandEvent& event) { gedaan.push_back(event.GetId()); }, id);
  }

  // Presses it, and expects it to do this alone.
  void verwacht(Sneltoets const& toets, int met) {
    gedaan.clear();
    druk(toets.letter, met);
    EXPECT_TRUE(wacht([this] { return !gedaan.empty(); })) << toets.letter;
    EXPECT_EQ(gedaan, std::vector<int>{toets.id}) << toets.letter;
  }

  // Presses Alt and that letter, expects that menu, and closes it.
  void verwachtMenu(char letter, std::size_t nummer) {
    wxMenu const* open = nullptr;
    auto const zie = [&open](wxMenuEvent& event) { open = event.GetMenu(); };
    auto const zieEinde = [&open](wxMenuEvent&) { open = nullptr; };
    venster->Bind(wxEVT_MENU_OPEN, zie);
    venster->Bind(wxEVT_MENU_CLOSE, zieEinde);
    druk(letter, wxMOD_ALT);
    EXPECT_TRUE(wacht([&open] { return open != nullptr; })) << letter;
    EXPECT_EQ(open, venster->GetMenuBar()->GetMenu(nummer)) << letter;
    EXPECT_TRUE(drukTot(WXK_ESCAPE, wxMOD_NONE, [&open] { return open == nullptr; })) << letter;
    venster->Unbind(wxEVT_MENU_OPEN, zie);
    venster->Unbind(wxEVT_MENU_CLOSE, zieEinde);
  }

  std::vector<int> gedaan;
  OmgevingsWaarde catalogi{"LC_PATH", KESTROLIN_CATALOGI};
};

class SneltoetsInTaal : public SneltoetsProef, public ::testing::WithParamInterface<TaalToetsen> {};

TEST_F(SneltoetsProef, AltOAsksForFilesAndAltQEnds) {
  start();
  richt(radio(ID_ENCODER_TYPE));
  antwoorden.opBestandsVraagAnnuleren();
  druk('O', wxMOD_ALT);
  ASSERT_TRUE(wacht([this] { return antwoorden.bestandsVragen.size() == 1; }));
  EXPECT_EQ(antwoorden.bestandsVragen[0].bericht, "Open an Audio file");
  EXPECT_EQ(antwoorden.bestandsVragen[0].ouder, venster);
  druk('Q', wxMOD_ALT);
  EXPECT_TRUE(wacht([this] { return !leeft(); }));
}

TEST_F(SneltoetsProef, EveryKeyOfTheMenusWorks) {
  startKlaar(wxLANGUAGE_ENGLISH);
  std::vector<Sneltoets> const alle{{'O', wxID_OPEN},
                                    {'S', wxID_SAVE},
                                    {'Q', wxID_EXIT},
                                    {'K', ID_SPEEL_BRON},
                                    {'L', ID_SPEEL_RESULTAAT}};
  for (Sneltoets const& toets : alle) {
    noteer(venster, wxEVT_MENU, toets.id);
  }
  for (Sneltoets const& toets : alle) {
    verwacht(toets, wxMOD_CONTROL);
  }
  // Encode can be used when the result is given up.
  noteer(venster, wxEVT_MENU, ID_CODEER);
  kies(radio(ID_ENCODER_TYPE), EncoderADPCM);
  verwacht({'E', ID_CODEER}, wxMOD_CONTROL);
}

TEST_P(SneltoetsInTaal, AltWorksTheButtonsAndTheMenusGoFirst) {
  startKlaar(GetParam().taal);
  for (Sneltoets const& toets : GetParam().knoppen) {
    noteer(knop(toets.id), wxEVT_BUTTON, toets.id);
    verwacht(toets, wxMOD_ALT);
  }
  for (int const id : std::array<int, 4>{wxID_OPEN, wxID_EXIT, wxID_SAVE, wxID_SAVEAS}) {
    noteer(knop(id), wxEVT_BUTTON, id);
  }
  gedaan.clear();
  verwachtMenu('F', 0);
  verwachtMenu('S', 1);
  for (Sneltoets const& toets : GetParam().achterMenus) {
    druk(toets.letter, wxMOD_ALT);
    EXPECT_TRUE(wacht([this, &toets] { return knop(toets.id)->HasFocus(); })) << toets.letter;
  }
  EXPECT_TRUE(gedaan.empty());
}

std::vector<TaalToetsen> const alleTalen{{"en",
                                          wxLANGUAGE_ENGLISH,
                                          {{'O', wxID_OPEN}, {'Q', wxID_EXIT}, {'A', wxID_SAVEAS}},
                                          {{'S', wxID_SAVE}}},
                                         {"nl",
                                          wxLANGUAGE_DUTCH,
                                          {{'O', wxID_OPEN}, {'A', wxID_SAVEAS}},
                                          {{'F', wxID_EXIT}, {'S', wxID_SAVE}}},
                                         {"de",
                                          wxLANGUAGE_GERMAN,
                                          {{'B', wxID_EXIT}, {'U', wxID_SAVEAS}},
                                          {{'F', wxID_OPEN}, {'S', wxID_SAVE}}},
                                         {"fr",
                                          wxLANGUAGE_FRENCH,
                                          {{'O', wxID_OPEN}, {'Q', wxID_EXIT}, {'E', wxID_SAVE}},
                                          {{'S', wxID_SAVEAS}}},
                                         {"it",
                                          wxLANGUAGE_ITALIAN,
                                          {{'A', wxID_OPEN}, {'E', wxID_EXIT}, {'L', wxID_SAVEAS}},
                                          {{'S', wxID_SAVE}}},
                                         {"es",
                                          wxLANGUAGE_SPANISH,
                                          {{'A', wxID_OPEN}, {'G', wxID_SAVE}, {'M', wxID_SAVEAS}},
                                          {{'S', wxID_EXIT}}}};

std::string codeVan(::testing::TestParamInfo<TaalToetsen> const& info) {
  return info.param.code;
}

INSTANTIATE_TEST_SUITE_P(Talen, SneltoetsInTaal, ::testing::ValuesIn(alleTalen), codeVan);

}  // namespace
