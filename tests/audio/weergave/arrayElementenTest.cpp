// The elements of an array, against a reader that takes them word by word.
#include "audio/weergave/arrayElementen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "audio/weergave/tekstCommentaar.h"
#include "tests/steun/bytes.h"

namespace {

using Dobbelsteen = std::mt19937;

// What a reading of an array gives: its elements, and where it stops.
struct Gelezen {
  ArrayBytes bytes;
  bool heel = false;
  std::string fout;        // the word that is no element
  std::size_t verder = 0;  // where the next word begins
  std::size_t regel = 0;   // of that word
};

bool operator==(Gelezen const& een, Gelezen const& ander) {
  return een.bytes == ander.bytes && een.heel == ander.heel && een.fout == ander.fout &&
         een.verder == ander.verder && een.regel == ander.regel;
}
void PrintTo(Gelezen const& gelezen, std::ostream* uit) {
  *uit << testing::PrintToString(gelezen.bytes) << (gelezen.heel ? " whole" : " up to ")
       << gelezen.fout << ", then from " << gelezen.verder << " in line " << gelezen.regel;
}

// Reads word by word.
class WoordLezer {
 public:
  WoordLezer(TekstWoorden& tekst, bool signedChar) : woorden(tekst), isSigned(signedChar) {}

  // The word at which it stopped, as ElementLezer::lees has it.
  std::optional<Woord> lees(ArrayBytes& bytes) {
    for (neem(); !woord.is("}");) {
      std::optional<long> const element = leesElement();
      if (!element || *element > 255 || *element < -128) {
        return woord;
      }
      bytes.push_back(static_cast<unsigned char>(*element));
      neem();
      if (woord.is(",")) {
        neem();
      } else if (!woord.is("}")) {
        return woord;
      }
    }
    return std::nullopt;
  }

 private:
  // Comments that say nothing of a fragment are no words.
  void neem() {
    do {
      woord = woorden.volgende();
    } while (woord.soort == WoordSoort::commentaar &&
             soortVan(woord.tekst) == CommentaarSoort::anders);
  }
  std::optional<long> leesElement() {
    if (isSigned && woord.is("(")) {
      for (char const* const deel : {"signed", "char", ")"}) {
        neem();
        if (!woord.is(deel)) {
          return std::nullopt;
        }
      }
      neem();
      return getal();
    }
    if (isSigned && woord.is("-")) {
      neem();
      std::optional<long> const waarde = getal();
      return waarde ? std::optional(-*waarde) : std::nullopt;
    }
    return getal();
  }
  std::optional<long> getal() const {
    std::string const cijfers(woord.tekst);
    bool const isHex = cijfers.size() > 2 && (cijfers[1] == 'x' || cijfers[1] == 'X');
    char* einde = nullptr;
    long const waarde = std::strtol(cijfers.c_str(), &einde,
                                    isHex               ? 16
                                    : cijfers[0] == '0' ? 8
                                                        : 10);
    return woord.soort == WoordSoort::getal && *einde == '\0' ? std::optional(waarde)
                                                              : std::nullopt;
  }

