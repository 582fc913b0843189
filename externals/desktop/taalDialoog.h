// The dialog in which the user chooses the language of the application's texts.
#pragma once

#include <wx/dialog.h>
#include <wx/intl.h>

class wxButton;
class wxListBox;

class TaalDialoog : public wxDialog {
 public:
  // Opens on the first row of the sorted list, whatever language is in force.
  TaalDialoog(wxWindow* parent, int id, wxString const& title, wxPoint const& pos,
              wxSize const& size, long style);

  // The language chosen so far: until the user selects a row, German. Its name has to stand in the
  // first row, also by the names that a catalog gives.
  wxLanguage geefTaal() const { return static_cast<wxLanguage>(taal); }

  void lijstKeuzeHandler(wxCommandEvent& event);

 private:
  void set_properties();
  void do_layout();

  wxListBox* taalLijst = nullptr;
  wxButton* okKnop = nullptr;
  wxButton* annuleerKnop = nullptr;
  int taal = wxLANGUAGE_GERMAN;  // a wxLanguage

  wxDECLARE_EVENT_TABLE();
};
