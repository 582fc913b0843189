#include "audio/codec/uitvoerTaal.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

constexpr UitvoerTaalRij geenTaal{
    static_cast<UitvoerTaal>(-1), "", "py", false, true, "", "", "", "", ""};

}  // namespace

UitvoerTaalRij const* zoekUitvoerTaal(int nummer) {
  auto const* const rij =
      std::find_if(uitvoerTalen.begin(), uitvoerTalen.end(),
                   [nummer](UitvoerTaalRij const& taal) { return taal.nummer == nummer; });
  return rij == uitvoerTalen.end() ? nullptr : rij;
}

UitvoerTaalRij const& uitvoerTaalRij(int nummer) {
  UitvoerTaalRij const* const rij = zoekUitvoerTaal(nummer);
  return rij == nullptr ? geenTaal : *rij;
}

wxString vulIn(char const* patroon, TaalWoorden const& woorden) {
  std::array<std::pair<std::string_view, wxString const&>, 4> const alle{
      {{"$klasse", woorden.klasse},
       {"$naam", woorden.naam},
       {"$type", woorden.type},
       {"$aantal", woorden.aantal}}};
  wxString tekst;
  std::string_view rest = patroon;
  while (!rest.empty()) {
    auto const* const woord = std::find_if(alle.begin(), alle.end(), [rest](auto const& een) {
      return rest.substr(0, een.first.size()) == een.first;
    });
    if (woord != alle.end()) {
      tekst += woord->second;
      rest.remove_prefix(woord->first.size());
    } else {
      tekst += rest.front();
      rest.remove_prefix(1);
    }
  }
  return tekst;
}
