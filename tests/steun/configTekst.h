// The text of a configuration file as a table of its keys.
#pragma once

#include <wx/string.h>

#include <map>

// Every key with its full path ("/Group/Sub/key") and its value as it stands in the file.
std::map<wxString, wxString> configSleutels(wxString const& tekst);
