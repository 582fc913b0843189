// What kestrolin-cli says on standard error.
#pragma once

#include <wx/log.h>

#include <string>
#include <vector>

// A line in UTF-8, behind the name of the program.
void meld(std::string const& regel);

// Shows a line of progress in the place of the one before, on a terminal, and takes it away. A
// message takes it away too.
void toonVoortgang(std::string const& regel);
void wisVoortgang();

// What a call that failed with this errno says, and what to do about that.
std::string redenEnRaad(int code);

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

  // An error, as one text.
  virtual void neem(std::string const& regel);

 private:
  wxLog* vorige;
};

// Keeps these lines instead.
class MeldingVanger : public MeldingLog {
 public:
  std::vector<std::string> const& geefRegels() const { return regels; }

 protected:
  void neem(std::string const& regel) override;

 private:
  std::vector<std::string> regels;
};

// A name as it stands in a line of its own: a file may have any.
std::string opEenRegel(std::string naam);
