// Shows a run in a progress dialog without a button to cancel. The dialog closes when this object
// dies.
#pragma once

#include <wx/progdlg.h>

#include <chrono>

#include "audio/codec/hartslag.h"
#include "audio/uitvoer/uitvoerRun.h"

class wxCheckBox;

// The toolkit's own dialog, with a clock that can go on while the value stays. That of Windows runs
// in a thread of its own, and at its end can wait for ever for a message that does not come.
class VoortgangVenster : public wxGenericProgressDialog {
 public:
  using wxGenericProgressDialog::wxGenericProgressDialog;

  void toonTijd();
};

class VensterToezicht : public RunToezicht, private Hartslag {
 public:
  // For a run over `aantal` files. The box tells whether an array has its header, and is read for
  // each. Box and window must outlive this object.
  VensterToezicht(wxWindow* ouder, wxString const& titel, wxString const& bericht,
                  std::size_t aantal, wxCheckBox const& inclHeader);

  bool metHeader(KestrolinConfig const& instellingen) override;
  void meldNietHeel(wxString const& wav) override;
  void meldGedaan(std::size_t nummer) override;

 private:
  // Paints, some twenty times a second. Keys, clicks and the log wait.
  void bijKlop() override;

  VoortgangVenster voortgang;
  wxCheckBox const& inclHeaderVakje;
  std::chrono::steady_clock::time_point getekend = std::chrono::steady_clock::now();
};
