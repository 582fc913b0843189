// A status bar that screen readers know as one, and whose texts are heard.
#pragma once

#include <wx/statusbr.h>

class StatusBalk : public wxStatusBar {
 public:
  StatusBalk(wxWindow* ouder, int id, long stijl, wxString const& naam);

  // Hides the toolkit's on purpose, which is not virtual: what the program says is heard, the same
  // text twice as well. What a menu puts there and takes away again goes past this, and is not.
  void SetStatusText(wxString const& tekst, int veld = 0);

 protected:
  void DoUpdateStatusText(int veld) override;
};
