// The recordings that a command is given.
#pragma once

#include <sndfile.h>
#include <wx/filename.h>

#include <optional>
#include <string>
#include <vector>

struct Opname {
  std::string gegeven;  // the path as the user gave it, UTF-8
  wxFileName bestand;   // the same, in full and without "." and ".."
  SF_INFO info;
};

// The full paths and headers of these files, in their order. Nothing where one of them is no
// recording that the tool takes; each that is not was told in a line of its own, with a remedy.
std::optional<std::vector<Opname>> leesOpnamen(std::vector<std::string> const& paden);
