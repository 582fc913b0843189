// Ctrl+O, Ctrl+S and Ctrl+Q for the entries of a menu bar that open, save and quit. GTK gives them
// to these entries by itself.
#pragma once

class wxFrame;

// The labels of the entries stay. The key of an entry that cannot be used does nothing.
void zetSneltoetsen(wxFrame& venster);
