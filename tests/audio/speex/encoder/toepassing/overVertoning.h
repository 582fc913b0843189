// The About boxes that the program shows, noted on their way to the toolkit. A program that uses it
// links with --wrap of the toolkit's function.
#pragma once

#include <wx/aboutdlg.h>

#include <vector>

class wxWindow;

struct Vertoning {
  wxAboutDialogInfo info;
  wxWindow* ouder;
};

// The boxes since the last call, in that order. None of them appeared.
std::vector<Vertoning> neemVertoningen();
// From here on the boxes appear too.
void laatVertoningenZien();