  TekstWoorden& woorden;
  bool isSigned;
  Woord woord{};
};

template <typename Lezer>
Gelezen lees(std::string const& tekst, bool isSigned) {
  TekstWoorden woorden(tekst);
  Gelezen gelezen;
  std::optional<Woord> const fout = Lezer(woorden, isSigned).lees(gelezen.bytes);
  gelezen.heel = !fout;
  gelezen.fout = fout ? std::string(fout->tekst) : std::string();
  Woord const volgende = woorden.volgende();
  gelezen.verder = static_cast<std::size_t>(volgende.tekst.data() - tekst.data());
  gelezen.regel = woorden.regelVan(volgende);
  return gelezen;
}

void vergelijk(std::string const& tekst) {
  for (bool const isSigned : {false, true}) {
    ASSERT_EQ(lees<ElementLezer>(tekst, isSigned), lees<WoordLezer>(tekst, isSigned))
        << (isSigned ? "signed " : "unsigned ") << testing::PrintToString(tekst);
  }
}

// What stands behind the brace of each array that the fuzz targets begin with.
std::vector<std::string> arrays() {
  std::vector<std::string> gevonden;
  for (auto const& bestand :
       std::filesystem::directory_iterator(KESTROLIN_TESTS_MAP "/audio/weergave/corpus")) {
    std::string const tekst = leesTekst(bestand.path().string());
    for (std::size_t plaats = tekst.find('{'); plaats != std::string::npos;
         plaats = tekst.find('{', plaats + 1)) {
      gevonden.push_back(tekst.substr(plaats + 1));
    }
  }
  std::sort(gevonden.begin(), gevonden.end());
  return gevonden;
}

// What makes a difference between elements, or might.
std::vector<std::string> const stukken{"0",
                                       "1",
                                       "9",
                                       "7,",
                                       "0,",
                                       "00,",
                                       "01,",
                                       "08,",
                                       "010,",
                                       "0x",
                                       "0x,",
                                       "0X1f,",
                                       "0x1F,",
                                       "0xg,",
                                       "0x0,",
                                       "0xa,",
                                       "0xff,",
                                       "0x100,",
                                       "0x001,",
                                       "0x0ff,",
                                       "255,",
                                       "256,",
                                       "127,",
                                       "128,",
                                       "-128,",
                                       "-129,",
                                       "-0,",
                                       "-1,",
                                       "--1,",
                                       "- 1,",
                                       "-01,",
                                       "-0x1,",
                                       "1000,",
                                       "99999999999999999999,",
                                       "1.,",
                                       "1u,",
                                       "x,",
                                       "(signed char)0x1,",
                                       "(signed char)-1,",
                                       "( signed /**/ char ) 7 ,",
                                       "(char)1,",
                                       " ",
                                       "\t",
                                       "\n",
                                       "\r",
                                       "\v",
                                       "\f",
                                       "\n\t",
                                       ",",
                                       ",,",
                                       " ,",
                                       "}",
                                       "{",
                                       ";",
                                       "/",
                                       "*",
                                       "/*",
                                       "*/",
                                       "/* a */",
                                       "// b\n",
                                       "// c \\\n}\n",
                                       "/* Encoded on Linux */",
                                       "/* PCM encoding output of 1 */",
                                       "\xC3\xA9",
                                       "\xFF",
                                       "'",
                                       "\"",
                                       "\\",
                                       "\x01",
                                       "\x7F",
                                       "1 2,",
                                       "3,4,5,6,",
                                       "0x5,0x6,0x7,",
                                       "1,}",
                                       "1}",
                                       "1, }",
                                       "1 }",
                                       "0x1}"};

TEST(ArrayElementen, ReadsTheArraysOfAllEncodersAsItsWordsSay) {
  ASSERT_GT(arrays().size(), 20U);
  for (std::string const& tekst : arrays()) {
    for (std::size_t lengte = 0; lengte <= tekst.size(); ++lengte) {
      ASSERT_NO_FATAL_FAILURE(vergelijk(tekst.substr(0, lengte)));
    }
  }
}

TEST(ArrayElementen, ReadsArraysThatWereChangedAnywhereAsTheirWordsSay) {
  std::vector<std::string> const bron = arrays();
  Dobbelsteen steen(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp): repeatable on purpose
  for (int ronde = 0; ronde < 5000; ++ronde) {
    std::string tekst = bron[steen() % bron.size()];
    for (std::size_t aantal = 1 + steen() % 4; aantal > 0; --aantal) {
      std::size_t const plaats = steen() % (std::min(tekst.size(), std::size_t{400}) + 1);
      tekst.replace(plaats, steen() % 6, stukken[steen() % stukken.size()]);
    }
    ASSERT_NO_FATAL_FAILURE(vergelijk(tekst));
  }
}

TEST(ArrayElementen, ReadsPiecesBehindOneAnotherAsTheirWordsSay) {
  Dobbelsteen steen(2);  // NOLINT(cert-msc32-c,cert-msc51-cpp): repeatable on purpose
  for (int ronde = 0; ronde < 50000; ++ronde) {
    std::string tekst;
    for (std::size_t aantal = steen() % 12; aantal > 0; --aantal) {
      tekst += stukken[steen() % stukken.size()];
    }
    ASSERT_NO_FATAL_FAILURE(vergelijk(tekst));
  }
}

// Every pair of elements that has one, and what is between them and those that have not.
TEST(ArrayElementen, ReadsEveryPairOfPiecesAsItsWordsSay) {
  for (std::string const& een : stukken) {
    for (std::string const& ander : stukken) {
      ASSERT_NO_FATAL_FAILURE(vergelijk(een + ander + "1,2,3,4,}"));
    }
  }
}

}  // namespace
