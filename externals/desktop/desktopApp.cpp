#include "externals/desktop/desktopApp.h"

#include <wx/aboutdlg.h>
#include <wx/icon.h>
#include <wx/msgdlg.h>
#include <wx/window.h>

#include "numeriek/configGetal.h"

namespace {

constexpr char const* vensterPad = "/Gebruikersinstellingen/Venster";
constexpr char const* breedteSleutel = "GrootteX";
constexpr char const* hoogteSleutel = "GrootteY";
constexpr char const* maker = "The Kestrolin team";
// The toolkit's About box looks this text up, and shows what the catalogs make of it as the names
// of the translators. Without an entry of ours it shows those of the toolkit.
[[maybe_unused]] constexpr char const* vertalersTekst = wxTRANSLATE("translator-credits");

}  // namespace

DesktopApp::DesktopApp(wxString const& naam) : DesktopAppBasis(naam) {
  SetAppName(naam);
  SetAppDisplayName(naam);
  SetVendorName(leverancier);
  SetVendorDisplayName(leverancier);
}

void DesktopApp::zetHoofdVenster(wxWindow* venster) {
  hoofdVenster = venster;
  zetHoofdVensterGrootte();
  SetTopWindow(venster);
}

void DesktopApp::zetHoofdVensterGrootte() {
  constexpr int standaardBreedte = 800;
  constexpr int standaardHoogte = 600;
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(vensterPad);
  int const breedte = leesGetal(*config, breedteSleutel, standaardBreedte);
  int const hoogte = leesGetal(*config, hoogteSleutel, standaardHoogte);
  hoofdVenster->SetClientSize(hoofdVenster->FromDIP(wxSize(breedte, hoogte)));
  hoofdVenster->Centre(wxBOTH);
}

void DesktopApp::bewaarHoofdVensterGrootte() const {
  wxSize const grootte = hoofdVenster->ToDIP(hoofdVenster->GetClientSize());
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(vensterPad);
  config->Write(breedteSleutel, grootte.GetWidth());
  config->Write(hoogteSleutel, grootte.GetHeight());
}

void DesktopApp::zetTaal(wxLanguage nieuweTaal) {
  int const antwoord = wxMessageBox(
      _("A new application language was selected.\nDo you want to proceed?\nPlease select YES to "
        "put the changes into effect and exit the application.\n You will need to restart the "
        "application for the changes to take effect."),
      _("Restart the application"), wxYES_NO, hoofdVenster);
  if (antwoord != wxYES) {
    return;
  }
  bewaarTaal(nieuweTaal);
  ExitMainLoop();
}

wxAboutDialogInfo DesktopApp::maakCopyright(wxString const& naam, wxString const& versie,
                                            wxString const& beschrijving, wxString const& copyright,
                                            wxString const& website) const {
  wxAboutDialogInfo info;
  info.SetName(naam);
  info.SetVersion(versie);
  info.SetDescription(geefPlatformRegel() + "\n" + beschrijving);
  info.SetCopyright(copyright);
  info.SetWebSite(website, website);
  info.AddDeveloper(maker);
  return info;
}

void DesktopApp::toonCopyright(wxString const& naam, wxString const& versie,
                               wxString const& beschrijving, wxString const& copyright,
                               wxString const& website) const {
  wxAboutBox(maakCopyright(naam, versie, beschrijving, copyright, website), hoofdVenster);
}

void DesktopApp::toonCopyright(wxString const& naam, wxString const& versie,
                               wxString const& beschrijving, wxString const& copyright,
                               wxString const& website, wxIcon const& icoon) const {
  wxAboutDialogInfo info = maakCopyright(naam, versie, beschrijving, copyright, website);
  info.SetIcon(icoon);
  wxAboutBox(info, hoofdVenster);
}
