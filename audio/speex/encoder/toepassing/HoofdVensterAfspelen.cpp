// Playback of the loaded files and of the encoded result. The handlers stand in their slots; the
// work comes with the sound output.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"

void HoofdVenster::playMusicHandler(wxCommandEvent& /*event*/) {}
void HoofdVenster::playEncodedHandler(wxCommandEvent& /*event*/) {}
