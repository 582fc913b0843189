#include "opdrachtregel/voortgang.h"

#include <unistd.h>
#include <wx/log.h>

#include <iostream>

namespace {

// Back to the begin of the line, which is cleared.
constexpr char const* veeg = "\r\033[K";

}  // namespace

Voortgang::Voortgang(std::size_t aantal, std::chrono::milliseconds langeDuur)
    : totaal(aantal), geduld(langeDuur), isTerminal(isatty(STDERR_FILENO) == 1) {}

Voortgang::~Voortgang() {
  if (staatEr) {
    std::cerr << veeg << std::flush;
  }
}

void Voortgang::meldNietHeel(wxString const& wav) {
  wxLogError("%s",
             wav +
                 ": not all of it could be read, or copied to the temporary folder; make room "
                 "there");
}

void Voortgang::meldGedaan(std::size_t nummer) {
  if (isTerminal && nummer < totaal && std::chrono::steady_clock::now() - begin >= geduld) {
    std::cerr << veeg << "kestrolin-cli: " << nummer << " of " << totaal << " recordings"
              << std::flush;
    staatEr = true;
  }
}
