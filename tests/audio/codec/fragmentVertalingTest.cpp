// The one translated text of a fragment: the comment on the header bytes. Everything else is the
// same in every language.
#include <gtest/gtest.h>
#include <wx/translation.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "audio/codec/fragmentTekst.h"
#include "tests/audio/codec/codecHulp.h"

namespace {

std::string const uitlegTekst =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";

// A compiled catalog: magic, version 0, count, the two tables of lengths and places, no hash table,
// and then the texts, each closed by a zero byte.
std::string catalogus(std::map<std::string, std::string> const& vertalingen) {
  auto const aantal = vertalingen.size();
  std::size_t const kop = 28;
  std::string tabellen;
  std::string teksten;
  auto voegToe = [&](std::string const& tekst) {
    for (std::size_t const getal : {tekst.size(), kop + 16 * aantal + teksten.size()}) {
      Bytes const bytes = laagEerst(getal, 4);
      tabellen.append(bytes.begin(), bytes.end());
    }
    teksten += tekst + '\0';
  };
  for (auto const& paar : vertalingen) {
    voegToe(paar.first);
  }
  for (auto const& paar : vertalingen) {
    voegToe(paar.second);
  }
  std::string mo;
  for (std::size_t const getal : {std::size_t{0x950412DE}, std::size_t{0}, aantal, kop,
                                  kop + 8 * aantal, std::size_t{0}, kop + 16 * aantal}) {
    Bytes const bytes = laagEerst(getal, 4);
    mo.append(bytes.begin(), bytes.end());
  }
  return mo + tabellen + teksten;
}

class UitGeheugen : public wxTranslationsLoader {
 public:
  explicit UitGeheugen(std::string mo) : inhoud(std::move(mo)) {}

  wxMsgCatalog* LoadCatalog(wxString const& domein, wxString const& /*taal*/) override {
    wxCharBuffer mo(inhoud.size());
    std::copy(inhoud.begin(), inhoud.end(), mo.data());
    return wxMsgCatalog::CreateFromData(mo, domein);
  }
  wxArrayString GetAvailableTranslations(wxString const& /*domein*/) const override {
    wxArrayString talen;
    talen.Add("nl");
    return talen;
  }

 private:
  std::string inhoud;
};

// A catalog in use for the length of a test.
class FragmentVertaling : public testing::Test {
 protected:
  void gebruik(std::map<std::string, std::string> vertalingen) {
    vertalingen[""] = "Content-Type: text/plain; charset=UTF-8\n";
    auto* const talen = new wxTranslations;
    wxTranslations::Set(talen);
    talen->SetLoader(new UitGeheugen(catalogus(vertalingen)));
    talen->SetLanguage("nl");
    ASSERT_TRUE(talen->AddCatalog("proef", wxLANGUAGE_ENGLISH_US));
  }
  void TearDown() override { wxTranslations::Set(nullptr); }
};

template <typename Schrijver>
std::string geschreven(Schrijver schrijver) {
  wxMemoryOutputStream uit;
  FragmentTekst tekst(uit);
  schrijver(tekst);
  return tekstVan(uit);
}

TEST_F(FragmentVertaling, uitlegKomtUitDeCatalogus) {
  gebruik({{uitlegTekst, "\n/* Uitleg, h\xC3\xA9 100%s */\n"}});
  for (int const taal : {0, 1}) {
    EXPECT_EQ(geschreven([&](FragmentTekst& tekst) {
                tekst.schrijfHeaderUitleg({taal, "K", "n"});
              }),
              "\n/* Uitleg, h\xC3\xA9 100%s */\n");
  }
}

TEST_F(FragmentVertaling, zonderVertalingBlijftDeEngelseTekst) {
  gebruik({{"something else", "iets anders"}});
  EXPECT_EQ(geschreven([](FragmentTekst& tekst) {
              tekst.schrijfHeaderUitleg({0, "", "n"});
            }),
            uitlegTekst);
}

TEST_F(FragmentVertaling, deAndereRegelsWordenNietVertaald) {
  std::map<std::string, std::string> vertalingen;
  for (std::string const regel :
       {"/* WAV information :   \t\t*/\n", "/* WAV file : ", "\n/* Encoded on ", "/* Date : ",
        "/* Sampling frequency         : ", "/* Sampling frequency         : %d Hz\t\t*/\n",
        "/* Original size              : %d frames\t\t*/\n",
        "/* Original duration          : ", "/* Original duration          : %.2lf s\t\t*/\n",
        " s\t\t*/\n", "/* const unsigned int ", "const unsigned char ", "[] = \n{\n", "\n};\n\n",
        "/* end of encoded WAV file         : ", "nan", "0.00", "unsigned char"}) {
    vertalingen[regel] = "VERTAALD";
  }
  gebruik(vertalingen);
  EXPECT_EQ(wxGetTranslation("nan"), "VERTAALD");
  std::string const tekst = geschreven([](FragmentTekst& schrijver) {
    FragmentDoel const doel{0, "", "n"};
    SF_INFO info{};
    schrijver.schrijfKop(wxFileName("n.wav"), info);
    schrijver.schrijfTelling(doel, "_x", 1);
    schrijver.schrijfArrayKop(doel, "unsigned char");
    schrijver.schrijfRijen(VelmoraArray<unsigned char>(1));
    schrijver.schrijfEinde(wxFileName("n.wav"));
  });
  EXPECT_EQ(tekst.find("VERTAALD"), std::string::npos) << tekst;
}

}  // namespace
