// Handlers in the event table whose work comes with playback, embedding, the language dialog and
// the About box.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"

void HoofdVenster::playMusicHandler(wxCommandEvent& /*event*/) {}
void HoofdVenster::playEncodedHandler(wxCommandEvent& /*event*/) {}
void HoofdVenster::wavSaveHandler(wxCommandEvent& /*event*/) {}
void HoofdVenster::taalHandler(wxCommandEvent& /*event*/) {}
void HoofdVenster::onAbout(wxCommandEvent& /*event*/) {}
