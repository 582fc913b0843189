// A status bar that screen readers know as one, and whose texts are heard.
#pragma once

#include <wx/statusbr.h>

class StatusBalk : public wxStatusBar {
 public:
  StatusBalk(wxWindow* ouder, int id, long stijl, wxString const& naam);

  // Hides the toolkit's operation, which is not virtual. Readers say each text that the program
  // sets, also where the same text comes twice. They do not say the help of a menu, which does not
  // pass here.
  void SetStatusText(wxString const& tekst, int veld = 0);

 protected:
  void DoUpdateStatusText(int veld) override;
};
