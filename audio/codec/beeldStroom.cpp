#include "audio/codec/beeldStroom.h"

#include <wx/filename.h>

std::unique_ptr<wxFileInputStream> openBeeld(wxFileName const& bron) {
  // A folder would open too, and a named pipe would keep the program waiting for whoever writes to
  // it.
  if (bron.Exists() && !bron.FileExists()) {
    return nullptr;
  }
  auto stroom = std::make_unique<wxFileInputStream>(bron.GetFullPath());
  return stroom->IsOk() ? std::move(stroom) : nullptr;
}
