// The language dialog and the About box. The handlers stand in their slots; the work is to come.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"

void HoofdVenster::taalHandler(wxCommandEvent& /*event*/) {}
void HoofdVenster::onAbout(wxCommandEvent& /*event*/) {}
