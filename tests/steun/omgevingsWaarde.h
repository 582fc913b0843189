// A variable of the process's environment, set for the length of a block and put back as it was.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

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
