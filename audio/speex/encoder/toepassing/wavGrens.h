// How far the samples of a WAV file go, as the toolkit's sound sees it.
#pragma once

#include <wx/string.h>

// False where samples behind a LIST chunk are said to go on beyond the end of the file. The toolkit
// turns such files away where no LIST comes first. From 3.2.3 on its reader passes over one LIST
// and leaves its length out of that check: the sound then reaches beyond the toolkit's memory.
bool eindigtInBestand(wxString const& wav);
