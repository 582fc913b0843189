// A configuration file that is written whole or not at all.
#pragma once

#include <wx/fileconf.h>
#include <wx/string.h>

class wxMemoryOutputStream;

// As the toolkit's, but always in UTF-8. The toolkit's goes by its writes alone: it puts the new
// file in the old one's place also where the disk tells only behind the writes that it had no room,
// and it removes the old file before.
class ConfigBestand : public wxFileConfig {
 public:
  // The file of the application `naam` in the user's home, with the system's own below it.
  ConfigBestand(wxString const& naam, wxString const& leverancier);
  ~ConfigBestand() override;
  ConfigBestand(ConfigBestand const&) = delete;
  ConfigBestand& operator=(ConfigBestand const&) = delete;
  ConfigBestand(ConfigBestand&&) = delete;
  ConfigBestand& operator=(ConfigBestand&&) = delete;

  // Writes the whole file. Where that fails, the file of before stays, and the log tells.
  bool Flush(bool alleenHuidige = false) override;

 private:
  // Nothing, or what went wrong.
  wxString schrijf(wxMemoryOutputStream const& tekst) const;

  wxString pad;
};
