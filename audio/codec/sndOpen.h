// What libsndfile takes for the name of a file.
#pragma once

#include <sndfile.h>

class wxString;

// sf_open of the file at `pad`.
SNDFILE* openSnd(wxString const& pad, int modus, SF_INFO& info);
