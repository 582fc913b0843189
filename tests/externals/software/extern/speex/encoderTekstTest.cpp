// The text of one Speex fragment as a whole, in each language, with header and without. The frames
// in it come from a loop over the Speex library.
#include <gtest/gtest.h>
#include <wx/mstream.h>

#include <algorithm>

#include "numeriek/percentage.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

// 160 samples at quality 8: 15 kbit/s for 20 ms are 300 bits, or 38 bytes, and with the size byte
// 39 for 160 samples, which are 24.4 per cent.
class EenFrame : public EncoderProef {
 protected:
  std::string in(SpeexEncoderOpties const& opties, bool metHeader) {
    SpeexDesktopEncoder encoder(Instelling().config(), opties);
    Codering const uitslag = codeer(encoder, wav("toon.wav", samples), metHeader);
    EXPECT_EQ(uitslag.resultaat, 0);
    EXPECT_EQ(uitslag.verhouding, 24.0);
    return zonderMoment(uitslag.tekst);
  }

  std::vector<int> samples = spraak(160, 8000);
  std::string kop = bestandRegels("toon.wav", "8000", "160", "0.02") + InstelRegels().tekst() +
                    omvangRegels("39", "24", "38");
  std::string header =
      uitlegRegel + "\t(signed char)0x40,(signed char)0x1f,(signed char)0xa0,(signed char)0x0,\n";
  std::string einde =
      frameRegels(LosseEncoder(Instelling()).bestand(samples)) + slotRegels("toon.wav");
};

TEST_F(EenFrame, InCWithHeader) {
  EXPECT_TRUE(zelfdeTekst(in(SpeexEncoderOpties(), true),
                          kop + "const signed char toon[] = \n{\n" + header + einde));
}

TEST_F(EenFrame, InCWithoutHeaderTheArrayStartsWithTheSizeOfItsFirstFrame) {
  EXPECT_TRUE(zelfdeTekst(in(SpeexEncoderOpties(), false),
                          kop + "const signed char toon[] = \n{\n" + einde));
}

TEST_F(EenFrame, InCTheClassDoesNotMatter) {
  SpeexEncoderOpties opties("Klank");
  opties.taal = 0;
  EXPECT_TRUE(zelfdeTekst(in(opties, false), kop + "const signed char toon[] = \n{\n" + einde));
}

TEST_F(EenFrame, InCppWithHeader) {
  EXPECT_TRUE(zelfdeTekst(in(SpeexEncoderOpties("Klank"), true),
                          kop + "const signed char Klank::toon[] = \n{\n" + header + einde));
}

TEST_F(EenFrame, InCppWithoutHeader) {
  EXPECT_TRUE(zelfdeTekst(in(SpeexEncoderOpties("Klank"), false),
                          kop + "const signed char Klank::toon[] = \n{\n" + einde));
}

TEST_F(EenFrame, EmptyClassLeavesTheTwoColons) {
  EXPECT_TRUE(zelfdeTekst(in(SpeexEncoderOpties(""), false),
                          kop + "const signed char ::toon[] = \n{\n" + einde));
}

TEST_F(EenFrame, ClassIsNeverAPattern) {
  EXPECT_TRUE(zelfdeTekst(in(SpeexEncoderOpties(wxTekst("A%s%n::h\xC3\xA9")), false),
                          kop + "const signed char A%s%n::h\xC3\xA9::toon[] = \n{\n" + einde));
}

TEST_F(EenFrame, OtherLanguagesGiveTheCommentsAndNoArray) {
  struct Taal {
    int taal;
    int resultaat;
  };
  for (Taal const& geval : {Taal{2, 2}, {3, 3}, {7, 3}, {-1, 3}}) {
    for (bool const metHeader : {true, false}) {
      SpeexEncoderOpties opties("Klank");
      opties.taal = geval.taal;
      SpeexDesktopEncoder encoder(Instelling().config(), opties);
      Codering const uitslag = codeer(encoder, wav("toon.wav", samples), metHeader);
      EXPECT_EQ(uitslag.resultaat, geval.resultaat);
      EXPECT_EQ(uitslag.verhouding, 24.0);
      EXPECT_TRUE(zelfdeTekst(zonderMoment(uitslag.tekst), kop)) << geval.taal;
    }
  }
}

// Two files through one encoder into one stream, behind something else.
TEST_F(EenFrame, TextIsAppendedToTheStream) {
  SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
  std::string const pad = wav("toon.wav", samples);
  wxMemoryOutputStream uit;
  uit.Write("before\n", 7);
  Percentage verhouding;
  ASSERT_EQ(encoder.encode(bestandsnaam(pad), uit, true, verhouding), 0);
  ASSERT_EQ(encoder.encode(bestandsnaam(pad), uit, true, verhouding), 0);
  std::string const tekst = tekstVan(uit);
  std::size_t const tweede = tekst.find("\n/* Encoded on", 10);
  ASSERT_NE(tweede, std::string::npos);
  LosseEncoder los{Instelling()};
  std::string const arrayKop = "const signed char toon[] = \n{\n" + header;
  std::string const eersteFrame = frameRegels(los.bestand(samples));
  std::string const tweedeFrame = frameRegels(los.bestand(samples));
  EXPECT_TRUE(zelfdeTekst(zonderMoment(tekst.substr(0, tweede)),
                          "before\n" + kop + arrayKop + eersteFrame + slotRegels("toon.wav")));
  EXPECT_TRUE(zelfdeTekst(zonderMoment(tekst.substr(tweede)),
                          kop + arrayKop + tweedeFrame + slotRegels("toon.wav")));
}

TEST(SpeexEncoderOpties, WithoutAClassItIsC) {
  EXPECT_EQ(SpeexEncoderOpties().taal, 0);
  EXPECT_EQ(SpeexEncoderOpties().klasseNaam, "");
}

TEST(SpeexEncoderOpties, WithAClassItIsCpp) {
  EXPECT_EQ(SpeexEncoderOpties("Klank").taal, 1);
  EXPECT_EQ(SpeexEncoderOpties("Klank").klasseNaam, "Klank");
  EXPECT_EQ(SpeexEncoderOpties("").taal, 1);
}

}  // namespace
