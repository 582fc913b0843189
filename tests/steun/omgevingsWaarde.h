// The process's environment, or a variable of it, put back at the end of a block as it was.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class OmgevingsWaarde {
 public:
  OmgevingsWaarde(std::string variabele, std::string const& waarde) : naam(std::move(variabele)) {
    if (char const* const oud = std::getenv(naam.c_str())) {
      vorige = oud;
    }
    setenv(naam.c_str(), waarde.c_str(), 1);
  }
  ~OmgevingsWaarde() {
    if (vorige) {
      setenv(naam.c_str(), vorige->c_str(), 1);
    } else {
      unsetenv(naam.c_str());
    }
  }
  OmgevingsWaarde(OmgevingsWaarde const&) = delete;
  OmgevingsWaarde& operator=(OmgevingsWaarde const&) = delete;
  OmgevingsWaarde(OmgevingsWaarde&&) = delete;
  OmgevingsWaarde& operator=(OmgevingsWaarde&&) = delete;

 private:
  std::string naam;
  std::optional<std::string> vorige;
};

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
