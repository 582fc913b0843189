// Guards lines that are handed to the logger as their own format string.
#pragma once

#include <wx/string.h>

// Returns `regel` as a format string without conversions: "%%" stays, so that it shows as one per
// cent sign, and every other per cent sign becomes literal. A file called "100%s.wav" can then name
// itself in the log without reading memory that is not there.
wxString veiligFormaat(wxString const& regel);
