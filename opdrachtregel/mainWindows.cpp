#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "opdrachtregel/programma.h"

// The shells of Windows leave "*.wav" to the program, and its C library sees to it where this is
// set.
extern "C" int _dowildcard;  // NOLINT(readability-identifier-naming): the library's own name
int _dowildcard = -1;

namespace {

// What is no UTF-16 comes out as the mark for such, and names no file.
std::string smal(std::wstring const& tekst) {
  auto const vertaal = [breed = tekst.c_str(), lengte = static_cast<int>(tekst.size())](
                           char* doel, int ruimte) {
    return WideCharToMultiByte(CP_UTF8, 0, breed, lengte, doel, ruimte, nullptr, nullptr);
  };
  int const bytes = vertaal(nullptr, 0);
  std::string uit(static_cast<std::size_t>(bytes), '\0');
  vertaal(uit.data(), bytes);
  return uit;
}

}  // namespace

int wmain(int aantal, wchar_t** woorden) {
  std::vector<std::string> teksten;
  std::transform(woorden, woorden + aantal, std::back_inserter(teksten), smal);
  std::vector<char const*> wijzers;
  std::transform(teksten.begin(), teksten.end(), std::back_inserter(wijzers),
                 [](std::string const& woord) { return woord.c_str(); });
  return voerProgrammaUit(aantal, wijzers.data());
}
