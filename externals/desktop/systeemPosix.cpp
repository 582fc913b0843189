#include <langinfo.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <wx/string.h>

#include <clocale>
#include <cstring>
#include <system_error>

#include "externals/desktop/systeem.h"

namespace {

// glibc's name of the character set of "C".
bool isAscii() {
  return std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0;
}

}  // namespace

wxOperatingSystemId geefSysteem() {
  utsname gegevens{};
  uname(&gegevens);
  return wxPlatformInfo::GetOperatingSystemId(gegevens.sysname);
}

// In a locale of ASCII alone no name with an accent can be turned into the bytes of a path. Without
// a locale the process is in "C"; and one that was made can be "C" as well, where the toolkit takes
// over what the environment says. The character type of the user's environment, or that of C.UTF-8
// where the environment offers no more, brings such names back and changes nothing else.
void zetTekensoort() {
  for (char const* const naam : {"", "C.UTF-8"}) {
    if (isAscii()) {
      static_cast<void>(std::setlocale(LC_CTYPE, naam));
    }
  }
}

void geefRechten(wxString const& nieuw, wxString const& oud) {
  struct stat gegevens {};
  mode_t rechten = 0;
  if (stat(oud.fn_str(), &gegevens) == 0) {
    rechten = gegevens.st_mode;
  } else {
    mode_t const masker = umask(0);
    umask(masker);
    rechten = 0666U & ~masker;
  }
  static_cast<void>(chmod(nieuw.fn_str(), rechten));
}

bool hernoemBestand(std::filesystem::path const& pad, std::filesystem::path const& doel) {
  std::error_code fout;
  std::filesystem::rename(pad, doel, fout);
  return !fout;
}
