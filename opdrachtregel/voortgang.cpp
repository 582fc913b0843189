#include "opdrachtregel/voortgang.h"

#include <wx/log.h>

#include <string>

#include "opdrachtregel/melding.h"
#include "opdrachtregel/systeem.h"

Voortgang::Voortgang(std::size_t aantal, char const* wat, std::chrono::milliseconds langeDuur)
    : totaal(aantal), naam(wat), geduld(langeDuur), isTerminal(kanRegelVerversen()) {}

Voortgang::~Voortgang() {
  wisVoortgang();
}

void Voortgang::meldNietHeel(wxString const& wav) {
  wxLogError("%s",
             wav +
                 ": not all of it could be read, or copied to the temporary folder; make room "
                 "there");
}

void Voortgang::meldGedaan(std::size_t nummer) {
  if (isTerminal && nummer < totaal && std::chrono::steady_clock::now() - begin >= geduld) {
    toonVoortgang(std::to_string(nummer) + " of " + std::to_string(totaal) + " " + naam);
  }
}
