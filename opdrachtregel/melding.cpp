#include "opdrachtregel/melding.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>

#include "opdrachtregel/systeem.h"

namespace {

int gemeld = 0;
bool staatVoortgang = false;

// Back to the begin of the line, which is cleared.
constexpr char const* veeg = "\r\033[K";

}  // namespace

void meld(std::string const& regel) {
  wisVoortgang();
  // One message is one line, whatever a file is called.
  std::cerr << "kestrolin-cli: " << opEenRegel(regel) << std::endl;
  ++gemeld;
}

void toonVoortgang(std::string const& regel) {
  std::cerr << veeg << "kestrolin-cli: " << regel << std::flush;
  staatVoortgang = true;
}

void wisVoortgang() {
  if (staatVoortgang) {
    std::cerr << veeg << std::flush;
    staatVoortgang = false;
  }
}

std::string redenEnRaad(int code) {
  std::string const reden = std::strerror(code);
  if (isVol(code)) {
    return reden + "; make room, or give another place";
  }
  switch (code) {
    case ENOENT:
    case ENOTDIR:
    case EISDIR:
    case ENAMETOOLONG:
    case ELOOP:
      return reden + "; check the path";
    case EACCES:
    case EPERM:
    case EROFS:
      return reden + "; change its permissions, or give another place";
    default:
      return reden + "; see to that, and run it again";
  }
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
    neem(tekst.utf8_string());
  }
}

void MeldingLog::neem(std::string const& regel) {
  meld(regel);
}

void MeldingVanger::neem(std::string const& regel) {
  regels.push_back(regel);
}

std::string opEenRegel(std::string naam) {
  std::replace_if(
      naam.begin(), naam.end(),
      [](char teken) { return static_cast<unsigned char>(teken) < ' ' || teken == '\x7F'; }, '?');
  return naam;
}
