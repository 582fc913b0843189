#include "audio/speex/encoder/toepassing/vensterToezicht.h"

#include <wx/checkbox.h>
#include <wx/intl.h>
#include <wx/log.h>

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
