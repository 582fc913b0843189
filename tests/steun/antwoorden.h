// Answers the modal dialogs of a test in the user's place. Nothing is shown: each dialog is looked
// at, noted, and ended with the next prepared answer; one that no answer was prepared for fails the
// test and is cancelled.
#pragma once

#include <wx/modalhook.h>
#include <wx/string.h>

#include <deque>
#include <functional>
#include <vector>

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

class Antwoorden : public wxModalDialogHook {
 public:
  // Prepares the answer to a message box: wxID_YES, wxID_NO, wxID_OK or wxID_CANCEL. `tijdens` runs
  // while the box would stand.
  void opBericht(int antwoord, std::function<void()> tijdens = nullptr);
  // Prepares a chosen path for a file dialog, or its cancelling.
  void opBestandsVraag(wxString const& pad);
  void opBestandsVraagAnnuleren();

  // True when every prepared answer was used.
  bool isOp() const { return wachtrij.empty(); }

  std::vector<Bericht> berichten;
  std::vector<BestandsVraag> bestandsVragen;

 protected:
  int Enter(wxDialog* dialoog) override;

 private:
  struct Antwoord {
    bool bestand;
    int id;
    wxString pad;
    std::function<void()> tijdens;
  };

  int beantwoordBestand(wxFileDialog& dialoog, Antwoord const& antwoord);

  std::deque<Antwoord> wachtrij;
};
