// A windowed application on top of DesktopAppBasis: knows its main window, remembers that window's
// size, changes the language, and shows who made it.
#pragma once

#include <wx/app.h>

#include "externals/desktop/desktopAppBasis.h"

class wxAboutDialogInfo;
class wxIcon;
class wxWindow;

class DesktopApp : public wxApp, public DesktopAppBasis {
 public:
  explicit DesktopApp(wxString const& naam);

  // Makes `venster`, which is not owned, the main window: gives it the remembered size and makes it
  // the application's top window.
  void zetHoofdVenster(wxWindow* venster);

  // Gives the main window the client size of the configuration, in pixels of the usual 96 to the
  // inch (800x600 where there is none), and centres it.
  void zetHoofdVensterGrootte();
  // Stores the main window's client size in the configuration. Applications call it where they
  // want the size to outlive a run.
  void bewaarHoofdVensterGrootte() const;

  // Asks whether to end the application so that `nieuweTaal` takes effect at the next start. On any
  // answer but yes the new language is forgotten. On yes it is stored and the main loop ends,
  // without a question about unsaved work.
  void zetTaal(wxLanguage nieuweTaal) override;

  // Shows the About box, which does not wait for its end. A line about the platform stands above
  // `beschrijving`; `website` is an address, and stands there as it is. The second one shows
  // `icoon` too.
  void toonCopyright(wxString const& naam, wxString const& versie, wxString const& beschrijving,
                     wxString const& copyright, wxString const& website) const;
  void toonCopyright(wxString const& naam, wxString const& versie, wxString const& beschrijving,
                     wxString const& copyright, wxString const& website, wxIcon const& icoon) const;

 private:
  wxAboutDialogInfo maakCopyright(wxString const& naam, wxString const& versie,
                                  wxString const& beschrijving, wxString const& copyright,
                                  wxString const& website) const;

  wxWindow* hoofdVenster = nullptr;
};
