#include "tests/audio/speex/encoder/toepassing/voortgangOproepen.h"

#include <sndfile.h>
#include <wx/progdlg.h>

#include "tests/audio/speex/encoder/toepassing/werkProef.h"

// The libraries' own functions, and ours in their place, by the names that the linker gives them.
extern "C" {
void echteBouw(wxGenericProgressDialog* dit, wxString const& titel, wxString const& bericht,
               int grootte, wxWindow* ouder,
               int stijl) asm("__real__ZN23wxGenericProgressDialogC2ERK8wxStringS2_iP8wxWindowi");
void vangBouw(wxGenericProgressDialog* dit, wxString const& titel, wxString const& bericht,
              int grootte, wxWindow* ouder,
              int stijl) asm("__wrap__ZN23wxGenericProgressDialogC2ERK8wxStringS2_iP8wxWindowi");
SNDFILE* echtOpen(char const* pad, int modus, SF_INFO* info) asm("__real_sf_open");
SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) asm("__wrap_sf_open");
}

namespace {

std::vector<VoortgangDialoog>& dialogen() {
  static std::vector<VoortgangDialoog> alle;
  return alle;
}

}  // namespace

void vangBouw(wxGenericProgressDialog* dit, wxString const& titel, wxString const& bericht,
              int grootte, wxWindow* ouder, int stijl) {
  dialogen().push_back({grootte, stijl, {}});
  echteBouw(dit, titel, bericht, grootte, ouder, stijl);
}

SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) {
  wxGenericProgressDialog const* const dialoog = voortgang();
  if (dialoog != nullptr && modus == SFM_READ) {
    dialogen().back().standen.emplace(pad, dialoog->GetValue());
  }
  return echtOpen(pad, modus, info);
}

std::vector<VoortgangDialoog> neemVoortgang() {
  return std::exchange(dialogen(), {});
}
