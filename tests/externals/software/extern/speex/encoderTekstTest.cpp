// The text of one Speex fragment as a whole, in each language, with header and without. The frames
// in it come from a loop over the Speex library.
#include <gtest/gtest.h>
#include <wx/mstream.h>

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
  // With an array of that name, and without a header and with one.
  void verwacht(SpeexEncoderOpties const& opties, std::string const& naam) {
    std::string const arrayKop = kop + "const signed char " + naam + "[] = \n{\n";
    EXPECT_TRUE(zelfdeTekst(in(opties, false), arrayKop + einde));
    EXPECT_TRUE(zelfdeTekst(in(opties, true), arrayKop + header + einde));
  }

  std::vector<int> samples = spraak(160, 8000);
  std::string kop = "\n/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n" + momentRegel +
                    "/* WAV file : toon.wav\t\t*/\n"
                    "/* WAV information :   \t\t*/\n"
                    "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                    "/* Original size              : 160 frames\t\t*/\n"
                    "/* Original duration          : 0.02 s\t\t*/\n"
                    "/* Full Scale gain adapted to : 16 bits\t\t*/\n\n"
                    "/* Speex information :    \t\t*/\n"
                    "/* Speex framesize                 : 160 bytes\t\t*/\n"
                    "/* Speex Format                    : Narrowband \t\t*/\n"
                    "/* Speex Bitrate                   : Fixed Bitrate \t\t*/\n"
                    "/* Speex Max Bitrate               : 16000 bytes \t\t*/\n"
                    "/* Speex AGC                       : false \t\t*/\n"
                    "/* Speex Denoise                   : false \t\t*/\n"
                    "/* Speex Voice Activated Detection : false \t\t*/\n"
                    "/* Speex Quality                   : 8  \t\t*/\n"
                    "/* Speex Complexity                : 3  \t\t*/\n\n"
                    "/* Encoded array size              : 39 bytes\t\t*/\n"
                    "/* Encoded size/Original size      : 24 %\t\t*/\n"
                    "/* Max bytes/encoded frame         : 38 bytes\t\t*/\n\n";
  std::string header =
      uitlegRegel + "\t(signed char)0x40,(signed char)0x1f,(signed char)0xa0,(signed char)0x0,\n";
  std::string einde =
      frameRegels(LosseEncoder(Instelling()).bestand(samples)) + slotRegels("toon.wav");
};

TEST_F(EenFrame, InCTheArrayStartsWithTheHeaderOrWithTheSizeOfItsFirstFrame) {
  verwacht(SpeexEncoderOpties(), "toon");
}

TEST_F(EenFrame, InCTheClassDoesNotMatter) {
  SpeexEncoderOpties opties("Klank");
  opties.taal = 0;
  verwacht(opties, "toon");
}

TEST_F(EenFrame, InCppTheArrayBelongsToItsClass) {
  verwacht(SpeexEncoderOpties("Klank"), "Klank::toon");
}

TEST_F(EenFrame, EmptyClassLeavesTheTwoColons) {
  verwacht(SpeexEncoderOpties(""), "::toon");
}

TEST_F(EenFrame, ClassIsNeverAPattern) {
  verwacht(SpeexEncoderOpties(wxTekst("A%s%n::h\xC3\xA9")), "A%s%n::h\xC3\xA9::toon");
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

TEST_F(EenFrame, TextIsAppendedToTheStream) {
  SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
  wxFileName const bestand = bestandsnaam(wav("toon.wav", samples));
  wxMemoryOutputStream uit;
  uit.Write("before\n", 7);
  Percentage verhouding;
  std::string verwacht = "before\n";
  LosseEncoder los{Instelling()};
  for (int keer = 0; keer < 2; ++keer) {
    ASSERT_EQ(encoder.encode(bestand, uit, true, verhouding), 0);
    verwacht += fragmentTekst("toon", 160, los.bestand(samples));
  }
  EXPECT_TRUE(zelfdeTekst(zonderMomenten(tekstVan(uit)), verwacht));
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
