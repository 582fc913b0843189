// The one translated text of a fragment: the comment on the header bytes. Everything else is the
// same in every language.
#include <gtest/gtest.h>
#include <wx/translation.h>

#include <string>

#include "audio/codec/fragmentTekst.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/catalogusInGebruik.h"

namespace {

std::string const uitlegTekst =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";

template <typename Schrijver>
std::string geschreven(Schrijver schrijver) {
  wxMemoryOutputStream uit;
  FragmentTekst tekst(uit);
  schrijver(tekst);
  return tekstVan(uit);
}

TEST(FragmentVertaling, uitlegKomtUitDeCatalogus) {
  CatalogusInGebruik const catalogus(
      Vertalingen{{uitlegTekst, "\n/* Uitleg, h\xC3\xA9 100%s */\n"}});
  for (int const taal : {0, 1}) {
    EXPECT_EQ(geschreven([&](FragmentTekst& tekst) {
                tekst.schrijfHeaderUitleg({taal, "K", "n"});
              }),
              "\n/* Uitleg, h\xC3\xA9 100%s */\n");
  }
}

TEST(FragmentVertaling, zonderVertalingBlijftDeEngelseTekst) {
  CatalogusInGebruik const catalogus(Vertalingen{{"something else", "iets anders"}});
  EXPECT_EQ(geschreven([](FragmentTekst& tekst) {
              tekst.schrijfHeaderUitleg({0, "", "n"});
            }),
            uitlegTekst);
}

TEST(FragmentVertaling, deAndereRegelsWordenNietVertaald) {
  Vertalingen vertalingen;
  for (std::string const regel :
       {"/* WAV information :   \t\t*/\n", "/* WAV file : ", "\n/* Encoded on ", "/* Date : ",
        "/* Sampling frequency         : ", "/* Sampling frequency         : %d Hz\t\t*/\n",
        "/* Original size              : %d frames\t\t*/\n",
        "/* Original duration          : ", "/* Original duration          : %.2lf s\t\t*/\n",
        " s\t\t*/\n", "/* const unsigned int ", "const unsigned char ", "[] = \n{\n", "\n};\n\n",
        "/* end of encoded WAV file         : ", "nan", "0.00", "unsigned char"}) {
    vertalingen[regel] = "VERTAALD";
  }
  CatalogusInGebruik const catalogus(vertalingen);
  EXPECT_EQ(wxGetTranslation("nan"), "VERTAALD");
  std::string const tekst = geschreven([](FragmentTekst& schrijver) {
    FragmentDoel const doel{0, "", "n"};
    SF_INFO info{};
    schrijver.schrijfKop(wxFileName("n.wav"), info);
    schrijver.schrijfTelling(doel, {"_x", 1});
    schrijver.schrijfArrayKop(doel, "unsigned char");
    schrijver.schrijfRijen(VelmoraArray<unsigned char>(1));
    schrijver.schrijfEinde(wxFileName("n.wav"));
  });
  EXPECT_EQ(tekst.find("VERTAALD"), std::string::npos) << tekst;
}

}  // namespace
