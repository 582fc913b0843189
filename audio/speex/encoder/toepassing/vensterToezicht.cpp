#include "audio/speex/encoder/toepassing/vensterToezicht.h"

#include <wx/checkbox.h>
#include <wx/evtloop.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/stattext.h>

// The time is the last of the dialog's labels.
void VoortgangVenster::toonTijd() {
  wxWindowList const& vensters = GetChildren();
  wxStaticText* tijd = nullptr;
  for (wxWindow* const venster : vensters) {
    auto* const label = dynamic_cast<wxStaticText*>(venster);
    tijd = label != nullptr ? label : tijd;
  }
  if (tijd != nullptr) {
    unsigned long verstreken = 0;
    unsigned long geschat = 0;
    unsigned long over = 0;
    UpdateTimeEstimates(GetValue(), verstreken, geschat, over);
    tijd->SetLabel(GetFormattedTime(verstreken));
  }
}

VensterToezicht::VensterToezicht(wxWindow* ouder, wxString const& titel, wxString const& bericht,
                                 std::size_t aantal, wxCheckBox const& inclHeader)
    : voortgang(titel, bericht, static_cast<int>(aantal), ouder,
                wxPD_APP_MODAL | wxPD_AUTO_HIDE | wxPD_ELAPSED_TIME),
      inclHeaderVakje(inclHeader) {}

bool VensterToezicht::metHeader(KestrolinConfig const& /*instellingen*/) {
  return inclHeaderVakje.GetValue();
}

void VensterToezicht::meldNietHeel(wxString const& wav) {
  wxLogError(_("Could not embed the whole of %s"), wav);
}

void VensterToezicht::meldGedaan(std::size_t nummer) {
  // One behind: the bar never reaches its end, so that it stays until the user has seen what comes
  // out.
  voortgang.Update(static_cast<int>(nummer) - 1, wxEmptyString);
}

void VensterToezicht::bijKlop() {
  constexpr std::chrono::milliseconds pauze(50);
  auto const nu = std::chrono::steady_clock::now();
  wxEventLoopBase* const lus = wxEventLoopBase::GetActive();
  if (nu - getekend < pauze || lus == nullptr || lus->IsYielding()) {
    return;
  }
  voortgang.toonTijd();
  lus->YieldFor(wxEVT_CATEGORY_UI);
  getekend = std::chrono::steady_clock::now();
}
