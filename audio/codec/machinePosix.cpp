#include <sys/utsname.h>
#include <wx/platinfo.h>

#include "audio/codec/machine.h"

// Making a wxPlatformInfo starts eight programs to find out more, which takes ten times as long as
// the text of a short fragment.
wxString machine() {
  utsname gegevens{};
  uname(&gegevens);
  wxString const soort(gegevens.machine);
  bool const is64 = soort.Contains("64") || soort.Contains("alpha") || soort == "s390x";
  return wxPlatformInfo::GetOperatingSystemIdName(
             wxPlatformInfo::GetOperatingSystemId(gegevens.sysname)) +
         " (" + wxPlatformInfo::GetBitnessName(is64 ? wxBITNESS_64 : wxBITNESS_32) + ")";
}
