#include "externals/software/extern/speex/frameLezer.h"

#include <algorithm>

#include "externals/software/extern/speex/doorlezendeConv.h"
#include "externals/software/extern/speex/speexDesktopDecoder.h"

namespace {

constexpr int decimaal = 10;
// The most bytes that a size line can tell.
constexpr std::size_t maxMaat = 255;

// The bytes that are a character each in every text without a byte order mark. A NUL is not among
// them: to the text stream it looks like the end.
constexpr bool isGewoon(char teken) {
  return static_cast<signed char>(teken) > 0;
}

// The value of a digit in either case; 16 for any other character.
constexpr unsigned int cijferVan(char teken) {
  constexpr unsigned int geen = 16;
  if (teken >= '0' && teken <= '9') {
    return static_cast<unsigned int>(teken - '0');
  }
  auto const klein = static_cast<char>(static_cast<unsigned char>(teken) | 0x20U);
  return klein >= 'a' && klein <= 'f' ? static_cast<unsigned int>(klein - 'a') + decimaal : geen;
}

// How many plain characters stand before the first that is one of `einden`.
template <char... einden>
std::size_t lengteTot(std::string_view tekst) {
  auto const einde = std::find_if_not(tekst.begin(), tekst.end(), [](char teken) {
    return isGewoon(teken) && ((teken != einden) && ...);
  });
  return static_cast<std::size_t>(einde - tekst.begin());
}

// A number, and how many bytes it takes with the comma behind it; 0 where none stands there as it
// is generated.
struct Getal {
  unsigned int waarde = 0;
  std::size_t lengte = 0;
};

// Up to as many digits as no type cuts off.
template <unsigned int grondtal>
Getal getalVan(std::string_view tekst) {
  constexpr std::size_t meest = 7;
  Getal getal;
  std::size_t const tot = std::min(tekst.size(), meest + 1);
  for (std::size_t i = 0; i < tot; ++i) {
    unsigned int const cijfer = cijferVan(tekst[i]);
    if (cijfer >= grondtal) {
      getal.lengte = i > 0 && tekst[i] == ',' ? i + 1 : 0;
      break;
    }
    getal.waarde = getal.waarde * grondtal + cijfer;
  }
  return getal;
}

// As above, of an element, which may have line ends before it, and then tabs and a minus sign. A
// line end behind a tab ends a word that is no number.
Getal elementVan(std::string_view tekst) {
  std::size_t const begin = std::min(tekst.find_first_not_of('\n'), tekst.size());
  std::size_t const woord = std::min(tekst.find_first_not_of('\t', begin), tekst.size());
  bool const isMin = woord < tekst.size() && tekst[woord] == '-';
  std::size_t const cijfers = woord + (isMin ? 1 : 0);
  Getal getal = getalVan<decimaal>(tekst.substr(cijfers));
  if (getal.lengte > 0) {
    getal.lengte += cijfers;
    getal.waarde = isMin ? 0U - getal.waarde : getal.waarde;
  }
  return getal;
}

}  // namespace

std::string_view LeesBlok::gereed() const {
  if (!IsOk() || m_wback != nullptr) {
    return {};
  }
  wxStreamBuffer const& buffer = *GetInputStreamBuffer();
  return {static_cast<char const*>(buffer.GetBufferPos()), buffer.GetBytesLeft()};
}

void LeesBlok::neem(std::size_t aantal) {
  wxStreamBuffer& buffer = *GetInputStreamBuffer();
  buffer.SetIntPosition(buffer.GetIntPosition() + aantal);
}

FrameLezer::FrameLezer(LeesBlok& bron)
    : wxTextInputStream(bron, ",", DoorlezendeConv()), blok(bron) {}

// The bytes that can be read where they lie: once it has shown that the text begins with no byte
// order mark, and while all that was read is decoded too. Behind a mark the toolkit may drop bytes
// of later characters.
std::string_view FrameLezer::gereed() const {
  bool const isKaal = static_cast<DoorlezendeConv const*>(m_conv)->GetBOM() == wxBOM_None;
  return isKaal && m_validBegin == m_validEnd ? blok.gereed() : std::string_view();
}

wxChar FrameLezer::zoekBegin() {
  wxChar teken = 0;
  do {
    blok.neem(lengteTot<'/', '{'>(gereed()));
    teken = GetChar();
  } while (teken != '/' && teken != '{' && teken != 0);
  return teken;
}

void FrameLezer::slaRegelOver() {
  std::string_view const tekst = gereed();
  std::size_t const lengte = lengteTot<'\n', '\r'>(tekst);
  if (lengte < tekst.size() && tekst[lengte] == '\n') {
    blok.neem(lengte + 1);
  } else {
    blok.neem(lengte);
    ReadLine();
  }
}

int FrameLezer::leesFrame(Frame& frame) {
  std::optional<unsigned char> const kort = leesKorteMaat();
  std::size_t const maat = kort ? *kort : SpeexDesktopDecoder::leesHexWaarde(*this);
  slaRegelOver();
  // No generated frame is larger than the buffer; of one in an edited text the rest is dropped.
  std::size_t const past = std::min(maat, frame.size());
  leesBytes(frame.data(), past);
  std::array<char, maxMaat> rest{};
  leesBytes(rest.data(), maat - past);
  return static_cast<int>(past);
}

// Goes on to the next "x" in the buffer, and reads the number behind it where that is a plain one.
std::optional<unsigned char> FrameLezer::leesKorteMaat() {
  std::string_view tekst = gereed();
  std::size_t const plaats = lengteTot<'x'>(tekst);
  blok.neem(plaats);
  tekst.remove_prefix(plaats);
  if (tekst.empty() || tekst.front() != 'x') {
    return std::nullopt;
  }
  constexpr unsigned int hexadecimaal = 16;
  Getal const getal = getalVan<hexadecimaal>(tekst.substr(1));
  if (getal.lengte == 0) {
    return std::nullopt;
  }
  blok.neem(1 + getal.lengte);
  return static_cast<unsigned char>(getal.waarde);
}

// As many times Read8S.
void FrameLezer::leesBytes(char* doel, std::size_t aantal) {
  std::size_t gedaan = 0;
  while (gedaan < aantal) {
    std::string_view const alles = gereed();
    std::string_view tekst = alles;
    for (; gedaan < aantal; ++gedaan) {
      Getal const getal = elementVan(tekst);
      if (getal.lengte == 0) {
        break;
      }
      doel[gedaan] = static_cast<char>(getal.waarde);
      tekst.remove_prefix(getal.lengte);
    }
    blok.neem(alles.size() - tekst.size());
    if (gedaan < aantal) {
      doel[gedaan++] = static_cast<char>(Read8S(decimaal));
    }
  }
}
