// The two translated texts of the encoder: the comment on the header in the array, and the line in
// the log about a file that does not fit. All else is the same in every language.
#include <gtest/gtest.h>
#include <wx/translation.h>

#include <map>
#include <string>
#include <utility>

#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/desktop/catalogusMaker.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/steun/wxMain.h"

namespace {

class UitBestand : public wxTranslationsLoader {
 public:
  explicit UitBestand(std::string mo) : pad(std::move(mo)) {}

  wxMsgCatalog* LoadCatalog(wxString const& domein, wxString const& /*taal*/) override {
    return wxMsgCatalog::CreateFromFile(wxTekst(pad), domein);
  }
  wxArrayString GetAvailableTranslations(wxString const& /*domein*/) const override {
    wxArrayString talen;
    talen.Add("nl");
    return talen;
  }

 private:
  std::string pad;
};

// A catalog in use for the length of a test.
class EncoderVertaling : public EncoderProef {
 protected:
  void gebruik(std::map<std::string, std::string> const& vertalingen) {
    maakCatalogus(map.pad("nl.mo"), vertalingen);
    auto* const talen = new wxTranslations;
    wxTranslations::Set(talen);
    talen->SetLoader(new UitBestand(map.pad("nl.mo")));
    talen->SetLanguage("nl");
    ASSERT_TRUE(talen->AddCatalog("proef", wxLANGUAGE_ENGLISH_US));
  }
  void TearDown() override { wxTranslations::Set(nullptr); }
};

TEST_F(EncoderVertaling, CommentOnTheHeaderComesFromTheCatalog) {
  std::string const pad = wav("toon.wav", golf(160));
  std::string verwacht = inC(Instelling(), pad);
  std::size_t const plaats = verwacht.find(uitlegRegel);
  ASSERT_NE(plaats, std::string::npos);
  std::string const vertaling = "\t/* Kop: h\xC3\xA9 100%s%n */\n";
  verwacht.replace(plaats, uitlegRegel.size(), vertaling);
  gebruik({{uitlegRegel, vertaling}});
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad), verwacht));
}

TEST_F(EncoderVertaling, LineAboutTheFrequencyComesFromTheCatalog) {
  gebruik({{" has a different sampling frequency (%d)\nthan the encoder (%d)",
            " heeft een andere frequentie (%d)\ndan de h\xC3\xA9ld (%d)"}});
  EXPECT_EQ(codeer(Instelling(), wav("toon.wav", golf(160), 16000)).resultaat, 2);
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].tekst, wxTekst("toon.wav heeft een andere frequentie (16000)\n"
                                  "dan de h\xC3\xA9ld (8000)"));
}

TEST_F(EncoderVertaling, NothingElseIsTranslated) {
  std::string const pad = wav("toon.wav", golf(160));
  std::map<std::string, std::string> vertalingen;
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
  gebruik(vertalingen);
  ASSERT_EQ(wxGetTranslation("Narrowband"), "VERTAALD");
  EXPECT_TRUE(zelfdeTekst(inC(Instelling(), pad), verwacht));
}

}  // namespace
