// What the frame asks of the system itself.
#pragma once

#include <wx/platinfo.h>

#include <filesystem>

class wxString;

// What a wxPlatformInfo says. Making one of those starts a shell for each of its questions about a
// POSIX system, which costs half as much as all else of a start.
wxOperatingSystemId geefSysteem();

// Sees to it that names with an accent can be turned into paths, whatever became of the locale.
void zetTekensoort();

// Gives the file `nieuw` the rights of `oud`, or those of any new file where there is no `oud`.
void geefRechten(wxString const& nieuw, wxString const& oud);

// Gives a file another name, in place of the file that had that name. False where that fails.
bool hernoemBestand(std::filesystem::path const& pad, std::filesystem::path const& doel);
