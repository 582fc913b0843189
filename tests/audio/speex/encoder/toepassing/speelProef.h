// The fixture of the tests of playback: the real window with a recorder in the place of its player,
// and all that a listener and a looker-on notice at the moment when a sound begins.
//
// Its programs link with tests/steun/geluidOpname.cpp and `neem_geluidpaden_op`.
#pragma once

#include <wx/treebase.h>

#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"
#include "tests/steun/geluidOpname.h"

// The rows of files in the tree, from 0.
using Rijen = std::vector<int>;

// A sound, and the window while it plays.
struct Gehoord {
  OpgenomenGeluid geluid;
  GeluidBytes bytes;
  wxString status;
  Rijen vet;
  Rijen zichtbaar;
};

class SpeelProef : public SpeexRunProef {
 public:
  SpeelProef(SpeelProef const&) = delete;
  SpeelProef& operator=(SpeelProef const&) = delete;
  SpeelProef(SpeelProef&&) = delete;
  SpeelProef& operator=(SpeelProef&&) = delete;

 protected:
  SpeelProef() = default;
  ~SpeelProef() override;

  // Records from here on, into `gehoord`. The program puts a player of its own in place when it
  // starts, so that this comes after the start.
  void neemOp();

  // The rows that stand in bold now.
  Rijen vetteRijen() const;
  // The root of the tree and, behind it, its rows.
  std::vector<wxTreeItemId> knopen() const;

  // The full paths in the directory of temporary files, of those whose name begins so.
  std::vector<std::string> tijdelijke(std::string const& begin = "") const;
  // The one temporary file whose name begins so.
  std::string tijdelijk(std::string const& begin) const;

  // Plays the result with its button, which makes one sound of these samples on the side, with this
  // count in the status bar, and leaves two files of which one holds the generated text.
  void verwachtResultaat(std::string const& prefix, int aantal, int rate,
                         std::vector<int> const& samples);
  // Expects the same of a play that has been.
  void verwachtGespeeld(int aantal, int rate, std::vector<int> const& samples);

  std::vector<Gehoord> gehoord;

 private:
  Rijen zichtbareRijen() const;
};

// The samples of one frame at 8000 Hz.
SpeexFragment korteBel(std::string const& naam = "bel");

// Samples as a loudspeaker gets them: 16 bits, low byte first.
GeluidBytes geluidBytes(std::vector<int> const& samples);
GeluidBytes geluidBytes(std::vector<std::int16_t> const& samples);
