// Binary image files, opened to be read back.
#pragma once

#include <wx/wfstream.h>

#include <memory>

class wxFileName;

// The file from its first byte on. Null where nothing can be read: for a file that is missing or
// fails, which the toolkit's log tells, and for what is no file, which it does not.
std::unique_ptr<wxFileInputStream> openBeeld(wxFileName const& bron);
