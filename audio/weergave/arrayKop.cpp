#include "audio/weergave/arrayKop.h"

#include <wx/string.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// A head has some ten words. Of more, which are none, the last ones do.
constexpr std::size_t hoogstensWoorden = 64;

using Plaats = std::deque<Woord>::const_reverse_iterator;

// Control characters have no place in a name, nor has what is no UTF-8.
bool isIdentifier(Woord const& woord) {
  constexpr wxUint32 eersteBovenAscii = 0xA0;
  constexpr wxUint32 ascii = 0x80;
  if (woord.soort != WoordSoort::naam) {
    return false;
  }
  wxString const tekens = wxString::FromUTF8(woord.tekst.data(), woord.tekst.size());
  return !tekens.empty() && std::all_of(tekens.begin(), tekens.end(), [](wxUniChar teken) {
    return teken.GetValue() < ascii || teken.GetValue() >= eersteBovenAscii;
  });
}

bool isDubbelePunt(Plaats const& plaats, Plaats const& einde) {
  return std::distance(plaats, einde) >= 2 && plaats->is(":") && std::next(plaats)->is(":");
}

// Takes the class before a name, backwards, and leaves `plaats` before it.
std::string leesKlasse(Plaats& plaats, Plaats const& einde) {
  std::string klasse;
  while (isDubbelePunt(plaats, einde)) {
    auto const deel = std::next(plaats, 2);
    if (deel == einde || !isIdentifier(*deel)) {
      break;
    }
    klasse.insert(0, klasse.empty() ? "" : "::").insert(0, deel->tekst);
    plaats = std::next(deel);
  }
  return klasse;
}

// The words of a type, as they stand before a name.
struct ArrayType {
  ArrayType(Plaats plaats, Plaats const& einde) {
    constexpr std::array<std::string_view, 8> bijwoorden{"const",  "constexpr", "extern", "inline",
                                                         "static", "unsigned",  "signed", "char"};
    while (plaats != einde && plaats->soort == WoordSoort::naam &&
           std::count(bijwoorden.begin(), bijwoorden.end(), plaats->tekst) > 0) {
      isChar |= plaats->is("char");
      isSigned |= plaats->is("signed");
      isUnsigned |= plaats->is("unsigned");
      ++plaats;
    }
  }

  bool isChar = false;
  bool isSigned = false;
  bool isUnsigned = false;
};

}  // namespace

void ArrayKopLezer::neem(Woord const& woord) {
  if (woorden.size() == hoogstensWoorden) {
    woorden.pop_front();
  }
  woorden.push_back(woord);
}

std::optional<ArrayKop> ArrayKopLezer::geef() const {
  if (!isLijst()) {
    return std::nullopt;
  }
  // What stands between the brackets and the sign of equality is the user's own.
  auto const haak = std::find_if(woorden.rbegin(), woorden.rend(),
                                 [](Woord const& woord) { return woord.is("["); });
  if (haak == woorden.rend() || std::next(haak) == woorden.rend() ||
      !isIdentifier(*std::next(haak))) {
    return std::nullopt;
  }
  auto plaats = std::next(haak, 2);
  ArrayKop kop{std::string(std::next(haak)->tekst), leesKlasse(plaats, woorden.rend()), false};
  ArrayType const type(plaats, woorden.rend());
  if (!type.isChar || type.isSigned == type.isUnsigned) {
    return std::nullopt;
  }
  kop.isSigned = type.isSigned;
  return kop;
}
