#include "audio/speex/encoder/toepassing/kestrolin.h"

#include <wx/sizer.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/uitvoer/instellingenBestand.h"
#include "externals/desktop/geluidSpeler.h"
#include "externals/desktop/pictogram.h"

Kestrolin::Kestrolin() : DesktopApp("Kestrolin") {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(instellingenPad);
  // The record begins with the defaults.
  leesInstellingen(*config, instellingen);
}

Kestrolin::~Kestrolin() {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(instellingenPad);
  schrijfInstellingen(instellingen, *config);
}

bool Kestrolin::OnInit() {
  // The window's layout joins wxEXPAND with alignments. The toolkit draws that as wanted, but its
  // checks would put a box on the screen for each such item.
  wxSizerFlags::DisableConsistencyChecks();
  plaatsGeluidSpeler();

  // The window sets a title of its own at once.
  venster = new HoofdVenster(nullptr, wxID_ANY, _("Kestrolin for embedded applications"),
                             wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE);
  SetTopWindow(venster);
  zetHoofdVenster(venster);
  venster->SetIcons(leesPictogrammen(GetAppName().Lower()));
  venster->Show(true);
  return true;
}
