// Collects what the program logs, and turns assertions of the toolkit into failures of the test.
#pragma once

#include <gtest/gtest.h>
#include <wx/log.h>
#include <wx/string.h>

#include <vector>

struct LogRegel {
  unsigned long niveau;  // a wxLogLevel
  wxString tekst;
};

// Gathers the lines into `doel`, without the debug levels, in the place of showing them.
class VerzamelLog : public wxLog {
 public:
  explicit VerzamelLog(std::vector<LogRegel>& doel) : regels(doel) {}

 protected:
  void DoLogRecord(wxLogLevel niveau, wxString const& tekst, wxLogRecordInfo const& info) override;

 private:
  std::vector<LogRegel>& regels;
};

// For EXPECT_TRUE: succeeds where nothing was logged, and tells what was where it fails.
testing::AssertionResult nietsGelogd(std::vector<LogRegel> const& log);

// For wxSetAssertHandler: fails the running test and goes on.
void meldAssertie(wxString const& bestand, int regel, wxString const& functie,
                  wxString const& voorwaarde, wxString const& bericht);
