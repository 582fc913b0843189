// The benchmarks of the window: its start and its Encode, against bare windows of the toolkit.
// Wants a display with nobody else on it. Prints one line a figure; ends with status 1 where a goal
// is missed.
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/venster/vensterCodeer.h"
#include "bench/venster/vensterProces.h"
#include "bench/venster/vensterStart.h"

int main() {
  wxInitializer const toolkit;
  std::string map = std::filesystem::temp_directory_path() / "kestrolinBenchXXXXXX";
  if (!toolkit.IsOk() || mkdtemp(map.data()) == nullptr) {
    return 1;
  }
  wxLog::SetLogLevel(wxLOG_Warning);
  VensterProces const proces(map);
  // The first program on a display asks for its abilities, and leaves the answers there.
  meetInKind([&] { return proces.draai({kaalVenster}); });
  bool const start = meetVensterStart(proces);
  bool const codeer = meetVensterCodeer(proces);
  wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE);
  return start && codeer ? 0 : 1;
}
