// The dialog of the languages in use: rows chosen, names translated, and the way it ends.
#include "tests/externals/desktop/taalDialoogProef.h"
#include "tests/steun/catalogusInGebruik.h"

namespace {

using TaalKeuze = TaalDialoogProef;

TEST_F(TaalKeuze, EachRowGivesItsLanguage) {
  startVenster();
  maak();
  std::vector<wxLanguage> talen;
  // From the last to the first, so that none is there before it is chosen.
  for (int rij = 5; rij >= 0; --rij) {
    kies(rij);
    talen.push_back(dialoog->geefTaal());
  }
  EXPECT_EQ(talen,
            (std::vector<wxLanguage>{wxLANGUAGE_DUTCH, wxLANGUAGE_ITALIAN, wxLANGUAGE_FRENCH,
                                     wxLANGUAGE_SPANISH, wxLANGUAGE_ENGLISH, wxLANGUAGE_GERMAN}));
}

TEST_F(TaalKeuze, RowSelectedByTheProgramSendsNothingAndChangesNothing) {
  startVenster();
  maak();
  lijst()->SetSelection(5);
  rust();
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
}

TEST_F(TaalKeuze, OnlyTheListsOwnEventsCount) {
  startVenster();
  maak();
  lijst()->SetSelection(5);
  meld(lijstId + 1);
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
  meld();
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
}

TEST_F(TaalKeuze, NoSelectedRowLeavesTheLanguage) {
  startVenster();
  maak();
  kies("Italiano");
  lijst()->SetSelection(wxNOT_FOUND);
  meld();
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_ITALIAN);
}

TEST_F(TaalKeuze, TextThatMatchesNoLanguageLeavesTheLanguage) {
  startVenster();
  {
    CatalogusInGebruik const catalogus(Vertalingen{{"Italiano", "Italiaans"}});
    maak();
    kies("Nederlands");
    ASSERT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
  }
  // The catalog has gone, the row of that name stands.
  kies("Italiaans");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
  // The match is exact.
  lijst()->SetString(0, "english");
  kies("english");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
  kies("Espagnol");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_SPANISH);
}

TEST_F(TaalKeuze, CatalogSpellsTheNamesAndTheirRowsKeepTheirLanguages) {
  startVenster();
  wxString const frans = wxString::FromUTF8(
      "Fran\xC3\xA7"
      "ais");
  CatalogusInGebruik const catalogus(
      {{"Francais", frans.utf8_str().data()}, {"Espagnol", "Spaans"}});
  maak();
  EXPECT_EQ(rijen(), (std::vector<wxString>{"Deutsch", "English", frans, "Italiano", "Nederlands",
                                            "Spaans"}));
  kies(frans);
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_FRENCH);
  kies("Spaans");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_SPANISH);
  kies("Nederlands");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
}

TEST_F(TaalKeuze, LanguageIsGermanAtTheStartWhateverStandsInTheFirstRow) {
  startVenster();
  CatalogusInGebruik const catalogus(Vertalingen{{"Deutsch", "Tysk"}});
  maak();
  EXPECT_EQ(lijst()->GetStringSelection(), "English");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
}

TEST_F(TaalKeuze,
       OfTwoLanguagesWithOneNameTheFirstOfDutchEnglishGermanFrenchItalianSpanishIsMeant) {
  startVenster();
  CatalogusInGebruik const catalogus({{"Nederlands", "Een"},
                                      {"Deutsch", "Een"},
                                      {"English", "Twee"},
                                      {"Espagnol", "Twee"},
                                      {"Francais", "Vijf"},
                                      {"Italiano", "Vijf"}});
  maak();
  kies("Vijf");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_FRENCH);
  kies("Twee");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_ENGLISH);
  kies("Een");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
}

TEST_F(TaalKeuze, OkWithoutTouchingTheListEndsTheDialogWithGerman) {
  startVenster();
  maak();
  EXPECT_EQ(draaiMet([this] { druk(wxID_OK); }), wxID_OK);
  EXPECT_FALSE(dialoog->IsModal());
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
}

TEST_F(TaalKeuze, OkEndsTheDialogWithTheChosenLanguage) {
  startVenster();
  maak();
  EXPECT_EQ(draaiMet([this] {
              kies("Francais");
              EXPECT_TRUE(dialoog->IsModal());
              druk(wxID_OK);
            }),
            wxID_OK);
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_FRENCH);
}

TEST_F(TaalKeuze, CancelEndsTheDialogAsItself) {
  startVenster();
  maak();
  EXPECT_EQ(draaiMet([this] { druk(wxID_CANCEL); }), wxID_CANCEL);
  EXPECT_FALSE(dialoog->IsModal());
}

TEST_F(TaalKeuze, CloseBoxIsCancel) {
  startVenster();
  maak();
  EXPECT_EQ(draaiMet([this] { dialoog->Close(); }), wxID_CANCEL);
}

}  // namespace
