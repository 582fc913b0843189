// Reading whole numbers from a configuration file that a user may have edited.
#pragma once

#include <wx/confbase.h>

// The number under `sleutel`, or the default where there is none or something else stands there. A
// number outside the range of an int keeps its low 32 bits.
inline int leesGetal(wxConfigBase const& config, wxString const& sleutel, int standaard) {
  return static_cast<int>(config.ReadLong(sleutel, standaard));
}
