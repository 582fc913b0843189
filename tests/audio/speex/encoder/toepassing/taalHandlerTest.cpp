// The choice of a language through the menu, and what the next start makes of it.
#include <wx/dialog.h>
#include <wx/fileconf.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <filesystem>
#include <utility>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "externals/desktop/taalDialoog.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"
#include "tests/steun/machine.h"

namespace {

constexpr char const* vraag =
    "A new application language was selected.\nDo you want to proceed?\nPlease select YES to put "
    "the changes into effect and exit the application.\n You will need to restart the application "
    "for the changes to take effect.";
constexpr char const* vraagTitel = "Restart the application";

wxString getal(int nummer) {
  return wxString::Format("%d", nummer);
}

// The dialog as a user leaves it: with a row chosen, where `naam` is not empty, and by that button.
std::function<int(wxDialog&)> kiesEnDruk(wxString const& naam, int knop) {
  return [naam, knop](wxDialog& dialoog) {
    auto* const lijst = dynamic_cast<wxListBox*>(dialoog.FindWindow(0));
    EXPECT_NE(lijst, nullptr);
    EXPECT_NE(dynamic_cast<TaalDialoog*>(&dialoog), nullptr);
    if (lijst != nullptr && !naam.empty()) {
      int const rij = lijst->FindString(naam, true);
      EXPECT_NE(rij, wxNOT_FOUND) << naam.utf8_str();
      lijst->SetSelection(rij);
      wxCommandEvent event(wxEVT_LISTBOX, lijst->GetId());
      event.SetEventObject(lijst);
      event.SetInt(rij);
      lijst->ProcessWindowEvent(event);
    }
    return knop;
  };
}

// The steps that the tests below share, on any of the fixtures.
template <typename Proef>
class MetKeuze : public Proef {
 protected:
  // Goes through the menu to this language, and answers the question. After yes the program has to
  // end, after anything else to go on.
  void kiesTaal(wxString const& naam, int antwoord) {
    this->antwoorden.opEigenDialoog(kiesEnDruk(naam, wxID_OK));
    this->antwoorden.opBericht(antwoord);
    this->doeInHoofdlus([this] { this->kiesMenu(ID_TAAL); }, antwoord == wxID_YES);
  }
};

using TaalHandler = MetKeuze<TaalProef>;

class TaalHandlerElkeTaal : public MetKeuze<ElkeTaalProef> {
 protected:
  // Opens the dialog, takes what stands there, and declines the question: both in the language.
  void verwachtDialoogEnVraag() {
    wxArrayString rijen;
    antwoorden.opEigenDialoog([&rijen](wxDialog& dialoog) {
      rijen = dynamic_cast<wxListBox&>(*dialoog.FindWindow(0)).GetStrings();
      return wxID_OK;
    });
    antwoorden.opBericht(wxID_NO);
    kiesMenu(ID_TAAL);
    ASSERT_EQ(antwoorden.eigenDialogen.size(), 1U);
    EXPECT_EQ(antwoorden.eigenDialogen[0].titel.utf8_string(), vertaald("Kies een taal"));
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    EXPECT_EQ(antwoorden.berichten[0].titel.utf8_string(), anders(vraagTitel));
    EXPECT_EQ(antwoorden.berichten[0].tekst.utf8_string(), anders(vraag));
    std::vector<wxString> verwacht;
    // In the order of their texts in all five.
    for (char const* const naam :
         {"Deutsch", "English", "Espagnol", "Francais", "Italiano", "Nederlands"}) {
      verwacht.push_back(wxString::FromUTF8(vertaald(naam)));
    }
    EXPECT_EQ(std::vector<wxString>(rijen.begin(), rijen.end()), verwacht);
  }
};

TEST_F(TaalHandler, TheMenuEntryOpensTheDialogOverTheMainWindow) {
  start();
  long stijl = 0;
  antwoorden.opEigenDialoog([&stijl](wxDialog& dialoog) {
    EXPECT_NE(dynamic_cast<TaalDialoog*>(&dialoog), nullptr);
    EXPECT_FALSE(dialoog.IsShown());
    stijl = dialoog.GetWindowStyle();
    return wxID_CANCEL;
  });
  kiesMenu(ID_TAAL);
  ASSERT_EQ(antwoorden.eigenDialogen.size(), 1U);
  EXPECT_EQ(antwoorden.eigenDialogen[0].titel, "Kies een taal");
  EXPECT_EQ(antwoorden.eigenDialogen[0].ouder, venster);
  EXPECT_EQ(stijl & (wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER), wxDEFAULT_DIALOG_STYLE);
}

TEST_F(TaalHandler, PressingOkWithoutTouchingTheListChoosesGerman) {
  start();
  kiesTaal(wxEmptyString, wxID_YES);
  EXPECT_EQ(eindigNaHoofdlus().at(taalSleutel), getal(wxLANGUAGE_GERMAN));
}

TEST_F(TaalHandler, PressingCancelChangesNothingAndAsksNothing) {
  start(taalRegels(wxLANGUAGE_DUTCH));
  antwoorden.opEigenDialoog(kiesEnDruk(wxString::FromUTF8("Français"), wxID_CANCEL));
  doeInHoofdlus([this] { kiesMenu(ID_TAAL); }, false);
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_TRUE(leeft());
  EXPECT_EQ(stopSleutels().at(taalSleutel), getal(wxLANGUAGE_DUTCH));
}

TEST_F(TaalHandler, TheCloseBoxOfTheDialogIsACancel) {
  start();
  // What the toolkit ends a dialog with that has none of its buttons pressed.
  antwoorden.opEigenDialoog(kiesEnDruk("Italiano", wxID_CLOSE));
  doeInHoofdlus([this] { kiesMenu(ID_TAAL); }, false);
  EXPECT_EQ(stopSleutels().at(taalSleutel), getal(wxLANGUAGE_ENGLISH));
}

TEST_F(TaalHandler, TheRealDialogEndsByItsOwnButtons) {
  start();
  for (int const id : {wxID_CANCEL, wxID_OK}) {
    // The answer of the hook lets the dialog appear.
    antwoorden.opEigenDialoog([id](wxDialog& dialoog) {
      wxTheApp->CallAfter([id, &dialoog] {
        EXPECT_TRUE(dialoog.IsModal());
        wxCommandEvent event(wxEVT_BUTTON, id);
        event.SetEventObject(dialoog.FindWindow(id));
        dialoog.FindWindow(id)->ProcessWindowEvent(event);
      });
      return wxID_NONE;
    });
  }
  kiesMenu(ID_TAAL);
  EXPECT_TRUE(antwoorden.berichten.empty());
  antwoorden.opBericht(wxID_NO);
  kiesMenu(ID_TAAL);
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
}

TEST_F(TaalHandler, AfterOkComesTheQuestion) {
  start();
  kiesTaal("Italiano", wxID_NO);
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  Bericht const& bericht = antwoorden.berichten[0];
  EXPECT_EQ(bericht.titel, vraagTitel);
  EXPECT_EQ(bericht.tekst, vraag);
  // The toolkit adds the icon of a question to a box that names none.
  EXPECT_EQ(bericht.stijl & ~static_cast<long>(wxICON_MASK), wxYES_NO);
  EXPECT_EQ(bericht.ouder, venster);
}

class TaalHandlerWeigering : public MetKeuze<TaalProef>,
                             public ::testing::WithParamInterface<int> {};

TEST_P(TaalHandlerWeigering, LeavesTheToolRunningWithTheOldLanguageAndTheConfigurationUnchanged) {
  start(taalRegels(wxLANGUAGE_DUTCH));
  kiesTaal(wxString::FromUTF8("Français"), GetParam());
  ASSERT_TRUE(leeft());
  EXPECT_EQ(wxGetApp().geefAppConfig()->Read(taalSleutel, ""), getal(wxLANGUAGE_DUTCH));
  laad({wav("bel.wav")});
  EXPECT_EQ(status(), "Audiobestanden geladen");
  EXPECT_EQ(stopSleutels().at(taalSleutel), getal(wxLANGUAGE_DUTCH));
}

std::string antwoordNaam(::testing::TestParamInfo<int> const& info) {
  return info.param == wxID_NO ? "No" : "Escape";
}

INSTANTIATE_TEST_SUITE_P(Antwoorden, TaalHandlerWeigering, ::testing::Values(wxID_NO, wxID_CANCEL),
                         antwoordNaam);

TEST_F(TaalHandler, YesEndsTheProgramWithAllItsSettingsSaved) {
  start("[Configuratie]\nwavDirectory=/klank\n");
  zet(spin(ID_QUALITY), 5);
  zet(spin(ID_COMPLEXITY), 7);
  // The field is enabled, for C++ is the language of a first start.
  typ(veld(ID_KLASSE), "Klank");
  laad({wav("bel.wav")});
  kiesTaal("Espagnol", wxID_YES);
  // Nothing is on disk before the end.
  EXPECT_FALSE(inhoud(thuis() + "/.Kestrolin").Contains("Taal="));
  std::map<wxString, wxString> const sleutels = eindigNaHoofdlus();
  EXPECT_EQ(sleutels.at(taalSleutel), getal(wxLANGUAGE_SPANISH));
  EXPECT_EQ(sleutels.at("/Configuratie/wavDirectory"), "/klank");
  EXPECT_EQ(sleutels.at("/Configuratie/klasseNaam"), "Klank");
  EXPECT_EQ(sleutels.at("/Configuratie/Convertertype"), "0");
  EXPECT_EQ(sleutels.at("/Configuratie/file1"), pad("bel.wav"));
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexQuality"), "5");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexComplexity"), "7");
  EXPECT_EQ(sleutels.count("/Statistiek/StopTijd"), 1U);
}

