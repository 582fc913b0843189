// What screen readers are told of a window, where the toolkit's controls tell too little. Under GTK
// 3 it goes through ATK, the accessibility interface of GTK; in other builds nothing happens.
#pragma once

class wxString;
class wxStatusBar;
class wxTreeCtrl;
class wxWindow;

// The name that a reader says for a control without a label of its own.
void noemControl(wxWindow* control, wxString const& naam);

// Lets readers know the window as a status bar, and its current text by their own command for that.
void toonAlsStatusBalk(wxStatusBar* balk);
void toonStatusTekst(wxStatusBar* balk, wxString const& tekst);
// Lets readers say a text by themselves, wherever the keyboard is.
void laatHoren(wxStatusBar* balk, wxString const& tekst);

// Lets readers see the rows of a tree, which GTK takes for an empty area since the toolkit draws
// them, and follow the keyboard through them. The events of the tree still reach other handlers.
// Call it once, before the tree has rows; it ends with the tree.
void maakLeesbaar(wxTreeCtrl* boom);

// Draws a frame around the current row of a tree while the tree has the keyboard. The toolkit draws
// that row the same with and without, but for a line of dots that some themes hide.
void toonToetsenbord(wxTreeCtrl* boom);
