#include "audio/weergave/tekstWoorden.h"

#include <algorithm>

namespace {

bool isCijfer(char teken) {
  return teken >= '0' && teken <= '9';
}

// Bytes beyond ASCII count as letters: compilers take names in UTF-8.
bool isLetter(char teken) {
  return (teken >= 'a' && teken <= 'z') || (teken >= 'A' && teken <= 'Z') || teken == '_' ||
         static_cast<unsigned char>(teken) > 0x7F;
}

// How many of the first bytes pass.
template <typename Keur>
std::size_t lengteVan(std::string_view tekst, Keur keur) {
  return static_cast<std::size_t>(std::find_if_not(tekst.begin(), tekst.end(), keur) -
                                  tekst.begin());
}

// The end of a line, or of the text.
std::size_t regelEinde(std::string_view tekst, std::size_t vanaf) {
  return std::min(tekst.find('\n', vanaf), tekst.size());
}

}  // namespace

Woord TekstWoorden::volgende() {
  rest.remove_prefix(lengteVan(rest, isWit));
  if (rest.empty()) {
    return {WoordSoort::einde, rest};
  }
  std::string_view const begin = rest.substr(0, 2);
  if (begin == "/*") {
    return leesBlokCommentaar();
  }
  if (begin == "//") {
    return leesRegelCommentaar();
  }
  char const eerste = rest.front();
  if (eerste == '"' || eerste == '\'') {
    return leesTekst();
  }
  if (isCijfer(eerste)) {
    return neem(WoordSoort::getal, lengteVan(rest, [](char teken) {
                  return isCijfer(teken) || isLetter(teken) || teken == '.';
                }));
  }
  if (isLetter(eerste)) {
    return neem(WoordSoort::naam,
                lengteVan(rest, [](char teken) { return isCijfer(teken) || isLetter(teken); }));
  }
  return neem(WoordSoort::teken, 1);
}

std::size_t TekstWoorden::regelVan(Woord const& woord) {
  auto const plaats = static_cast<std::size_t>(woord.tekst.data() - heel.data());
  if (plaats > geteldTot) {
    std::string_view const nieuw = heel.substr(geteldTot, plaats - geteldTot);
    regel += static_cast<std::size_t>(std::count(nieuw.begin(), nieuw.end(), '\n'));
    geteldTot = plaats;
  }
  return regel;
}

Woord TekstWoorden::neem(WoordSoort soort, std::size_t lengte) {
  Woord const woord{soort, rest.substr(0, lengte)};
  rest.remove_prefix(lengte);
  return woord;
}

Woord TekstWoorden::leesBlokCommentaar() {
  std::size_t const einde = rest.find("*/", 2);
  if (einde == std::string_view::npos) {
    return neem(WoordSoort::openCommentaar, rest.size());
  }
  rest.remove_prefix(2);
  Woord const woord = neem(WoordSoort::commentaar, einde - 2);
  rest.remove_prefix(2);
  return woord;
}

// A line that ends in a backslash goes on in the next one.
Woord TekstWoorden::leesRegelCommentaar() {
  rest.remove_prefix(2);
  std::size_t einde = regelEinde(rest, 0);
  while (einde < rest.size()) {
    std::string_view const voor =
        rest.substr(0, einde > 0 && rest[einde - 1] == '\r' ? einde - 1 : einde);
    if (voor.empty() || voor.back() != '\\') {
      break;
    }
    einde = regelEinde(rest, einde + 1);
  }
  return neem(WoordSoort::commentaar, einde);
}

// A literal in quotes ends with its line at the latest.
Woord TekstWoorden::leesTekst() {
  std::size_t einde = 1;
  while (einde < rest.size() && rest[einde] != rest.front() && rest[einde] != '\n') {
    einde += rest[einde] == '\\' ? std::size_t{2} : std::size_t{1};
  }
  return neem(WoordSoort::teken, std::min(einde + 1, rest.size()));
}
