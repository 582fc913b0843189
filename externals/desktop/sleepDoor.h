// Drops on text fields.
#pragma once

class wxWindow;

// Lets files that are dropped on a field of one line go on to what the field lies in: the field
// itself would type their names. Text that is dropped stays the field's. In builds without GTK 3
// nothing happens.
void geefBestandenDoor(wxWindow& veld);
