#include "tests/steun/taalCatalogus.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

constexpr char const* origineelWoord = "msgid ";
constexpr char const* vertalingWoord = "msgstr ";

bool begintMet(std::string const& regel, std::string const& woord) {
  return regel.compare(0, woord.size(), woord) == 0;
}

// What stands between the first and the last quote of a line.
std::string tussenAanhalingstekens(std::string const& regel) {
  std::string tekst;
  std::size_t const einde = regel.rfind('"');
  for (std::size_t plaats = regel.find('"') + 1; plaats < einde; ++plaats) {
    if (regel[plaats] != '\\') {
      tekst += regel[plaats];
      continue;
    }
    ++plaats;
    switch (regel[plaats]) {
      case 'n':
        tekst += '\n';
        break;
      case 't':
        tekst += '\t';
        break;
      default:
        tekst += regel[plaats];
        break;
    }
  }
  return tekst;
}

}  // namespace

Catalogus leesCatalogus(std::string const& pad) {
  std::ifstream lezer(std::filesystem::u8path(pad));
  EXPECT_TRUE(lezer.is_open()) << pad;
  Catalogus catalogus;
  std::string origineel;
  std::string* tekst = nullptr;  // what a line that begins with a quote goes on with
  for (std::string regel; std::getline(lezer, regel);) {
    if (begintMet(regel, origineelWoord)) {
      origineel.clear();
      tekst = &origineel;
    } else if (begintMet(regel, vertalingWoord)) {
      tekst = &catalogus[origineel];
    } else if (!begintMet(regel, "\"")) {
      // Comments, and the empty lines between the texts.
      continue;
    }
    *tekst += tussenAanhalingstekens(regel);
  }
  return catalogus;
}
