// The words of C and C++ source text, as a compiler tells them apart, with the comments among them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

enum class WoordSoort : std::uint8_t {
  einde,           // of the text; from there on every word is this
  commentaar,      // `tekst` is what stands between its marks
  openCommentaar,  // one that never ends
  naam,            // also of letters beyond ASCII
  getal,           // whatever begins with a digit, as "0x1f" or "3rd"
  teken            // a single byte of any other kind, or a literal in quotes
};

struct Woord {
  WoordSoort soort;
  std::string_view tekst;  // a part of the whole text

  bool is(std::string_view ander) const {
    return soort != WoordSoort::commentaar && tekst == ander;
  }
};

// What stands between words, line ends too.
constexpr bool isWit(char teken) {
  return teken == ' ' || (teken >= '\t' && teken <= '\r');
}

class TekstWoorden {
 public:
  // Reads `tekst`, which may hold any bytes and must outlive this object and its words.
  explicit TekstWoorden(std::string_view tekst) : heel(tekst), rest(tekst) {}

  Woord volgende();

  // What comes behind the last word, and how to pass over the first bytes of that. The caller makes
  // sure that a word ends there.
  std::string_view ongelezen() const { return rest; }
  void slaOver(std::size_t aantal) { rest.remove_prefix(aantal); }

  // The number of the line that a word stands in, from 1 on. To be asked in the order of the words.
  std::size_t regelVan(Woord const& woord);

 private:
  Woord neem(WoordSoort soort, std::size_t lengte);
  Woord leesBlokCommentaar();
  Woord leesRegelCommentaar();
  Woord leesTekst();

  std::string_view heel;
  std::string_view rest;
  std::size_t geteldTot = 0;
  std::size_t regel = 1;
};
