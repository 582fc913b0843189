// Temporary files whose names begin with a name that a user gave.
#pragma once

#include <wx/string.h>

// Makes an empty file in the temporary directory and returns its path: `begin`, up to its last dot,
// and six letters or digits. A `begin` that is too long for a file name loses whole characters at
// its end. Empty where no file can be made; the toolkit logs why.
wxString maakTijdelijkBestand(wxString const& begin);
