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

}  // namespace

CatalogusInGebruik::CatalogusInGebruik(Vertalingen const& vertalingen) {
  TijdelijkeMap const map;
  maakCatalogus(map.pad("nl.mo"), vertalingen);
  // The toolkit owns both.
  auto* const talen = new wxTranslations;
  wxTranslations::Set(talen);
  talen->SetLoader(new UitBestand(map.pad("nl.mo")));
  talen->SetLanguage("nl");
  EXPECT_TRUE(talen->AddCatalog("proef", wxLANGUAGE_ENGLISH_US));
}

CatalogusInGebruik::~CatalogusInGebruik() {
  wxTranslations::Set(nullptr);
}
