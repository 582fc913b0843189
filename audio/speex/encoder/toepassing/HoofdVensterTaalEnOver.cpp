// The language dialog and the About box.
#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/intl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "audio/speex/encoder/toepassing/logo/parrot.xpm"
#include "externals/desktop/taalDialoog.h"

namespace {

wxIcon maakLogo() {
  constexpr int breedte = 360;
  constexpr int hoogte = 160;
  wxImage const beeld = wxImage(parrot).Scale(breedte, hoogte, wxIMAGE_QUALITY_HIGH);
  wxIcon logo;
  logo.CopyFromBitmap(wxBitmap(beeld));
  return logo;
}

}  // namespace

void HoofdVenster::taalHandler(wxCommandEvent& /*event*/) {
  Bezigheid const nu(bezig);
  // The one source text that is Dutch.
  TaalDialoog dialoog(this, wxID_ANY, _("Kies een taal"), wxDefaultPosition, wxDefaultSize,
                      wxDEFAULT_DIALOG_STYLE);
  if (dialoog.ShowModal() == wxID_OK) {
    wxGetApp().zetTaal(dialoog.geefTaal());
  }
}

void HoofdVenster::onAbout(wxCommandEvent& /*event*/) {
  wxString const versie = wxString("1") + "." + "1";
  wxIcon const logo = maakLogo();
  wxString const copyright =
      _("Speex codec (c) Xiph.Org Foundation\nKestrolin (c) 2026 The Kestrolin team");
  wxString const beschrijving =
      _("This program converts audio fragments\nfrom WAV format into speex arrays\nfor use in "
        "embedded applications.");
  wxString const naam = _("Kestrolin");
  wxGetApp().toonCopyright(naam, versie, beschrijving, copyright, "https://kestrolin.example",
                           logo);
}
