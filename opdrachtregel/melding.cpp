#include "opdrachtregel/melding.h"

#include <algorithm>
#include <iostream>

namespace {

int gemeld = 0;

}  // namespace

void meld(std::string const& regel) {
  std::string kaal = regel;
  // One message is one line, whatever a file is called.
  std::replace(kaal.begin(), kaal.end(), '\n', ' ');
  std::cerr << "kestrolin-cli: " << kaal << std::endl;
  ++gemeld;
}

int aantalGemeld() {
  return gemeld;
}

MeldingLog::MeldingLog() : vorige(wxLog::SetActiveTarget(this)) {}

MeldingLog::~MeldingLog() {
  wxLog::SetActiveTarget(vorige);
}

void MeldingLog::DoLogRecord(wxLogLevel niveau, wxString const& tekst,
                             wxLogRecordInfo const& /*gegevens*/) {
  if (niveau <= wxLOG_Error) {
    meld(tekst.utf8_string());
  }
}

std::string opEenRegel(std::string naam) {
  std::replace_if(
      naam.begin(), naam.end(),
      [](char teken) { return (teken >= 0 && teken < ' ') || teken == '\x7F'; }, '?');
  return naam;
}
