#include <windows.h>

// The library declares what takes wide names only for this.
#define ENABLE_SNDFILE_WINDOWS_PROTOTYPES 1
#include "audio/codec/sndOpen.h"

#include <wx/string.h>

SNDFILE* openSnd(wxString const& pad, int modus, SF_INFO& info) {
  return sf_wchar_open(pad.wc_str(), modus, &info);
}
