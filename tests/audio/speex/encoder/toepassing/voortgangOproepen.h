// A record of the toolkit's progress dialogs. The linker leads their making, and the opening of
// sound files, through it (see CMakeLists.txt), and from there to the libraries.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

struct VoortgangDialoog {
  int grootte;
  int stijl;
  // The full path of each sound file that was opened for reading, and the value at that moment.
  std::set<std::pair<std::string, int>> standen;
};

// The dialogs since the last call, in order; the call empties the record.
std::vector<VoortgangDialoog> neemVoortgang();
