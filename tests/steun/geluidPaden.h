// The paths of the sounds that the program opens. A program that uses it links with the options of
// `neem_geluidpaden_op` (tests/steun/CMakeLists.txt).
#pragma once

#include <wx/string.h>

#include <vector>

// The paths that a wxSound was made of since the last call, in that order, those of sounds that
// cannot be played among them.
std::vector<wxString> neemGeluidPaden();