TEST_F(TaalHandler, YesLosesAnUnsavedResultWithoutAWord) {
  startGecodeerd();
  antwoorden.berichten.clear();
  kiesTaal("Italiano", wxID_YES);
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, vraagTitel);
  EXPECT_EQ(eindigNaHoofdlus().at(taalSleutel), getal(wxLANGUAGE_ITALIAN));
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_TRUE(antwoorden.bestandsVragen.empty());
}

TEST_F(TaalHandler, TheLanguageInForceIsAskedAboutAllTheSame) {
  start(taalRegels(wxLANGUAGE_DUTCH));
  kiesTaal("Nederlands", wxID_YES);
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(eindigNaHoofdlus().at(taalSleutel), getal(wxLANGUAGE_DUTCH));
}

// -- in each of the languages

TEST_P(TaalHandlerElkeTaal, TheNextStartsComeUpInItAndBackInEnglishWithItsDialogAndItsQuestion) {
  std::map<std::string, wxString> const namen{{"nl", "Nederlands"},
                                              {"de", "Deutsch"},
                                              {"fr", "Francais"},
                                              {"it", "Italiano"},
                                              {"es", "Espagnol"}};
  inEigenProces([this, &namen] {
    start();
    laad({wav("bel.wav")});
    EXPECT_EQ(status(), "Audio files loaded");
    kiesTaal(namen.at(GetParam().code), wxID_YES);
    EXPECT_EQ(eindigNaHoofdlus().at(taalSleutel), getal(GetParam().nummer));
  });
  inEigenProces([this] {
    start();
    EXPECT_TRUE(nietsGelogd(log()));
    laad({wav("bel.wav")});
    EXPECT_EQ(status().utf8_string(), anders("Audio files loaded"));
    verwachtDialoogEnVraag();
    kiesTaal(wxString::FromUTF8(vertaald("English")), wxID_YES);
    EXPECT_EQ(eindigNaHoofdlus().at(taalSleutel), getal(wxLANGUAGE_ENGLISH));
  });
  // English needs no catalog.
  std::filesystem::create_directories(map.pad("leeg"));
  OmgevingsWaarde const geenCatalogi("LC_PATH", map.pad("leeg"));
  start();
  EXPECT_TRUE(nietsGelogd(log()));
  laad({wav("bel.wav")});
  EXPECT_EQ(status(), "Audio files loaded");
}

TEST_P(TaalHandlerElkeTaal, WithoutCatalogsItsAbsenceShowsAtTheStart) {
  if (heeftCatalogi()) {
    GTEST_SKIP() << "Kestrolin is installed on this machine, and its catalogs are found";
  }
  std::filesystem::create_directories(map.pad("leeg"));
  OmgevingsWaarde const geenCatalogi("LC_PATH", map.pad("leeg"));
  beginInTaal(EncoderSpeex);
  EXPECT_EQ(fouten().size(), 2U);
  laad({wav("bel.wav")});
  EXPECT_EQ(status(), "Audio files loaded");
}

INSTANTIATE_TEST_SUITE_P(Talen, TaalHandlerElkeTaal, ::testing::ValuesIn(talen()), taalCode);

}  // namespace
