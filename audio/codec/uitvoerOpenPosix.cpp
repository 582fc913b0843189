#include <fcntl.h>
#include <wx/file.h>
#include <wx/string.h>

#include "audio/codec/uitvoerOpen.h"

int openUitvoer(wxString const& pad, bool aanvullen) {
  // Neither for who may read a pipe, nor for the carrier of a line.
  int const soort = aanvullen ? O_APPEND : O_TRUNC;
  int const fd =
      open(pad.fn_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | soort, wxS_DEFAULT);
  if (fd >= 0) {
    fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) & ~O_NONBLOCK);
  }
  return fd;
}
