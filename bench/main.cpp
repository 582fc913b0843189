// The benchmarks of the codecs and of kestrolin-cli. Prints one line a figure; ends with status 1
// where a goal is missed.
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/adpcmTekst.h"
#include "bench/lezer.h"
#include "bench/opdracht.h"
#include "bench/pcmTekst.h"
#include "bench/speexTekst.h"

int main() {
  wxInitializer const toolkit;
  std::string map = std::filesystem::temp_directory_path() / "kestrolinBenchXXXXXX";
  if (!toolkit.IsOk() || mkdtemp(map.data()) == nullptr) {
    return 1;
  }
  wxLog::SetLogLevel(wxLOG_Warning);
  // First: a small process starts another one sooner.
  bool const opdracht = meetOpdracht(map);
  bool const pcm = meetPcm(map);
  bool const adpcm = meetAdpcm(map);
  bool const speex = meetSpeex(map);
  bool const lezers = meetLezers(map);
  wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE);
  return opdracht && pcm && adpcm && speex && lezers ? 0 : 1;
}
