#include "tests/steun/catalogusInGebruik.h"

#include <gtest/gtest.h>
#include <wx/arrstr.h>
#include <wx/translation.h>

#include <utility>

#include "tests/steun/catalogusMaker.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

class UitBestand : public wxTranslationsLoader {
 public:
  explicit UitBestand(std::string mo) : pad(std::move(mo)) {}

  wxMsgCatalog* LoadCatalog(wxString const& domein, wxString const& /*taal*/) override {
    return wxMsgCatalog::CreateFromFile(wxString::FromUTF8(pad), domein);
  }
  wxArrayString GetAvailableTranslations(wxString const& /*domein*/) const override {
    wxArrayString talen;
    talen.Add("nl");
    return talen;
  }

 private:
  std::string pad;
};

// Whatever the language, the toolkit takes it for Dutch.
void neem(std::string const& mo) {
  // The toolkit owns both.
  auto* const talen = new wxTranslations;
  wxTranslations::Set(talen);
  talen->SetLoader(new UitBestand(mo));
  talen->SetLanguage("nl");
  EXPECT_TRUE(talen->AddCatalog("proef", wxLANGUAGE_ENGLISH_US)) << mo;
}

}  // namespace

CatalogusInGebruik::CatalogusInGebruik(Vertalingen const& vertalingen) {
  TijdelijkeMap const map;
  maakCatalogus(map.pad("nl.mo"), vertalingen);
  neem(map.pad("nl.mo"));
}

CatalogusInGebruik::CatalogusInGebruik(std::string const& mo) {
  neem(mo);
}

CatalogusInGebruik::~CatalogusInGebruik() {
  wxTranslations::Set(nullptr);
}
