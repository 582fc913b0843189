// kestrolin-cli as a process: started with the words of a command line, in a directory of the
// test's own.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/steun/tijdelijkeMap.h"

// What a process left.
struct Afloop {
  int status = -1;     // the exit status, or -1 where a signal ended it
  int signaal = 0;     // which ended it
  std::string uit;     // standard output
  std::string fouten;  // standard error
};

class ProgrammaProef : public testing::Test {
 protected:
  ProgrammaProef();

  // Runs the program in the test's directory. The process has the environment of the test, without
  // SOURCE_DATE_EPOCH, with TMPDIR in the test's directory, and with `omgeving` over it; a value
  // that is empty takes the variable away.
  Afloop voer(std::vector<std::string> const& woorden) const;

  // The content of a file in the test's directory, empty where there is none.
  std::string tekst(std::string const& naam) const;
  // The names of what lies in the directory and below, sorted; folders end in a slash. That for
  // temporary files is left out while it is empty.
  std::vector<std::string> inhoud() const;

  TijdelijkeMap map;
  std::map<std::string, std::string> omgeving;
  // Takes away what lets root write where the modes of files do not.
  bool zonderVoorrecht = false;

 private:
  TijdelijkeMap kanalen;
};
