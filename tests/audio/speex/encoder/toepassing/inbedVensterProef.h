// The fixture of the tests that embed the loaded files through the window.
#pragma once

#include <string>

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/audio/uitvoer/verwachteRun.h"

class InbedVensterProef : public WerkProef {
 protected:
  // Clicks Save As and chooses this path, which no file may have yet.
  void inbed(wxString const& doel);
  // The same for a file that is there, with the answer to the question that follows.
  void inbedOver(wxString const& doel, int antwoord, std::function<void()> tijdens = nullptr);
  // Opens the dialog, cancels it, and returns what it was opened with.
  BestandsVraag vraag();

  // Starts with C as the language and loads bel.wav, of the samples 1 and -1.
  void beginMetBel();
  // The text of one file bel.wav in C.
  static std::string verwachteBel();
  // The content of a file, with the moments taken out.
  static std::string gelezen(wxString const& pad);
};
