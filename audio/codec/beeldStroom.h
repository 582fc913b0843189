// Binary image files, opened to be read back.
#pragma once

#include <wx/wfstream.h>

#include <memory>

class wxFileName;

// Null where there is nothing to read: for a missing file, which the toolkit's log tells, and for
// what is no file, which it does not.
std::unique_ptr<wxFileInputStream> openBeeld(wxFileName const& bron);
