// The language of the configuration: its locale, its catalogs, and what is logged about them.
#include <langinfo.h>
#include <unistd.h>
#include <wx/filename.h>
#include <wx/translation.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/steun/catalogusMaker.h"
#include "tests/steun/machine.h"

namespace {

class Taal : public DesktopProef {
 protected:
  // A catalog of the frame or the application in a language, where the toolkit looks for it.
  void voegCatalogusToe(std::string const& taal, std::string const& naam, std::string const& id,
                        std::string const& vertaling) {
    maakCatalogus(map.pad("cat/" + taal + "/LC_MESSAGES/" + naam + ".mo"), {{id, vertaling}});
    setenv("LC_PATH", map.pad("cat").c_str(), 1);
  }

  static wxString nummer(wxLanguage taal) { return wxString::Format("%d", static_cast<int>(taal)); }

  // A path with an accent as the bytes of the file system.
  static std::string padBytes(char const* utf8) {
    return wxString::FromUTF8(utf8).mb_str(wxConvLibc).data();
  }
};

class TaalZonderCatalogus : public Taal {
 protected:
  void SetUp() override {
    if (heeftCatalogi()) {
      GTEST_SKIP() << "Kestrolin is installed on this machine, and its catalogs are found";
    }
    Taal::SetUp();
  }
};

// The locales of the machine are hidden: the toolkit finds none.
class TaalZonderLocale : public Taal {
 protected:
  void SetUp() override {
    if (heeftLocaleMappen()) {
      GTEST_SKIP() << "the locales of this machine cannot be hidden";
    }
    Taal::SetUp();
    std::filesystem::create_directories(map.pad("locales"));
    setenv("LOCPATH", map.pad("locales").c_str(), 1);
  }
};

std::vector<wxString> const geenFouten;

TEST_F(Taal, FirstStartIsEnglishAndLogsNothing) {
  start();
  EXPECT_TRUE(nietsGelogd(log));
  EXPECT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_ENGLISH);
}

TEST_F(Taal, EnglishAddsNoCatalogWhateverIsOnDisk) {
  voegCatalogusToe("en", "Velmoradesktop", "proefwoord", "verkeerd");
  voegCatalogusToe("en", proefNaam().ToStdString(), "proefzin", "verkeerd");
  startInTaal(nummer(wxLANGUAGE_ENGLISH));
  EXPECT_TRUE(nietsGelogd(log));
  EXPECT_EQ(wxGetTranslation("proefwoord"), "proefwoord");
  EXPECT_EQ(wxGetTranslation("proefzin"), "proefzin");
  EXPECT_FALSE(wxGetLocale()->IsLoaded("Velmoradesktop"));
  EXPECT_FALSE(wxGetLocale()->IsLoaded(proefNaam()));
}

TEST_F(TaalZonderCatalogus, MissingCatalogsLogOneErrorEachInOrderAndTheTextsStayEnglish) {
  startInTaal(nummer(wxLANGUAGE_DUTCH));
  EXPECT_EQ(fouten(), (std::vector<wxString>{
                          "Could not add Velmora catalog for language : Dutch",
                          "Could not add application language catalog for language : Dutch"}));
  EXPECT_EQ(log.size(), 2U);
  EXPECT_EQ(wxGetTranslation("proefwoord"), "proefwoord");
}

TEST_F(TaalZonderCatalogus, EveryLanguageOfTheToolNamesItselfInTheErrors) {
  startInTaal(nummer(wxLANGUAGE_GERMAN));
  EXPECT_EQ(fouten(), (std::vector<wxString>{
                          "Could not add Velmora catalog for language : German",
                          "Could not add application language catalog for language : German"}));
}

TEST_F(TaalZonderCatalogus, CatalogsOnDiskAreUsedWithoutAWord) {
  voegCatalogusToe("nl", "Velmoradesktop", "proefwoord", "raamwoord");
  voegCatalogusToe("nl", proefNaam().ToStdString(), "proefzin", "eigen caf\xC3\xA9");
  startInTaal(nummer(wxLANGUAGE_DUTCH));
  EXPECT_TRUE(nietsGelogd(log));
  EXPECT_EQ(wxGetTranslation("proefwoord"), "raamwoord");
  EXPECT_EQ(wxGetTranslation("proefzin"), wxString::FromUTF8("eigen caf\xC3\xA9"));
}

