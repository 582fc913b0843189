// The pieces in which the encoding runs of the three encoders differ.
#pragma once

#include <wx/string.h>

#include <functional>

#include "audio/speex/encoder/toepassing/runTekst.h"

class wxFileName;

struct CoderingsRun {
  wxString encoder;  // as the first line of the text names it
  ArrayTypen typen;
  // Sets the encoder up for this run; asked when the former result is gone.
  std::function<void()> bereidVoor;
  // Appends the text of one file to the output, with the header in its array or without. False ends
  // the run at once, with the text so far; the encoder has told the user why.
  std::function<bool(wxFileName const& wav, bool metHeader)> codeer;
  // The end of the message after the run, translated; asked when all files are done.
  std::function<wxString()> berichtStaart;
  wxString titel;   // of the message box, not translated
  wxString status;  // for the status bar, translated
};
