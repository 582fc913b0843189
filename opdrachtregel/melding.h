// What kestrolin-cli says on standard error.
#pragma once

#include <wx/log.h>

#include <string>

// A line in UTF-8, behind the name of the program.
void meld(std::string const& regel);

// The errors that were told so far.
int aantalGemeld();

// While it lives, the errors that the other rooms log are told as such lines. What is no error is
// not shown.
class MeldingLog : public wxLog {
 public:
  MeldingLog();
  ~MeldingLog() override;
  MeldingLog(MeldingLog const&) = delete;
  MeldingLog& operator=(MeldingLog const&) = delete;
  MeldingLog(MeldingLog&&) = delete;
  MeldingLog& operator=(MeldingLog&&) = delete;

 protected:
  void DoLogRecord(wxLogLevel niveau, wxString const& tekst,
                   wxLogRecordInfo const& gegevens) override;

 private:
  wxLog* vorige;
};

// A name as it stands in a line of its own: a file may have any.
std::string opEenRegel(std::string naam);
