// The fixture of the tests of Speex runs in the window.
#pragma once

#include <string>

#include "tests/audio/speex/encoder/toepassing/gereedProef.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

class SpeexRunProef : public GereedProef {
 protected:
  // Writes and loads these files, the last one first.
  void laadFragmenten(SpeexFragmenten const& fragmenten, int rate = 8000);

  // Starts a run whatever the state of the button, where no message is to come.
  void codeerZonderMelding();
  // Saves as this name whatever the state of the button, and returns the file's text in UTF-8 with
  // momentRegel in it.
  std::string bewaarTekst(wxString const& naam);

  // The message of a run over loaded files without a dialog, and that it was the only one.
  void verwachtMelding(std::size_t procent) const;
  // Encodes, and expects the text of a run over these files in the text field.
  void verwachtRun(SpeexFragmenten const& fragmenten, SpeexDoel const& doel);
};
