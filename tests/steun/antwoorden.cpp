#include "tests/steun/antwoorden.h"

#include <gtest/gtest.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>

#include "tests/steun/geduld.h"

void Antwoorden::opBericht(int antwoord, std::function<void()> tijdens) {
  wachtrij.push_back({Soort::bericht, antwoord, wxEmptyString, std::move(tijdens), nullptr});
}

void Antwoorden::opBestandsVraag(wxString const& pad) {
  wachtrij.push_back({Soort::bestand, wxID_OK, pad, nullptr, nullptr});
}

void Antwoorden::opBestandsVraagAnnuleren() {
  wachtrij.push_back({Soort::bestand, wxID_CANCEL, wxEmptyString, nullptr, nullptr});
}

void Antwoorden::opEigenDialoog(std::function<int(wxDialog& dialoog)> doet) {
  wachtrij.push_back({Soort::eigen, wxID_CANCEL, wxEmptyString, nullptr, std::move(doet)});
}

Antwoorden::Soort Antwoorden::soortVan(wxDialog& dialoog) {
  if (dynamic_cast<wxMessageDialog*>(&dialoog) != nullptr) {
    return Soort::bericht;
  }
  return dynamic_cast<wxFileDialog*>(&dialoog) != nullptr ? Soort::bestand : Soort::eigen;
}

int Antwoorden::Enter(wxDialog* dialoog) {
  wxString const titel = dialoog->GetTitle();
  auto* const bericht = dynamic_cast<wxMessageDialog*>(dialoog);
  auto* const bestand = dynamic_cast<wxFileDialog*>(dialoog);
  if (wachtrij.empty() || wachtrij.front().soort != soortVan(*dialoog)) {
    wxString const tekst = bericht != nullptr ? bericht->GetMessage() : titel;
    ADD_FAILURE() << "unexpected dialog: " << tekst.utf8_str();
    return wxID_CANCEL;
  }
  Antwoord const antwoord = wachtrij.front();
  wachtrij.pop_front();
  if (bestand != nullptr) {
    return beantwoordBestand(*bestand, antwoord);
  }
  if (bericht == nullptr) {
    eigenDialogen.push_back({titel, dialoog->GetParent()});
    return antwoord.doet(*dialoog);
  }
  berichten.push_back({bericht->GetCaption(), bericht->GetMessage(),
                       bericht->GetMessageDialogStyle(), bericht->GetParent()});
  if (antwoord.tijdens) {
    antwoord.tijdens();
  }
  return antwoord.id;
}

int Antwoorden::beantwoordBestand(wxFileDialog& dialoog, Antwoord const& antwoord) {
  // The directory and the name as the program asked for them: GTK tells them only once it has read
  // the folder, so they come from the toolkit's own fields where it keeps them.
  bestandsVragen.push_back({dialoog.GetMessage(), dialoog.GetDirectory(),
                            dialoog.HasFlag(wxFD_MULTIPLE) ? wxString() : dialoog.GetFilename(),
                            dialoog.GetWildcard(), dialoog.GetWindowStyle(), dialoog.GetParent()});
  if (antwoord.id != wxID_OK) {
    return antwoord.id;
  }
  dialoog.SetPath(antwoord.pad);
  // GTK works its folder off in idle time.
  wxArrayString paden;
  if (wachtTot([&] {
        dialoog.GetPaths(paden);
        return !paden.empty() && paden[0] == antwoord.pad;
      })) {
    return wxID_OK;
  }
  ADD_FAILURE() << "the file dialog did not take " << antwoord.pad.utf8_str() << " but has "
                << (paden.empty() ? "nothing" : paden[0].utf8_str().data());
  return wxID_CANCEL;
}
