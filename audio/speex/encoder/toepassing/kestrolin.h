// The application of this tool: the encoder settings on top of the desktop frame, and the main
// window.
#pragma once

#include "audio/uitvoer/kestrolinConfig.h"
#include "externals/desktop/desktopApp.h"

class HoofdVenster;

class Kestrolin : public DesktopApp {
 public:
  // Reads the settings. A key that is missing or holds no number gets its default.
  Kestrolin();
  // Writes the settings, also those that were never changed.
  ~Kestrolin() override;

  Kestrolin(Kestrolin const&) = delete;
  Kestrolin& operator=(Kestrolin const&) = delete;
  Kestrolin(Kestrolin&&) = delete;
  Kestrolin& operator=(Kestrolin&&) = delete;

  // Builds and shows the main window; always true. The toolkit's own command line handling is left
  // out, for the tool takes no command line. Neither a second copy nor a small screen stops the
  // start: the frame's checks for those (onInitRoutines) are left uncalled.
  bool OnInit() override;

  // The live record. It lives as long as the application.
  KestrolinConfig& geefInstellingen() { return instellingen; }

 private:
  KestrolinConfig instellingen;
  HoofdVenster* venster = nullptr;  // owned by the toolkit, as a top-level window
};

wxDECLARE_APP(Kestrolin);
