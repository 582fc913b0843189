#include "tests/steun/logboek.h"

#include <wx/utils.h>

void VerzamelLog::DoLogRecord(wxLogLevel niveau, wxString const& tekst,
                              wxLogRecordInfo const& /*info*/) {
  // Tests run side by side as one user, so that each is another's second copy and meets its lock
  // file at any moment of its life. What the toolkit says about that is none of a test's affair,
  // nor what the file itself says where the other copy's end took it away just before it was read.
  bool const overSlot =
      tekst.Lower().Contains("lock file") || tekst.Contains("'/tmp/Kestrolin-" + wxGetUserId());
  if (niveau < wxLOG_Debug && !overSlot) {
    regels.push_back({niveau, tekst});
  }
}

testing::AssertionResult nietsGelogd(std::vector<LogRegel> const& log) {
  testing::AssertionResult uitslag =
      log.empty() ? testing::AssertionSuccess() : testing::AssertionFailure() << "logged:";
  for (LogRegel const& regel : log) {
    uitslag << "\n  level " << regel.niveau << ": " << regel.tekst.utf8_str();
  }
  return uitslag;
}

void meldAssertie(wxString const& bestand, int regel, wxString const& functie,
                  wxString const& voorwaarde, wxString const& bericht) {
  ADD_FAILURE() << "toolkit assertion at " << bestand.utf8_str() << ":" << regel << " ("
                << functie.utf8_str() << "): " << voorwaarde.utf8_str() << " "
                << bericht.utf8_str();
}
