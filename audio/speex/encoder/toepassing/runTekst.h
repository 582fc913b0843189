// The text before the fragments of one output: its first line and the declarations for the user's
// header file. Every way of output writes them through here.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

// How the arrays of an output are declared, as comments to be copied: everything up to the name.
struct ArrayTypen {
  wxString inC;
  wxString inCPP;
};

// The declarations of one array a file: extern arrays in C, members of `klasseNaam` in C++, nothing
// in any other language. An array has the name of its file without path and extension, as it
// stands.
wxString declaraties(int taal, ArrayTypen const& typen, wxString const& klasseNaam,
                     wxArrayString const& wavBestanden);

// The whole head of an output: `kopRegel`, a line about the declarations (translated), and these.
wxString runHoofd(wxString const& kopRegel, int taal, ArrayTypen const& typen,
                  wxString const& klasseNaam, wxArrayString const& wavBestanden);
