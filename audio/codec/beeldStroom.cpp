#include "audio/codec/beeldStroom.h"

#include <wx/filename.h>

std::unique_ptr<wxFileInputStream> openBeeld(wxFileName const& bron) {
  // A named pipe would keep the program waiting for whoever writes to it.
  if (bron.Exists() && !bron.FileExists()) {
    return nullptr;
  }
  auto stroom = std::make_unique<wxFileInputStream>(bron.GetFullPath());
  if (!stroom->IsOk()) {
    return nullptr;
  }
  // What opens can still not be read.
  char eerste = 0;
  stroom->Read(&eerste, 1);
  if (stroom->GetLastError() == wxSTREAM_READ_ERROR) {
    return nullptr;
  }
  stroom->SeekI(0);
  return stroom;
}
