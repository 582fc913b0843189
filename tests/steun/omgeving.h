// Parts of the process's surroundings, changed for the length of a block: a locale category, and
// the time zone.
#pragma once

#include <clocale>
#include <ctime>
#include <optional>
#include <string>
#include <utility>

#include "tests/steun/omgevingsWaarde.h"

class TijdelijkeLocale {
 public:
  TijdelijkeLocale(int soort, char const* naam)
      : categorie(soort),
        vorige(std::setlocale(soort, nullptr)),
        gelukt(std::setlocale(soort, naam) != nullptr ||
               std::setlocale(soort, naamOpWindows(naam)) != nullptr) {}
  ~TijdelijkeLocale() { static_cast<void>(std::setlocale(categorie, vorige.c_str())); }
  TijdelijkeLocale(TijdelijkeLocale const&) = delete;
  TijdelijkeLocale& operator=(TijdelijkeLocale const&) = delete;
  TijdelijkeLocale(TijdelijkeLocale&&) = delete;
  TijdelijkeLocale& operator=(TijdelijkeLocale&&) = delete;

  // False: the machine has no such locale, and nothing was changed.
  bool isGelukt() const { return gelukt; }

 private:
  // What has a comma for a point, too.
  static char const* naamOpWindows(std::string const& naam) {
    return naam.rfind("nl_", 0) == 0 ? "Dutch" : "German";
  }

  int categorie;
  std::string vorige;
  bool gelukt;
};

class TijdelijkeTijdzone {
 public:
  explicit TijdelijkeTijdzone(char const* zone) : variabele(std::in_place, "TZ", zone) { tzset(); }
  ~TijdelijkeTijdzone() {
    variabele.reset();
    tzset();
  }
  TijdelijkeTijdzone(TijdelijkeTijdzone const&) = delete;
  TijdelijkeTijdzone& operator=(TijdelijkeTijdzone const&) = delete;
  TijdelijkeTijdzone(TijdelijkeTijdzone&&) = delete;
  TijdelijkeTijdzone& operator=(TijdelijkeTijdzone&&) = delete;

 private:
  std::optional<OmgevingsWaarde> variabele;
};
