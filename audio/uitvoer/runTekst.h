// The text around the fragments of one output: its first line, the declarations for the user's
// header file, and the marks. Every way of output writes them through here.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

// What differs from one way of output to the next.
struct RunSoort {
  char const* kopRegel;   // the first line: a pattern with $naam and $aantal, the number of files
  char const* naam;       // of the encoder
  char const* bezigheid;  // as the marks name it
  char const* arrayType;  // of the elements of an array
};

// The runs of an encoder.
constexpr RunSoort codeerSoort(char const* encoder, char const* arrayType) {
  return {"/* $naam encoding output of $aantal audio files \t\t*/\n\n", encoder, "encoding",
          arrayType};
}

// The output language, and the class that owns the arrays.
struct RunDoel {
  int taal;  // an UitvoerTaal, or any other value
  wxString klasse;
};

// The declarations of one array a file, as comments to be copied: extern arrays in C, members of
// the class in C++, nothing in any other language. An array has the name of its file without path
// and extension, as it stands.
wxString declaraties(RunDoel const& doel, char const* arrayType, wxArrayString const& wavBestanden);

// The whole head of an output: its first line, a line about the declarations (translated), and
// these.
wxString runHoofd(RunSoort const& soort, RunDoel const& doel, wxArrayString const& wavBestanden);

// The lines before and behind the fragment of a file. Numbers count from 1.
wxString startMerk(RunSoort const& soort, std::size_t nummer);
wxString stopMerk(RunSoort const& soort, std::size_t nummer);
