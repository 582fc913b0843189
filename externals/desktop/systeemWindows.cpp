#include <windows.h>
// Behind the types of windows.h.
#include <wx/utils.h>

#include <system_error>

#include "externals/desktop/systeem.h"

wxOperatingSystemId geefSysteem() {
  return wxGetOsVersion();
}

// Paths are of wide characters here.
void zetTekensoort() {}

// A new file has the rights of its folder, as the one before it had.
void geefRechten(wxString const& /*nieuw*/, wxString const& /*oud*/) {}

bool hernoemBestand(std::filesystem::path const& pad, std::filesystem::path const& doel) {
  // A scanner of viruses, an indexer or an editor may have the old file open for a moment.
  constexpr int pogingen = 50;
  constexpr unsigned long pauze = 20;  // ms
  auto const isBezet = [](std::error_code const& fout) {
    return fout.value() == ERROR_ACCESS_DENIED || fout.value() == ERROR_SHARING_VIOLATION;
  };
  std::error_code fout;
  std::filesystem::rename(pad, doel, fout);
  for (int i = 1; i < pogingen && isBezet(fout); ++i) {
    wxMilliSleep(pauze);
    std::filesystem::rename(pad, doel, fout);
  }
  return !fout;
}
