// A variable of the process's environment, put back at the end of a block as it was.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "tests/steun/variabele.h"

class OmgevingsWaarde {
 public:
  OmgevingsWaarde(std::string variabele, std::string const& waarde) : naam(std::move(variabele)) {
    if (char const* const oud = std::getenv(naam.c_str())) {
      vorige = oud;
    }
    zetVariabele(naam, waarde);
  }
  ~OmgevingsWaarde() {
    if (vorige) {
      zetVariabele(naam, *vorige);
    } else {
      wisVariabele(naam);
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
