#include "tests/steun/logboek.h"

#include <gtest/gtest.h>

void VerzamelLog::DoLogRecord(wxLogLevel niveau, wxString const& tekst,
                              wxLogRecordInfo const& /*info*/) {
  if (niveau < wxLOG_Debug) {
    regels.push_back({niveau, tekst});
  }
}

void meldAssertie(wxString const& bestand, int regel, wxString const& functie,
                  wxString const& voorwaarde, wxString const& bericht) {
  ADD_FAILURE() << "toolkit assertion at " << bestand.utf8_str() << ":" << regel << " ("
                << functie.utf8_str() << "): " << voorwaarde.utf8_str() << " "
                << bericht.utf8_str();
}
