// What the programs share whose windows are measured: the moment from which a window can be used,
// and the line that tells the figures.
#pragma once

#include <functional>

class wxTextCtrl;
class wxWindow;

// Runs the event loop, and in its first idle cycle behind the first picture of this window `doe`.
int draaiTotGetoond(wxWindow& venster, std::function<void()> const& doe);

// Tells the processor time since `begin`, a processorTijd(), the peak of the memory in KiB and the
// signs of the text in a line, and ends the process on the spot: it would go on for a minute to
// tell how high the lines of a long text are.
[[noreturn]] void meldEnEindig(double begin, wxTextCtrl const& veld);
// Likewise, but tells nothing.
[[noreturn]] void eindig(int status);
