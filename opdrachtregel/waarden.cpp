#include "opdrachtregel/waarden.h"

#include <algorithm>
#include <string>

CLI::Validator bestandsNaam() {
  return {[](std::string const& waarde) -> std::string {
            if (waarde.empty()) {
              return "the name of a file is missing";
            }
            return waarde.size() > 1 && waarde.front() == '-'
                       ? waarde + " is no name of a file; write ./" + waarde + " for one called so"
                       : std::string();
          },
          std::string()};
}

CLI::Validator decimaal() {
  return {[](std::string const& waarde) -> std::string {
            bool const isGetal = !waarde.empty() && (waarde == "0" || waarde.front() != '0') &&
                                 std::all_of(waarde.begin(), waarde.end(), [](char teken) {
                                   return teken >= '0' && teken <= '9';
                                 });
            return isGetal ? std::string() : "\"" + waarde + "\" is no number";
          },
          std::string()};
}
