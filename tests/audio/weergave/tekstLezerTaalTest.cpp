// Whatever the language of the program, the same is read of its texts.
#include <clocale>

#include "audio/weergave/tekstLezer.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/audio/uitvoer/runProef.h"
#include "tests/steun/catalogusInGebruik.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/wxMain.h"

namespace {

// The parameter is a locale, whose first letters are the code of the language.
class LezerTaal : public RunProef, public testing::WithParamInterface<char const*> {
 protected:
  LezerTaal() {
    instellingen.speexFormat = 0;
    instellingen.dacNumberOfBits = 2;
    schrijfWav(map.pad("bel.wav"), golf(2000));
    schrijfWav(map.pad("tik.wav"), golf(1234));
    schrijfSnd(map.pad("klein.wav"), golf(300), {}, wavAdpcm);
    laad({"bel.wav", "tik.wav", "klein.wav"});
  }

  // The texts of all encoders, in one.
  std::string alles() {
    ADPCMMaker vers;
    return speex() + tekstVan(vers) + pcm() + inbed();
  }
};

TEST_P(LezerTaal, ChangesNothingOfWhatIsRead) {
  for (UitvoerTaal const uitvoerTaal : {UitvoerTaalC, UitvoerTaalCPP}) {
    for (bool const header : {true, false}) {
      instellingen.speexOutputLanguage = uitvoerTaal;
      metHeader = header;
      std::string const engels = alles();
      std::string anders;
      {
        TijdelijkeLocale const locale(LC_ALL, GetParam());
        ASSERT_TRUE(locale.isGelukt());
        std::string const code = std::string(GetParam()).substr(0, 2);
        CatalogusInGebruik const inGebruik(KESTROLIN_CATALOGI "/" + code +
                                           "/LC_MESSAGES/Kestrolin.mo");
        anders = alles();
      }
      ASSERT_NE(anders, engels);
      GelezenTekst const verwacht = ontleedTekst(engels);
      GelezenTekst const gelezen = ontleedTekst(anders);
      EXPECT_TRUE(gelezen.klachten.empty());
      ASSERT_EQ(gelezen.arrays.size(), 12U);
      ASSERT_EQ(verwacht.arrays.size(), 12U);
      for (std::size_t i = 0; i < 12; ++i) {
        TekstArray const& een = gelezen.arrays[i];
        TekstArray const& ander = verwacht.arrays[i];
        EXPECT_EQ(een.naam, ander.naam);
        EXPECT_EQ(een.klasse, ander.klasse);
        EXPECT_EQ(een.wavBestand, ander.wavBestand);
        EXPECT_EQ(een.soort, ander.soort);
        EXPECT_EQ(een.frequentie, 8000U);
        EXPECT_EQ(een.aantalSamples, ander.aantalSamples);
        EXPECT_EQ(een.dacBits, ander.dacBits);
        EXPECT_EQ(een.metHeader, header || een.soort == ArraySoort::wav);
        EXPECT_EQ(een.run, ander.run);
        EXPECT_TRUE(een.bytes == ander.bytes);
      }
    }
  }
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

INSTANTIATE_TEST_SUITE_P(, LezerTaal,
                         testing::Values("nl_NL.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "it_IT.UTF-8",
                                         "es_ES.UTF-8"),
                         [](testing::TestParamInfo<char const*> const& locale) {
                           return std::string(locale.param).substr(0, 2);
                         });

}  // namespace
