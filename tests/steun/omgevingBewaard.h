// The process's environment, put back at the end of a block as it was.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

// All of the environment, whatever becomes of it meanwhile.
class OmgevingBewaard {
 public:
  OmgevingBewaard() {
    for (char* const* ingang = environ; *ingang != nullptr; ++ingang) {
      ingangen.emplace_back(*ingang);
    }
  }
  ~OmgevingBewaard() {
    clearenv();
    for (std::string const& ingang : ingangen) {
      std::string::size_type const gelijk = ingang.find('=');
      setenv(ingang.substr(0, gelijk).c_str(), ingang.substr(gelijk + 1).c_str(), 1);
    }
  }
  OmgevingBewaard(OmgevingBewaard const&) = delete;
  OmgevingBewaard& operator=(OmgevingBewaard const&) = delete;
  OmgevingBewaard(OmgevingBewaard&&) = delete;
  OmgevingBewaard& operator=(OmgevingBewaard&&) = delete;

 private:
  std::vector<std::string> ingangen;
};
