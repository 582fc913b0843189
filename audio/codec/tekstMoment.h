// The date and time that generated text bears.
#pragma once

#include <wx/string.h>

#include <ctime>

// Local time, as "2026-11-21 : 19:48:00": of now, unless the program has fixed another moment.
wxString tekstMoment();

// From here on all text of this process bears this moment, in UTC, so that the same recordings give
// the same text at any time and in any time zone.
void legTekstMomentVast(std::time_t moment);
