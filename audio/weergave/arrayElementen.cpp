#include "audio/weergave/arrayElementen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

#include "audio/weergave/tekstCommentaar.h"

namespace {

constexpr int hexadecimaal = 16;
constexpr int octaal = 8;
constexpr int decimaal = 10;

// The number, as C reads it, without suffixes. Nothing where it is none, or beyond any element.
std::optional<int> getalVan(Woord const& woord) {
  if (woord.soort != WoordSoort::getal) {
    return std::nullopt;
  }
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

// The value of a digit in either case; 16 for any other character.
constexpr std::array<unsigned char, 256> maakCijfers() {
  constexpr std::string_view tekens = "0123456789abcdef0123456789ABCDEF";
  std::array<unsigned char, 256> cijfers{};
  for (unsigned char& cijfer : cijfers) {
    cijfer = hexadecimaal;
  }
  for (std::size_t i = 0; i < tekens.size(); ++i) {
    cijfers[static_cast<unsigned char>(tekens[i])] = static_cast<unsigned char>(i % hexadecimaal);
  }
  return cijfers;
}

unsigned int cijferVan(char teken) {
  static constexpr std::array<unsigned char, 256> cijfers = maakCijfers();
  return cijfers[static_cast<unsigned char>(teken)];
}

// An element as it is generated. The length is that with the comma behind it, and 0 for all else
// that may stand there.
struct KortElement {
  unsigned int waarde;
  std::size_t lengte;
};

// The longest is "-128,".
constexpr std::size_t langsteElement = 5;

// Up to `meest` digits and a comma.
KortElement cijfersVan(char const* tekst, unsigned int grondtal, std::size_t meest) {
  unsigned int waarde = 0;
  for (std::size_t i = 0; i <= meest; ++i) {
    unsigned int const cijfer = cijferVan(tekst[i]);
    if (cijfer >= grondtal) {
      return {waarde, i > 0 && tekst[i] == ',' ? i + 1 : 0};
    }
    waarde = waarde * grondtal + cijfer;
  }
  return {0, 0};
}

// At least `langsteElement` characters follow on `tekst`.
KortElement kortElementVan(char const* tekst, bool isSigned) {
  if (tekst[0] == '0') {
    if (tekst[1] != 'x') {
      return {0, tekst[1] == ',' ? std::size_t{2} : std::size_t{0}};
    }
    KortElement const element = cijfersVan(tekst + 2, hexadecimaal, 2);
    return {element.waarde, element.lengte == 0 ? 0 : element.lengte + 2};
  }
  std::size_t const teken = isSigned && tekst[0] == '-' ? 1 : 0;
  KortElement const element = cijfersVan(tekst + teken, decimaal, 3);
  unsigned int const hoogste = teken == 0 ? 255 : 128;
  // With a zero before it a number is octal.
  if (element.lengte == 0 || element.waarde > hoogste || tekst[teken] == '0') {
    return {0, 0};
  }
  return {teken == 0 ? element.waarde : 0U - element.waarde, element.lengte + teken};
}

// A guess of the number of elements: hexadecimal ones take four characters at least. The vector
// grows where the guess is too small.
std::size_t schatAantal(std::string_view tekst) {
  constexpr std::size_t kortste = 4;
  return std::min(tekst.find('}'), tekst.size()) / kortste;
}

// Whether a comment says nothing of a fragment, and so may stand among the elements.
bool isBijschrift(Woord const& woord) {
  return woord.soort == WoordSoort::commentaar && soortVan(woord.tekst) == CommentaarSoort::anders;
}

}  // namespace

bool breektAf(Woord const& woord) {
  return woord.soort == WoordSoort::einde || woord.soort == WoordSoort::commentaar ||
         woord.soort == WoordSoort::openCommentaar;
}

Woord ElementLezer::volgende() {
  Woord woord = woorden.volgende();
  while (isBijschrift(woord)) {
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
  bytes.reserve(bytes.size() + schatAantal(woorden.ongelezen()));
  for (;;) {
    leesRijen(bytes);
    Woord woord = woorden.volgende();
    if (isBijschrift(woord)) {
      continue;
    }
    if (woord.is("}")) {
      return std::nullopt;
    }
    std::optional<unsigned char> const element = leesElement(woord);
    if (!element) {
      return woord;
    }
    bytes.push_back(*element);
    woord = volgende();
    if (woord.is("}")) {
      return std::nullopt;
    }
    if (!woord.is(",")) {
      return woord;
    }
  }
}

// Takes the elements that stand there as they are generated, up to the first that does not.
void ElementLezer::leesRijen(ArrayBytes& bytes) {
  std::string_view const tekst = woorden.ongelezen();
  std::size_t gelezen = 0;
  for (std::size_t plaats = 0; plaats + langsteElement <= tekst.size();) {
    if (isWit(tekst[plaats])) {
      ++plaats;
      continue;
    }
    KortElement const element = kortElementVan(tekst.data() + plaats, isSigned);
    if (element.lengte == 0) {
      break;
    }
    bytes.push_back(static_cast<unsigned char>(element.waarde));
    plaats += element.lengte;
    gelezen = plaats;
  }
  woorden.slaOver(gelezen);
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
