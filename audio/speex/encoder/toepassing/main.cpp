// The glue between the system's main and the application, alone in its file so that tests can link
// everything else.
#include <wx/app.h>

#include "audio/speex/encoder/toepassing/kestrolin.h"

wxIMPLEMENT_APP(Kestrolin);
