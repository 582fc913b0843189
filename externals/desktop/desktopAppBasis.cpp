#include "externals/desktop/desktopAppBasis.h"

#include <wx/datetime.h>
#include <wx/gdicmn.h>
#include <wx/log.h>
#include <wx/stdpaths.h>
#include <wx/translation.h>
#include <wx/utils.h>

#include "externals/desktop/configBestand.h"
#include "externals/desktop/systeem.h"
#include "numeriek/configGetal.h"

namespace {

constexpr char const* gebruikersPad = "/Gebruikersinstellingen";
constexpr char const* statistiekPad = "/Statistiek";
constexpr char const* taalSleutel = "Taal";

struct Moment {
  wxString datum;
  wxString tijd;
};

// The local date and time of now.
Moment geefMoment() {
  wxDateTime const nu = wxDateTime::Now();
  return {nu.Format("%Y-%m-%d"), nu.Format("%H:%M:%S")};
}

bool isWindows(wxOperatingSystemId systeem) {
  return systeem == wxOS_WINDOWS_9X || systeem == wxOS_WINDOWS_NT ||
         systeem == wxOS_WINDOWS_MICRO || systeem == wxOS_WINDOWS_CE;
}

// Reads the configuration. The toolkit meets a line without a key, as an editor's slip can leave
// one, with an assertion, for which there is no window yet, and reads on correctly behind it. A
// user's file is no fault of the program's, so that assertion is not heard.
std::unique_ptr<wxFileConfig> openConfig(wxString const& naam) {
  wxAssertHandler_t const vorige = wxSetAssertHandler(nullptr);
  auto config = std::make_unique<ConfigBestand>(naam, leverancier);
  wxSetAssertHandler(vorige);
  return config;
}

}  // namespace

DesktopAppBasis::DesktopAppBasis(wxString const& naam) : appConfig(openConfig(naam)) {
  // A path that holds a dollar sign is to come back as it was written.
  appConfig->SetExpandEnvVars(false);
  instantieControle.Create(naam + "-" + wxGetUserId(), "/tmp");

  Moment const start = geefMoment();
  wxConfigBase::DontCreateOnDemand();
  appConfig->SetPath(gebruikersPad);
  taal = leesGetal(*appConfig, taalSleutel, wxLANGUAGE_ENGLISH);
  appConfig->SetPath(statistiekPad);
  appConfig->Write("StartDatum", start.datum);
  appConfig->Write("StartTijd", start.tijd);

  startTaal(naam);
}

DesktopAppBasis::~DesktopAppBasis() {
  Moment const stop = geefMoment();
  appConfig->SetPath(gebruikersPad);
  appConfig->Write(taalSleutel, taal);
  appConfig->SetPath(statistiekPad);
  appConfig->Write("StopDatum", stop.datum);
  appConfig->Write("StopTijd", stop.tijd);
  appConfig->Write("OS", static_cast<int>(geefSysteem()));
  wxConfigBase::Set(nullptr);
  appConfig.reset();
}

void DesktopAppBasis::startTaal(wxString const& naam) {
  wxString const taalNaam = wxLocale::GetLanguageName(taal);
  if (isWindows(geefSysteem())) {
    wxFileTranslationsLoader::AddCatalogLookupPathPrefix(wxStandardPaths::Get().GetResourcesDir() +
                                                         R"(\..\share\locale)");
  }
  // A file edited by hand may hold the one number that the toolkit meets with an assertion.
  bool const gezet = taal != wxLANGUAGE_UNKNOWN && locale.Init(taal, wxLOCALE_LOAD_DEFAULT);
  zetTekensoort();
  if (!gezet) {
    wxLogError("Could not initialise the Locale for %s", taalNaam);
  } else if (taal != wxLANGUAGE_ENGLISH) {
    // The source texts are English, so that English needs no catalog.
    voegCatalogiToe(naam, taalNaam);
  }
}

void DesktopAppBasis::voegCatalogiToe(wxString const& naam, wxString const& taalNaam) {
  if (!locale.AddCatalog("Velmoradesktop")) {
    wxLogError("Could not add Velmora catalog for language : %s", taalNaam);
  }
  if (!locale.AddCatalog(naam)) {
    wxLogError("Could not add application language catalog for language : %s", taalNaam);
  }
}

wxString DesktopAppBasis::geefOSNaam() const {
  return geefPlatform().GetOperatingSystemDescription();
}

wxString DesktopAppBasis::geefPlatformRegel() const {
  wxPlatformInfo const& dit = geefPlatform();
  return wxPlatformInfo::GetPortIdName(dit.GetPortId(), dit.IsUsingUniversalWidgets()) + " " +
         wxPlatformInfo::GetOperatingSystemIdName(dit.GetOperatingSystemId()) + "(" +
         dit.GetBitnessName() + ")";
}

wxPlatformInfo const& DesktopAppBasis::geefPlatform() const {
  if (!platform) {
    platform.emplace();
  }
  return *platform;
}

int DesktopAppBasis::onInitRoutines() {
  constexpr int magStarten = 0;
  constexpr int afgebroken = 2;
  constexpr int minimumBreedte = 1024;
  constexpr int minimumHoogte = 768;

  if (instantieControle.IsAnotherRunning()) {
    wxLogError("%s",
               _("A running instance of this application was detected.\n Launch is cancelled."));
    return afgebroken;
  }
  wxSize const scherm = wxGetDisplaySize();
  if (scherm.GetWidth() < minimumBreedte || scherm.GetHeight() < minimumHoogte) {
    wxLogError(
        "%s",
        _("This application requires a minimum screen resolution of 1024x768 pixels.\nThe launch "
          "will be cancelled."));
    return afgebroken;
  }
  return magStarten;
}

void DesktopAppBasis::bewaarTaal(wxLanguage nieuweTaal) {
  taal = nieuweTaal;
  appConfig->SetPath(gebruikersPad);
  appConfig->Write(taalSleutel, taal);
}
