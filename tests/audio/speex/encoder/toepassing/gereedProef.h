// The fixture of the tests about settings: the steps that lead to a
// loaded fragment and a fresh result.
#pragma once

#include <wx/event.h>

#include <map>

#include "tests/audio/speex/encoder/toepassing/werkProef.h"

class GereedProef : public WerkProef {
 protected:
  // Starts with these lines below the encoder settings of the configuration file.
  void startMetSpeex(wxString const& regels);
  // Starts with C as the language, a class name for later, and a loaded fragment.
  void startGeladen();
  // The same, with the fragment encoded to PCM: a fresh result that was not saved.
  void startGecodeerd();

  // Writes a short fragment of that rate and returns its path.
  wxString maakFragment(std::string const& naam, int rate = 8000);
  void codeerPcm();

  // Sends the event of a control as it stands, also when the control is disabled.
  void stuur(wxWindow* bron, wxEventType soort);

  // Ends the application; its configuration file by keys.
  std::map<wxString, wxString> stopSleutels();
  // Ends the application; one value of the encoder settings.
  wxString stopSpeex(wxString const& sleutel);
};
