#include <wx/strconv.h>
#include <wx/string.h>

#include <string>

#include "audio/codec/sndOpen.h"

SNDFILE* openSnd(wxString const& pad, int modus, SF_INFO& info) {
  // Empty where the name has no form in the C library's encoding; there is no file of that name.
  std::string const bytes = pad.ToStdString(wxConvLibc);
  return sf_open(bytes.c_str(), modus, &info);
}
