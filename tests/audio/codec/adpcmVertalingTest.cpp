// What the user's language does to the text of an ADPCM fragment: the comment on the header is
// translated, and that is all.
#include <gtest/gtest.h>

#include <clocale>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/catalogusInGebruik.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

std::string const uitleg =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";

// 12345 frames of 8000 Hz: 1.54 s.
class AdpcmVertaling : public testing::Test {
 protected:
  AdpcmVertaling() { schrijfWav(map.pad("toon.wav"), samples); }

  std::string tekst(bool metHeader) const {
    return adpcmTekst({ADPCMTaalC, 0}, map.pad("toon.wav"), metHeader);
  }

  std::string verwacht(bool metHeader) const {
    AdpcmStand stand;
    VerwachteTekst gegevens;
    gegevens.metHeader = metHeader;
    gegevens.frames = 12345;
    return verwachteAdpcmTekst(gegevens, modelBytes(stand, samples, 1));
  }

 private:
  std::vector<int> const samples = golf(12345);
  TijdelijkeMap map;
};

TEST_F(AdpcmVertaling, duurHoudtZijnPuntInElkeLocale) {
  ASSERT_NE(verwacht(true).find(" : 1.54 s\t"), std::string::npos);
  for (char const* const naam : {"de_DE.UTF-8", "fr_FR.UTF-8", "nl_NL.UTF-8"}) {
    TijdelijkeLocale const locale(LC_ALL, naam);
    ASSERT_TRUE(locale.isGelukt()) << naam;
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_TRUE(zelfdeTekst(tekst(true), verwacht(true))) << naam;
  }
}

TEST_F(AdpcmVertaling, alleenDeUitlegVanDeHeaderIsVertaald) {
  Vertalingen vertalingen{{uitleg, "\n/* Erkl\xC3\xA4rung, 100%s */\n"}};
  for (std::string const regel :
       {"\n/* Encoded on ", "/* Date : ", "/* WAV file : ", "/* WAV information :   \t\t*/\n",
        "/* Sampling frequency         : %d Hz\t\t*/\n",
        "/* Original size              : %d frames\t\t*/\n",
        "/* Original duration          : %.2lf s\t\t*/\n", "/* Original duration          : ",
        "/* const unsigned int ", "_adpcmNumberOfEncSamples", "_adpcmNumberOfEncSamples=%d; */\n",
        "_pcmNumberOfSamples", "_pcmNumberOfSamples=%d; */\n", "const unsigned char ",
        "unsigned char", "[] = \n{\n", "\n};\n\n", "/* end of encoded WAV file         : "}) {
    vertalingen[regel] = "VERTAALD";
  }
  CatalogusInGebruik const catalogus(vertalingen);
  std::string vertaald = verwacht(true);
  std::size_t const plaats = vertaald.find(uitleg);
  ASSERT_NE(plaats, std::string::npos);
  vertaald.replace(plaats, uitleg.size(), vertalingen[uitleg]);
  EXPECT_TRUE(zelfdeTekst(tekst(true), vertaald));
  EXPECT_TRUE(zelfdeTekst(tekst(false), verwacht(false)));
}

}  // namespace
