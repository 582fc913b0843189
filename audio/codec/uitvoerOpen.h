// How the file of a text is opened.
#pragma once

class wxString;

// Opens the file at `pad` to write to its end, or from its begin with what it held gone, and makes
// it where it is not there. Waits for nobody: what would block is an error. Negative, with errno,
// where it cannot be opened.
int openUitvoer(wxString const& pad, bool aanvullen);
