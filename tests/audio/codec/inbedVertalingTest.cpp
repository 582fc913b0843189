// What the user's language does to the text of an embedded file: the lines about the format are
// translated, and nothing else is.
#include <wx/translation.h>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/catalogusInGebruik.h"

namespace {

std::string const pcmRegel = "/* WAV Format                 : WAV S16 PCM\t*/\n";
std::string const adpcmRegel = "/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n";

class InbedVertaling : public InbedProef {
 protected:
  // A text with the one line in the place of the other.
  static std::string vervangen(std::string tekst, std::string const& oud,
                               std::string const& nieuw) {
    std::size_t const plaats = tekst.find(oud);
    EXPECT_NE(plaats, std::string::npos) << oud;
    return tekst.replace(plaats, oud.size(), nieuw);
  }
};

TEST_F(InbedVertaling, regelOverHetFormaatKomtUitDeCatalogus) {
  CatalogusInGebruik const catalogus(Vertalingen{{pcmRegel, "/* Gew\xC3\xB3\xC3\xB3n, 100%s */\n"},
                                                 {adpcmRegel, "/* Klein */\n"}});
  VerwachtBlok blok;
  blok.frames = 1;
  schrijfWav(toon, {1});
  EXPECT_TRUE(zelfdeTekst(inbed(toon), vervangen(verwachteInbedding(blok, sndBeeld({1})), pcmRegel,
                                                 "/* Gew\xC3\xB3\xC3\xB3n, 100%s */\n")));
  VerwachtBlok adpcm;
  adpcm.formaat = "WAV 4 Bit IMA ADPCM";
  schrijfSnd(toon, {}, {}, wavAdpcm);
  EXPECT_TRUE(
      zelfdeTekst(inbed(toon), vervangen(verwachteInbedding(adpcm, sndBeeld({}, {}, wavAdpcm)),
                                         adpcmRegel, "/* Klein */\n")));
}

TEST_F(InbedVertaling, deAndereRegelsWordenNietVertaald) {
  Vertalingen vertalingen;
  for (std::string const regel : {"\n/* Embedded on ",
                                  "Embedded",
                                  "/* Date : ",
                                  "%Y-%m-%d",
                                  "/* WAV file : ",
                                  "/* WAV information :   \t\t*/\n",
                                  "/* Sampling frequency         : %d Hz\t\t*/\n",
                                  "/* Size                       : %ld bytes\t\t*/\n",
                                  "/* Duration                   : %.2lf s\t\t*/\n",
                                  "/* Duration                   : ",
                                  " s\t\t*/\n",
                                  "/* Full Scale gain adapted to : %d bits\t\t*/\n\n",
                                  "\t",
                                  "\t\t*/\n",
                                  "const unsigned char ",
                                  "unsigned char",
                                  "[] = \n{\n",
                                  "};\n\n",
                                  "0x%x,",
                                  "/* end of WAV file         : ",
                                  "         */\n"}) {
    vertalingen[regel] = "VERTAALD";
  }
  CatalogusInGebruik const catalogus(vertalingen);
  ASSERT_EQ(wxGetTranslation("unsigned char"), "VERTAALD");
  schrijfWav(toon, {1, 2});
  VerwachtBlok blok;
  blok.frames = 2;
  EXPECT_TRUE(zelfdeTekst(inbed(toon), verwachteInbedding(blok, sndBeeld({1, 2}))));
}

}  // namespace
