#include <wx/platinfo.h>

#include "audio/codec/machine.h"

wxString machine() {
  wxPlatformInfo const& hier = wxPlatformInfo::Get();
  return hier.GetOperatingSystemIdName() + " (" + hier.GetBitnessName() + ")";
}
