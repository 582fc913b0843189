// The translated texts: the comment on the header in the array, and the lines in the log about a
// file that does not fit and about a fragment that was read back. All else is the same in every
// language.
#include <gtest/gtest.h>
#include <sndfile.h>
#include <wx/filename.h>
#include <wx/translation.h>

#include <string>

#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/steun/catalogusInGebruik.h"
#include "tests/steun/wavMaker.h"
#include "tests/steun/wxMain.h"

namespace {

using SpeexVertaling = EncoderProef;

TEST_F(SpeexVertaling, CommentOnTheHeaderComesFromTheCatalog) {
  std::string const pad = wav("toon.wav", golf(160));
  std::string verwacht = inC(Instelling(), pad);
  std::size_t const plaats = verwacht.find(uitlegRegel);
  ASSERT_NE(plaats, std::string::npos);
  std::string const vertaling = "\t/* Kop: h\xC3\xA9 100%s%n */\n";
  verwacht.replace(plaats, uitlegRegel.size(), vertaling);
  CatalogusInGebruik const catalogus(Vertalingen{{uitlegRegel, vertaling}});
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad), verwacht));
}

TEST_F(SpeexVertaling, LineAboutTheFrequencyComesFromTheCatalog) {
  CatalogusInGebruik const catalogus(
      Vertalingen{{" has a different sampling frequency (%d)\nthan the encoder (%d)",
                   " heeft een andere frequentie (%d)\ndan de h\xC3\xA9ld (%d)"}});
  EXPECT_EQ(codeer(Instelling(), wav("toon.wav", golf(160), 16000)).resultaat, 2);
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].tekst, wxTekst("toon.wav heeft een andere frequentie (16000)\n"
                                  "dan de h\xC3\xA9ld (8000)"));
}

TEST_F(SpeexVertaling, MessageAboutAFragmentComesFromTheCatalog) {
  CatalogusInGebruik const catalogus(
      Vertalingen{{"Fragment %d: sampling frequency %ld Hz, number of frames %ld",
                   "Stuk %d: h\xC3\xA9 %ld Hz, %ld frames"}});
  maakBestand(map.pad("in.c"), "{0x40,0x1f,0x00,0x00,\n};\n");
  SpeexDesktopDecoder decoder(SpeexNarrowband, nullptr);
  unsigned long long fragmenten = 0;
  EXPECT_EQ(decoder.decode(bestandsnaam(map.pad("in.c")), bestandsnaam(map.pad("uit.wav")),
                           fragmenten, SF_FORMAT_WAV | SF_FORMAT_PCM_16),
            0);
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].tekst, wxTekst("Stuk 1: h\xC3\xA9 8000 Hz, 0 frames"));
}

TEST_F(SpeexVertaling, NothingElseIsTranslated) {
  std::string const pad = wav("toon.wav", golf(160));
  Vertalingen vertalingen;
  for (std::string const tekst :
       {"false",
        "true",
        "Narrowband",
        "Fixed Bitrate",
        " \t\t*/\n",
        "/* Speex information :    \t\t*/\n",
        "/* Full Scale gain adapted to : %d bits\t\t*/\n\n",
        "/* Speex framesize                 : %d bytes\t\t*/\n",
        "/* Speex Format                    : ",
        "/* Speex Bitrate                   : ",
        "/* Speex Max Bitrate               : %ld bytes",
        "/* Speex Max Bitrate               : %ld bytes \t\t*/\n",
        "/* Speex AGC                       : ",
        "/* Speex Denoise                   : ",
        "/* Speex Voice Activated Detection : ",
        "/* Speex Quality                   : %d  \t\t*/\n",
        "/* Speex Complexity                : %d  \t\t*/\n\n",
        "/* Encoded array size              : %d bytes\t\t*/\n",
        "/* Encoded size/Original size      : %d %%\t\t*/\n",
        "/* Max bytes/encoded frame         : %d bytes\t\t*/\n\n",
        "const signed char ",
        "signed char",
        "[] = \n{\n",
        "\t(signed char)0x%x,(signed char)0x%x,(signed char)0x%x,(signed char)0x%x,\n",
        "\t0x%x,  /* Encoded Frame [%d] Size */\n\t",
        "};\n\n",
        "/* end of encoded WAV file         : "}) {
    vertalingen[tekst] = "VERTAALD";
  }
  std::string const verwacht = inC(Instelling(), pad);
  CatalogusInGebruik const catalogus(vertalingen);
  ASSERT_EQ(wxGetTranslation("Narrowband"), "VERTAALD");
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad), verwacht));
}

}  // namespace