TEST_F(TaalZonderCatalogus, MissingFrameCatalogDoesNotKeepTheApplicationsOut) {
  voegCatalogusToe("nl", proefNaam().ToStdString(), "proefzin", "eigen zin");
  startInTaal(nummer(wxLANGUAGE_DUTCH));
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not add Velmora catalog for language : Dutch"});
  EXPECT_EQ(wxGetTranslation("proefzin"), "eigen zin");
}

TEST_F(TaalZonderCatalogus, MissingApplicationCatalogAlone) {
  voegCatalogusToe("nl", "Velmoradesktop", "proefwoord", "raamwoord");
  startInTaal(nummer(wxLANGUAGE_DUTCH));
  EXPECT_EQ(fouten(), std::vector<wxString>{
                          "Could not add application language catalog for language : Dutch"});
  EXPECT_EQ(wxGetTranslation("proefwoord"), "raamwoord");
}

TEST_F(TaalZonderLocale, LocaleThatCannotBeInitialisedLogsItsLanguageAndGoesOn) {
  setenv("LC_ALL", "C", 1);
  startInTaal(nummer(wxLANGUAGE_ENGLISH));
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not initialise the Locale for English"});
  EXPECT_EQ(stop().at("/Gebruikersinstellingen/Taal"), nummer(wxLANGUAGE_ENGLISH));
}

TEST_F(TaalZonderLocale, LocaleThatCannotBeInitialisedAddsNoCatalog) {
  voegCatalogusToe("nl", "Velmoradesktop", "proefwoord", "raamwoord");
  voegCatalogusToe("nl", proefNaam().ToStdString(), "proefzin", "eigen zin");
  startInTaal(nummer(wxLANGUAGE_DUTCH));
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not initialise the Locale for Dutch"});
  EXPECT_EQ(wxGetTranslation("proefwoord"), "proefwoord");
  EXPECT_EQ(wxGetTranslation("proefzin"), "proefzin");
}

TEST_F(TaalZonderLocale, WithoutALocaleOnlyTheCharacterTypeChangesAndNamesWithAccentsWork) {
  setenv("LC_ALL", "C", 1);
  startInTaal(nummer(wxLANGUAGE_ENGLISH));
  EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
  for (int const soort : {LC_NUMERIC, LC_TIME, LC_COLLATE, LC_MONETARY, LC_MESSAGES}) {
    EXPECT_STREQ(std::setlocale(soort, nullptr), "C");
  }
  EXPECT_EQ(wxString::Format("%.2f", 1.25), "1.25");
  EXPECT_EQ(padBytes("caf\xC3\xA9.wav"), "caf\xC3\xA9.wav");
}

TEST_F(TaalZonderLocale, WithoutALocaleTheCharacterTypeOfTheEnvironmentIsTaken) {
  std::string const doel = map.pad("locales/nl_NL.UTF-8");
  if (std::system(("localedef -i nl_NL -f UTF-8 " + doel + " 2>/dev/null").c_str()) != 0) {
    GTEST_SKIP() << "this machine cannot compile locales";
  }
  setenv("LC_ALL", "nl_NL.UTF-8", 1);
  startInTaal(nummer(wxLANGUAGE_ENGLISH));
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not initialise the Locale for English"});
  EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "nl_NL.UTF-8");
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_EQ(wxString::Format("%.2f", 1.25), "1.25");
  EXPECT_EQ(padBytes("caf\xC3\xA9.wav"), "caf\xC3\xA9.wav");
}

// The locale of English that the toolkit makes here knows ASCII alone, as that of the environment
// "C" does.
TEST_F(TaalZonderLocale, LocaleOfAsciiAloneKeepsItsCategoriesAndNamesWithAccentsWork) {
  std::string const doel = map.pad("locales/en_US");
  if (std::system(("localedef -i en_US -f ANSI_X3.4-1968 " + doel + " 2>/dev/null").c_str()) != 0) {
    GTEST_SKIP() << "this machine cannot compile locales";
  }
  setenv("LC_ALL", "C", 1);
  startInTaal(nummer(wxLANGUAGE_ENGLISH));
  EXPECT_TRUE(log.empty());
  EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
  for (int const soort : {LC_NUMERIC, LC_TIME, LC_COLLATE, LC_MONETARY, LC_MESSAGES}) {
    EXPECT_STREQ(std::setlocale(soort, nullptr), "en_US");
  }
  EXPECT_EQ(padBytes("caf\xC3\xA9.wav"), "caf\xC3\xA9.wav");
}

