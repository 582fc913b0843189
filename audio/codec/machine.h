// The machine, as texts name it.
#pragma once

#include <wx/string.h>

// The system and its width, in the words of wxPlatformInfo, as in "Linux (64 bit)".
wxString machine();
