#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <wx/string.h>

#include "audio/codec/uitvoerOpen.h"

int openUitvoer(wxString const& pad, bool aanvullen) {
  int const soort = aanvullen ? _O_APPEND : _O_TRUNC;
  return _wopen(pad.wc_str(), _O_WRONLY | _O_CREAT | _O_BINARY | _O_NOINHERIT | soort,
                _S_IREAD | _S_IWRITE);
}
