// Shows a run in a progress dialog without a button to cancel. The dialog closes when this object
// dies.
#pragma once

#include <wx/progdlg.h>

#include "audio/uitvoer/uitvoerRun.h"

class wxCheckBox;

class VensterToezicht : public RunToezicht {
 public:
  // For a run over `aantal` files. The box tells whether an array has its header, and is read for
  // each. Box and window must outlive this object.
  VensterToezicht(wxWindow* ouder, wxString const& titel, wxString const& bericht,
                  std::size_t aantal, wxCheckBox const& inclHeader);

  bool metHeader(KestrolinConfig const& instellingen) override;
  void meldNietHeel(wxString const& wav) override;
  void meldGedaan(std::size_t nummer) override;

 private:
  wxProgressDialog voortgang;
  wxCheckBox const& inclHeaderVakje;
};
