// What screen readers are told of the window. Buttons, boxes and radio boxes are called by their
// labels, which stay English; the names here are read alone, so they are translated.
#include <wx/choice.h>
#include <wx/intl.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "externals/desktop/toegankelijk.h"

wxStatusBar* HoofdVenster::OnCreateStatusBar(int velden, long stijl, wxWindowID id,
                                             wxString const& naam) {
  auto* const balk = new StatusBalk(this, id, stijl, naam);
  balk->SetFieldsCount(velden);
  return balk;
}

void HoofdVenster::wijsDeWeg() {
  maakLeesbaar(audioBoom);
  toonToetsenbord(audioBoom);
  noemControl(audioBoom, _("Loaded audio files"));
  noemControl(formaatKeuze, _("Speex band"));
  noemControl(bitRateTypeKeuze, _("Kind of bit rate"));
  noemControl(qualitySpin, _("Quality"));
  noemControl(complexitySpin, _("Complexity"));
  noemControl(maxRateVeld, _("Maximum or average bit rate"));
  noemControl(klasseVeld, _("Class name"));
  noemControl(dacTypeKeuze, _("DAC width"));
  noemControl(tekstVeld, _("Generated text"));
}
