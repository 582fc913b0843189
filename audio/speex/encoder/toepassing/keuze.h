// Selecting a row by a number that may lie outside the control's range, as a configuration file
// that was edited by hand can hold.
#pragma once

class wxChoice;
class wxRadioBox;

// The number goes to the control as it is, except where the toolkit would answer with an assertion
// or a warning on the terminal; then the selection stays, as it does behind those. A choice shows
// no row at all for a number beyond its last.
void kies(wxRadioBox* keuze, int index);
void kies(wxChoice* keuze, int index);
