// The ground of a desktop application: its one configuration file, its locale and catalogs, the
// moments of its last start and stop, and the guard against a second copy. Knows nothing of windows
// or audio.
#pragma once

#include <wx/fileconf.h>
#include <wx/intl.h>
#include <wx/platinfo.h>
#include <wx/snglinst.h>
#include <wx/string.h>

#include <memory>
#include <optional>

#include "externals/desktop/microcontroller.h"

// The maker that the toolkit is told of.
constexpr char const* leverancier = "Velmora";

class DesktopAppBasis {
 public:
  // Opens the configuration of the application `naam`, stores the moment of the start and sets up
  // the locale and the catalogs of the configured language. What fails is logged, and the
  // application goes on in its source texts.
  explicit DesktopAppBasis(wxString const& naam);
  // Stores the language and the moment of the stop, then writes the configuration file. Nothing
  // reaches the disk earlier.
  virtual ~DesktopAppBasis();

  DesktopAppBasis(DesktopAppBasis const&) = delete;
  DesktopAppBasis& operator=(DesktopAppBasis const&) = delete;
  DesktopAppBasis(DesktopAppBasis&&) = delete;
  DesktopAppBasis& operator=(DesktopAppBasis&&) = delete;

  // Makes `nieuweTaal` the language of the next start, after asking the user.
  virtual void zetTaal(wxLanguage nieuweTaal) = 0;

  // The one configuration object, owned by this application. It has one current path, which every
  // user sets just before its reads or writes.
  wxFileConfig* geefAppConfig() const { return appConfig.get(); }
  // What the system calls the operating system that it runs on.
  wxString geefOSNaam() const;

  // The checks for applications that want one copy at a time and a screen of 1024x768: 0 when the
  // launch may go on, 2 (with a line in the log) when it is to be cancelled.
  int onInitRoutines();

 protected:
  // Stores the language of the next start in memory and in the configuration.
  void bewaarTaal(wxLanguage nieuweTaal);
  // The toolkit's port, the operating system and the architecture, as in "wxGTK Linux(64 bit)".
  wxString geefPlatformRegel() const;

 private:
  void startTaal(wxString const& naam);
  void voegCatalogiToe(wxString const& naam, wxString const& taalNaam);
  wxPlatformInfo const& geefPlatform() const;

  std::unique_ptr<wxFileConfig> appConfig;
  wxLocale locale;
  int taal;  // a wxLanguage
  // Made when it is first asked for.
  mutable std::optional<wxPlatformInfo> platform;
  IntelProcessor processor;
  wxSingleInstanceChecker instantieControle;
};
