// The recordings that a command is given.
#pragma once

#include <sndfile.h>
#include <wx/filename.h>

#include <optional>
#include <string>
#include <vector>

#include "opdrachtregel/systeem.h"

struct Opname {
  std::string gegeven;  // the path as the user gave it, UTF-8
  wxFileName bestand;   // the same, in full and without "." and ".."
  SF_INFO info;
  BestandStaat staat = {};  // before `info` was read
};

// The full paths and headers of these files, in their order. Nothing where one of them is no
// recording that the tool takes; each that is not was told in a line of its own, with a remedy.
std::optional<std::vector<Opname>> leesOpnamen(std::vector<std::string> const& paden);

// Whether the file is still what it was then. One that is not was told.
bool isOngewijzigd(Opname const& opname);
