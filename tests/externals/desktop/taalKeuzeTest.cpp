// The dialog of the languages in use: rows chosen, names translated, and the way it ends.
#include "tests/externals/desktop/taalDialoogProef.h"
#include "tests/steun/catalogusInGebruik.h"

namespace {

using TaalKeuze = TaalDialoogProef;

TEST_F(TaalKeuze, RowThatTheUserSelectsGivesItsLanguage) {
  startVenster();
  {
    SCOPED_TRACE("each row");
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
  {
    SCOPED_TRACE("a row that the program selects sends nothing and changes nothing");
    maak();
    lijst()->SetSelection(5);
    rust();
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
  }
  {
    SCOPED_TRACE("only the list's own events count");
    maak();
    lijst()->SetSelection(5);
    meld(lijstId + 1);
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
    meld();
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_DUTCH);
  }
  {
    SCOPED_TRACE("no selected row leaves the language");
    maak();
    kies("Italiano");
    lijst()->SetSelection(wxNOT_FOUND);
    meld();
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_ITALIAN);
  }
}

TEST_F(TaalKeuze, CatalogSpellsTheNamesAndTheirRowsKeepTheirLanguages) {
  startVenster();
  {
    SCOPED_TRACE("names and rows");
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
  {
    SCOPED_TRACE("a text that matches no language leaves it");
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
  {
    SCOPED_TRACE("German at the start whatever stands in the first row");
    CatalogusInGebruik const catalogus(Vertalingen{{"Deutsch", "Tysk"}});
    maak();
    EXPECT_EQ(lijst()->GetStringSelection(), "English");
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
  }
  // The first of Dutch, English, German, French, Italian, Spanish is meant.
  {
    SCOPED_TRACE("two languages with one name");
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
}

TEST_F(TaalKeuze, DialogEndsByItsButtonsAndItsCloseBox) {
  startVenster();
  {
    SCOPED_TRACE("OK without touching the list gives German");
    maak();
    EXPECT_EQ(draaiMet([this] { druk(wxID_OK); }), wxID_OK);
    EXPECT_FALSE(dialoog->IsModal());
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
  }
  {
    SCOPED_TRACE("OK with the chosen language");
    maak();
    EXPECT_EQ(draaiMet([this] {
                kies("Francais");
                EXPECT_TRUE(dialoog->IsModal());
                druk(wxID_OK);
              }),
              wxID_OK);
    EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_FRENCH);
  }
  {
    SCOPED_TRACE("Cancel");
    maak();
    EXPECT_EQ(draaiMet([this] { druk(wxID_CANCEL); }), wxID_CANCEL);
    EXPECT_FALSE(dialoog->IsModal());
  }
  {
    SCOPED_TRACE("the close box is Cancel");
    maak();
    EXPECT_EQ(draaiMet([this] { dialoog->Close(); }), wxID_CANCEL);
  }
}

}  // namespace
