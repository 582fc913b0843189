#include "opdrachtregel/utf8.h"

#include <algorithm>

namespace {

// Whether a character begins with this byte; its other bytes are 10xxxxxx.
bool isBegin(char byte) {
  constexpr unsigned char soort = 0xC0;
  constexpr unsigned char vervolg = 0x80;
  return (static_cast<unsigned char>(byte) & soort) != vervolg;
}

}  // namespace

std::size_t aantalTekens(std::string const& tekst) {
  return static_cast<std::size_t>(std::count_if(tekst.begin(), tekst.end(), isBegin));
}

std::string eersteTekens(std::string const& tekst, std::size_t aantal) {
  return {tekst.begin(), std::find_if(tekst.begin(), tekst.end(), [&aantal](char byte) {
            return isBegin(byte) && aantal-- == 0;
          })};
}
