// The fixture of the tests of the language dialog: a real one, on the bare application.
#pragma once

#include <wx/button.h>
#include <wx/frame.h>
#include <wx/listbox.h>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "externals/desktop/taalDialoog.h"
#include "tests/externals/desktop/desktopProef.h"

class TaalDialoogProef : public DesktopProef {
 protected:
  static constexpr int lijstId = 0;

  // Starts the application, with a main window that the dialog belongs to.
  void startVenster() {
    start();
    venster = maakVenster();
  }

  void maak() {
    dialoog.emplace(venster, wxID_ANY, "Kies", wxDefaultPosition, wxDefaultSize,
                    wxDEFAULT_DIALOG_STYLE);
  }

  wxListBox* lijst() const { return dynamic_cast<wxListBox*>(dialoog->FindWindow(lijstId)); }
  wxButton* knop(int id) const { return dynamic_cast<wxButton*>(dialoog->FindWindow(id)); }

  // As the toolkit does it when the user selects a row.
  void kies(int rij) {
    lijst()->SetSelection(rij);
    meld();
  }
  void kies(wxString const& naam) {
    int const rij = lijst()->FindString(naam, true);
    ASSERT_NE(rij, wxNOT_FOUND) << naam.utf8_str();
    kies(rij);
  }
  void meld(int id = lijstId) {
    wxCommandEvent event(wxEVT_LISTBOX, id);
    event.SetEventObject(lijst());
    event.SetInt(lijst()->GetSelection());
    event.SetString(lijst()->GetStringSelection());
    lijst()->ProcessWindowEvent(event);
  }

  std::vector<wxString> rijen() const {
    wxArrayString const namen = lijst()->GetStrings();
    return {namen.begin(), namen.end()};
  }

  // The answer of the dialog, when the user does that to it.
  int draaiMet(std::function<void()> doet) {
    // This dialog is answered by its own buttons.
    antwoorden.Unregister();
    app().CallAfter([doet = std::move(doet)] { doet(); });
    int const antwoord = dialoog->ShowModal();
    antwoorden.Register();
    return antwoord;
  }
  void druk(int id) {
    wxCommandEvent event(wxEVT_BUTTON, id);
    event.SetEventObject(knop(id));
    knop(id)->ProcessWindowEvent(event);
  }

  // The dialog goes before the toolkit does.
  void TearDown() override { dialoog.reset(); }

  wxFrame* venster = nullptr;
  std::optional<TaalDialoog> dialoog;
};
