// The names that the save dialogs propose and the status bar reports, decided without a window.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

// The extension of a source file in the output language, without a point: "c", "cpp", or "py" for
// every value but C and C++.
wxString extensieVoorTaal(int taal);

// The name, without extension, for the text of these files: that of the only file, otherwise that
// of the last directory of `map`, as the name part of a path (so that a directory "a.b" gives "a").
wxString stelNaamVoor(wxArrayString const& wavBestanden, wxString const& map);

// The name that the status bar shows for a chosen file: with the extension glued on, without a
// point, where the name does not end in these very letters. The file itself keeps the name that the
// user gave.
wxString meldNaam(wxString const& gekozen, wxString const& extensie);
