// Parts of the process's surroundings, changed for the length of a block: a locale category, and
// the time zone.
#pragma once

#include <clocale>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

class TijdelijkeLocale {
 public:
  TijdelijkeLocale(int soort, char const* naam)
      : categorie(soort),
        vorige(std::setlocale(soort, nullptr)),
        gelukt(std::setlocale(soort, naam) != nullptr) {}
  ~TijdelijkeLocale() { static_cast<void>(std::setlocale(categorie, vorige.c_str())); }
  TijdelijkeLocale(TijdelijkeLocale const&) = delete;
  TijdelijkeLocale& operator=(TijdelijkeLocale const&) = delete;
  TijdelijkeLocale(TijdelijkeLocale&&) = delete;
  TijdelijkeLocale& operator=(TijdelijkeLocale&&) = delete;

  // False: the machine has no such locale, and nothing was changed.
  bool isGelukt() const { return gelukt; }

 private:
  int categorie;
  std::string vorige;
  bool gelukt;
};

class TijdelijkeTijdzone {
 public:
  explicit TijdelijkeTijdzone(char const* zone) {
    if (char const* const oud = std::getenv("TZ")) {
      vorige = oud;
    }
    setenv("TZ", zone, 1);
    tzset();
  }
  ~TijdelijkeTijdzone() {
    if (vorige) {
      setenv("TZ", vorige->c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }
  TijdelijkeTijdzone(TijdelijkeTijdzone const&) = delete;
  TijdelijkeTijdzone& operator=(TijdelijkeTijdzone const&) = delete;
  TijdelijkeTijdzone(TijdelijkeTijdzone&&) = delete;
  TijdelijkeTijdzone& operator=(TijdelijkeTijdzone&&) = delete;

 private:
  std::optional<std::string> vorige;
};
