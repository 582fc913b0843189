#include "audio/weergave/arrayElementen.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "audio/weergave/tekstCommentaar.h"

namespace {

// The number, as C reads it, without suffixes. Nothing where it is none, or beyond any element.
std::optional<int> getalVan(Woord const& woord) {
  if (woord.soort != WoordSoort::getal) {
    return std::nullopt;
  }
  constexpr int hexadecimaal = 16;
  constexpr int octaal = 8;
  constexpr int decimaal = 10;
  std::string_view cijfers = woord.tekst;
  int grondtal = decimaal;
  if (cijfers.size() > 1 && cijfers[0] == '0') {
    bool const isHex = cijfers[1] == 'x' || cijfers[1] == 'X';
    grondtal = isHex ? hexadecimaal : octaal;
    cijfers.remove_prefix(isHex ? 2 : 1);
  }
  int waarde = 0;
  char const* const einde = cijfers.data() + cijfers.size();
  auto const uitslag = std::from_chars(cijfers.data(), einde, waarde, grondtal);
  return uitslag.ec == std::errc() && uitslag.ptr == einde ? std::optional(waarde) : std::nullopt;
}

}  // namespace

bool breektAf(Woord const& woord) {
  return woord.soort == WoordSoort::einde || woord.soort == WoordSoort::commentaar ||
         woord.soort == WoordSoort::openCommentaar;
}

Woord ElementLezer::volgende() {
  Woord woord = woorden.volgende();
  while (woord.soort == WoordSoort::commentaar &&
         soortVan(woord.tekst) == CommentaarSoort::anders) {
    woord = woorden.volgende();
  }
  return woord;
}

Woord ElementLezer::slaOver(Woord woord) {
  while (!woord.is("}") && !breektAf(woord)) {
    woord = volgende();
  }
  return woord;
}

std::optional<Woord> ElementLezer::lees(ArrayBytes& bytes) {
  Woord woord = volgende();
  while (!woord.is("}")) {
    std::optional<unsigned char> const element = leesElement(woord);
    if (!element) {
      return woord;
    }
    bytes.push_back(*element);
    woord = volgende();
    if (woord.is(",")) {
      woord = volgende();
    } else if (!woord.is("}")) {
      return woord;
    }
  }
  return std::nullopt;
}

// `woord` is the first word of the element, and is left at the last one that was read.
std::optional<unsigned char> ElementLezer::leesElement(Woord& woord) {
  constexpr int hoogste = 255;
  constexpr int laagste = -128;
  bool isMin = false;
  if (isSigned && woord.is("(")) {
    for (std::string_view const deel : {"signed", "char", ")"}) {
      woord = volgende();
      if (!woord.is(deel)) {
        return std::nullopt;
      }
    }
    woord = volgende();
  } else if (isSigned && woord.is("-")) {
    isMin = true;
    woord = volgende();
  }
  std::optional<int> const getal = getalVan(woord);
  int const waarde = isMin ? -getal.value_or(0) : getal.value_or(0);
  if (!getal || waarde > hoogste || waarde < laagste) {
    return std::nullopt;
  }
  return static_cast<unsigned char>(waarde);
}
