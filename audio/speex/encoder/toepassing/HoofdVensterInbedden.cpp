// Embedding of the loaded files as WAV images. The handler stands in its slot; the work is to come.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"

void HoofdVenster::wavSaveHandler(wxCommandEvent& /*event*/) {}
