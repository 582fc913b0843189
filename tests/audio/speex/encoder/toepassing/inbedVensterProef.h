// The fixture of the tests that embed the loaded files through the window, and the text that is
// expected in the file.
#pragma once

#include <string>
#include <vector>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

// A file of 16-bit PCM at 8000 Hz: its name without ".wav", and what is left of its samples.
struct VerwachtBestand {
  std::string naam;
  std::vector<int> samples;
};

class InbedVensterProef : public WerkProef {
 protected:
  // Clicks Save As and chooses this path, which no file may have yet.
  void inbed(wxString const& doel);
  // The same for a file that is there, with the answer to the question that follows.
  void inbedOver(wxString const& doel, int antwoord, std::function<void()> tijdens = nullptr);
  // Opens the dialog, cancels it, and returns what it was opened with.
  BestandsVraag vraag();

  // A head and the blocks of these files, short ones, with the class name "Geluid". `declaraties`
  // stands between the comment on them and the empty lines.
  std::string verwachteTekst(std::string const& declaraties,
                             std::vector<VerwachtBestand> const& bestanden, int taal = 0,
                             int bits = 16) const;
  // Starts with C as the language and loads bel.wav, of the samples 1 and -1.
  void beginMetBel();
  // The text of one file bel.wav in C.
  std::string verwachteBel(int bits = 16, std::vector<int> const& samples = {1, -1}) const;
  // The content of a file, with the moments taken out.
  static std::string gelezen(wxString const& pad);
  // A text with `momentRegel` in the place of each moment.
  static std::string zonderMomenten(wxString const& tekst);

  static constexpr char const* kopRegel = "/* Put these declarations in a header file :*/\n";
};
