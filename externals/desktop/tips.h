// Tooltips of controls that lie over a static box, as children of the same parent.
#pragma once

class wxWindow;

// Has GTK show the tips of this control and of its rows there: it would otherwise look for the tip
// of the box below them as soon as the mouse moves. In builds without GTK 3 nothing happens.
void laatTipsZien(wxWindow& control);
