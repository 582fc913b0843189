#include "bench/werkMap.h"

#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdlib>
#include <filesystem>

int inWerkMap(std::function<bool(std::string const&)> const& meet) {
  wxInitializer const toolkit;
  std::string map = std::filesystem::temp_directory_path() / "kestrolinBenchXXXXXX";
  if (!toolkit.IsOk() || mkdtemp(map.data()) == nullptr) {
    return 1;
  }
  wxLog::SetLogLevel(wxLOG_Warning);
  bool const gehaald = meet(map);
  wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE);
  return gehaald ? 0 : 1;
}
