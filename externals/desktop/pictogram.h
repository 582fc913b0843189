// The icon of an installed program, as task bars and lists of windows show it.
#pragma once

#include <wx/iconbndl.h>

class wxString;

// The icon called `naam` in the sizes up to 128 pixels: the pictures
// PREFIX/share/icons/hicolor/SxS/apps/NAAM.png, where the program is PREFIX/bin/PROGRAM. What is
// missing, broken or of another size than its folder tells is left out, without a word. Under
// Windows it is the program's resource of that name, in all its sizes. Needs the toolkit started.
wxIconBundle leesPictogrammen(wxString const& naam);
