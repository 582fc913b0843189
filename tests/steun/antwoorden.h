// Answers the modal dialogs of a test in the user's place. Nothing is shown: each dialog is looked
// at, noted, and ended with the next prepared answer; one that no answer was prepared for fails the
// test and is cancelled.
#pragma once

#include <wx/defs.h>
#include <wx/modalhook.h>
#include <wx/string.h>

#include <deque>
#include <functional>
#include <vector>

class wxDialog;
class wxFileDialog;
class wxWindow;

// What a message box said.
struct Bericht {
  wxString titel;
  wxString tekst;
  long stijl;
  wxWindow* ouder;
};

// What a file dialog was opened with.
struct BestandsVraag {
  wxString bericht;
  wxString map;
  wxString naam;
  wxString filter;
  long stijl;
  wxWindow* ouder;
};

// What a dialog of the program's own was opened with.
struct EigenDialoog {
  wxString titel;
  wxWindow* ouder;
};

class Antwoorden : public wxModalDialogHook {
 public:
  // Prepares the answer to a message box: wxID_YES, wxID_NO, wxID_OK or wxID_CANCEL. `tijdens` runs
  // while the box would stand.
  void opBericht(int antwoord, std::function<void()> tijdens = nullptr);
  // Prepares a chosen path for a file dialog, or its cancelling.
  void opBestandsVraag(wxString const& pad);
  void opBestandsVraagAnnuleren();
  // Prepares what a user does in a dialog of the program's own: `doet` gets the real one, which
  // does not stand on the screen, can send it the events of its controls, and returns what ends it.
  void opEigenDialoog(std::function<int(wxDialog& dialoog)> doet);

  // True when every prepared answer was used.
  bool isOp() const { return wachtrij.empty(); }
  // Forgets the answers that were not used.
  void wis() { wachtrij.clear(); }

  std::vector<Bericht> berichten;
  std::vector<BestandsVraag> bestandsVragen;
  std::vector<EigenDialoog> eigenDialogen;

 protected:
  int Enter(wxDialog* dialoog) override;

 private:
  enum class Soort { bericht, bestand, eigen };
  struct Antwoord {
    Soort soort;
    int id = wxID_CANCEL;
    wxString pad;
    std::function<void()> tijdens;
    std::function<int(wxDialog&)> doet;
  };

  static Soort soortVan(wxDialog& dialoog);

  int beantwoordBestand(wxFileDialog& dialoog, Antwoord const& antwoord);

  std::deque<Antwoord> wachtrij;
};