// The toolkit takes over what the environment says, which may be ASCII.
class TaalInKaleOmgeving : public Taal, public ::testing::WithParamInterface<char const*> {
 protected:
  void SetUp() override {
    Taal::SetUp();
    for (char const* naam : {"LC_ALL", "LC_CTYPE", "LANG"}) {
      unsetenv(naam);
    }
    std::string const toekenning = GetParam();
    std::size_t const is = toekenning.find('=');
    setenv(toekenning.substr(0, is).c_str(), toekenning.substr(is + 1).c_str(), 1);
  }

  static void verwachtNamenMetAccenten() {
    EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
    EXPECT_EQ(padBytes("caf\xC3\xA9 \xE6\x97\xA5.wav"), "caf\xC3\xA9 \xE6\x97\xA5.wav");
  }
};

TEST_P(TaalInKaleOmgeving, NamesWithAccentsWorkWithTheLanguageOfTheEnvironment) {
  startInTaal(nummer(wxLANGUAGE_DEFAULT));
  verwachtNamenMetAccenten();
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST_P(TaalInKaleOmgeving, EveryLanguageOfTheToolKeepsItsOwnLocale) {
  std::map<wxLanguage, std::string> const talen{
      {wxLANGUAGE_ENGLISH, "en_"}, {wxLANGUAGE_DUTCH, "nl_"},   {wxLANGUAGE_GERMAN, "de_"},
      {wxLANGUAGE_FRENCH, "fr_"},  {wxLANGUAGE_ITALIAN, "it_"}, {wxLANGUAGE_SPANISH, "es_"}};
  for (auto const& [taal, begin] : talen) {
    SCOPED_TRACE(begin);
    startInTaal(nummer(taal));
    verwachtNamenMetAccenten();
    for (int const soort : {LC_CTYPE, LC_NUMERIC}) {
      std::string const naam = std::setlocale(soort, nullptr);
      EXPECT_EQ(naam.substr(0, 3), begin) << naam;
    }
    stop();
  }
}

INSTANTIATE_TEST_SUITE_P(, TaalInKaleOmgeving,
                         ::testing::Values("LC_ALL=C", "LC_ALL=POSIX", "LANG=C", "LC_CTYPE=C"));

TEST_F(Taal, LocaleOfTheProcessEndsWithTheApplication) {
  start();
  EXPECT_NE(std::strcmp(std::setlocale(LC_CTYPE, nullptr), "C"), 0);
  bool nogEr = false;
  app().bijEinde = [&nogEr] { nogEr = wxGetLocale() != nullptr; };
  stop();
  EXPECT_TRUE(nogEr);
  EXPECT_EQ(wxGetLocale(), nullptr);
}

// Numbers that are no language and texts that are no number: the start goes on and the number that
// was read is written back.
TEST_F(Taal, StrangeNumberStartsAndIsKept) {
  for (char const* getal : {"-1", "0", "1", "99999", "2147483647", "-2147483648"}) {
    SCOPED_TRACE(getal);
    log.clear();
    startInTaal(getal);
    EXPECT_LE(fouten().size(), 3U);
    EXPECT_EQ(stop().at("/Gebruikersinstellingen/Taal"), getal);
  }
}

TEST_F(Taal, TextInThePlaceOfTheNumberMeansEnglish) {
  startInTaal("Nederlands");
  EXPECT_TRUE(nietsGelogd(log));
  EXPECT_EQ(wxGetLocale()->GetLanguage(), wxLANGUAGE_ENGLISH);
  EXPECT_EQ(stop().at("/Gebruikersinstellingen/Taal"), nummer(wxLANGUAGE_ENGLISH));
}

TEST_F(Taal, NumberThatIsNoLanguageLogsThatItsLocaleFailed) {
  startInTaal("99999");
  ASSERT_FALSE(fouten().empty());
  EXPECT_EQ(fouten().back(), "Could not initialise the Locale for ");
}

}  // namespace
