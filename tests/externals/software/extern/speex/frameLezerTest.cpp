// The reader of frames against the operations of the toolkit that it stands for, over texts of
// every kind and in blocks of every size.
#include "externals/software/extern/speex/frameLezer.h"

#include <gtest/gtest.h>
#include <wx/mstream.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "externals/software/extern/speex/doorlezendeConv.h"
#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "tests/steun/bytes.h"

using namespace std::string_literals;

namespace {

using Frame = FrameLezer::Frame;
// All that a reading gives, in its order.
using Verslag = std::vector<long long>;
using Dobbelsteen = std::mt19937;

// The operations of FrameLezer by those of the toolkit alone.
class GewoneLezer : public wxTextInputStream {
 public:
  explicit GewoneLezer(LeesBlok& bron) : wxTextInputStream(bron, ",", DoorlezendeConv()) {}

  wxChar zoekBegin() {
    wxChar teken = GetChar();
    while (teken != '/' && teken != '{' && teken != 0) {
      teken = GetChar();
    }
    return teken;
  }
  void slaRegelOver() { ReadLine(); }
  int leesFrame(Frame& frame) {
    int const grootte = SpeexDesktopDecoder::leesHexWaarde(*this);
    ReadLine();
    for (int i = 0; i < grootte; ++i) {
      auto const byte = static_cast<char>(Read8S());
      if (i < 200) {
        frame.at(static_cast<std::size_t>(i)) = byte;
      }
    }
    return std::min(grootte, 200);
  }
};

// Keeps what one operation of the reader gives.
template <typename Lezer>
void doe(std::size_t wat, Lezer& lezer, Verslag& verslag) {
  switch (wat) {
    case 0:
      verslag.push_back(lezer.zoekBegin());
      break;
    case 1:
      lezer.slaRegelOver();
      break;
    case 2:
      verslag.push_back(lezer.GetChar());
      break;
    case 3: {
      unsigned long waarde = 4711;
      SpeexDesktopDecoder::leesHeader(lezer, waarde);
      verslag.push_back(static_cast<long long>(waarde));
      break;
    }
    case 4: {
      wxString const woord = lezer.ReadWord();
      verslag.insert(verslag.end(), woord.begin(), woord.end());
      break;
    }
    default: {
      Frame frame{};
      verslag.push_back(lezer.leesFrame(frame));
      verslag.insert(verslag.end(), frame.begin(), frame.end());
      break;
    }
  }
  verslag.push_back(lezer.GetInputStream().GetLastError());
}

// As many operations as the dice say, most of them frames, and then all characters that are left.
template <typename Lezer>
Verslag lees(std::string const& tekst, std::size_t blokBytes, unsigned int worp) {
  constexpr std::size_t meest = 30;
  wxMemoryInputStream bron(tekst.data(), tekst.size());
  LeesBlok blok(bron, blokBytes);
  Lezer lezer(blok);
  Dobbelsteen steen(worp);
  Verslag verslag;
  for (std::size_t aantal = steen() % meest; aantal > 0; --aantal) {
    doe(steen() % 12, lezer, verslag);
  }
  // The stream ends somewhat later than a text does that ends within a character.
  for (std::size_t i = 0; i < tekst.size() + 4; ++i) {
    doe(2, lezer, verslag);
  }
  return verslag;
}

// Where the two part, and not all of both; empty where they are the same.
std::string verschil(Verslag const& een, Verslag const& ander) {
  auto const [hier, daar] = std::mismatch(een.begin(), een.end(), ander.begin(), ander.end());
  return hier == een.end() && daar == ander.end()
             ? std::string()
             : "they part at " + std::to_string(hier - een.begin());
}

void vergelijk(std::string const& tekst, std::size_t blokBytes, unsigned int worp) {
  std::string const gevonden =
      verschil(lees<FrameLezer>(tekst, blokBytes, worp), lees<GewoneLezer>(tekst, blokBytes, worp));
  ASSERT_EQ(gevonden, "") << "blocks of " << blokBytes << ", dice at " << worp << "\n"
                          << testing::PrintToString(tekst);
}

// What the fuzz targets begin with: texts of every encoder, whole and broken.
std::vector<std::string> const& teksten() {
  static std::vector<std::string> const alle = [] {
    std::vector<std::string> gelezen;
    for (std::string const map : {"audio/weergave", "externals/software/extern/speex"}) {
      for (auto const& bestand :
           std::filesystem::directory_iterator(KESTROLIN_TESTS_MAP "/" + map + "/corpus")) {
        gelezen.push_back(leesTekst(bestand.path().string()));
      }
    }
    std::sort(gelezen.begin(), gelezen.end());
    return gelezen;
  }();
  return alle;
}

// What makes a difference to one of the operations, or might.
std::vector<std::string> const stukken{"x",
                                       ",",
                                       "\n",
                                       "\r",
                                       "\r\n",
                                       "\r\r\n",
                                       "\t",
                                       " ",
                                       "\v",
                                       "\0"s,
                                       "/",
                                       "{",
                                       "-",
                                       "+",
                                       "x,",
                                       "0x",
                                       "x0x5,",
                                       "x 5,",
                                       "x-1,",
                                       "xfF,",
                                       "x00000a,",
                                       "x0000001f,",
                                       "x123g,",
                                       "x5\n",
                                       "x5",
                                       "-,",
                                       "--1,",
                                       "-0,",
                                       "007,",
                                       "1 ,",
                                       "1\t,",
                                       "1.5,",
                                       "1234567",
                                       "300,",
                                       "-300,",
                                       "2147483648,",
                                       "\t\n5,",
                                       "\n\t\n5,",
                                       ",\t,",
                                       "\t -5,",
                                       "\t\t6,",
                                       "5\n",
                                       "5\r",
                                       "5\r6,",
                                       "a,",
                                       "/* {",
                                       "\r/",
                                       "\n\xC3\xA9",
                                       "\r\xC3\xA9",
                                       "\r\0"s,
                                       "\xC3\xA9",
                                       "\xE2\x82\xAC",
                                       "\xF0\x9F\x8E\xB5",
                                       "\xE9",
                                       "\xC3",
                                       "\xE9\x41",
                                       "\xFF\xFE",
                                       "\xFE\xFF",
                                       "\xEF\xBB\xBF",
                                       "\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80",
                                       "// \xD8\xA3\xE5\xA4\xA7x{\n",
                                       std::string(40, 'q'),
                                       std::string(40, '8') + ",",
                                       std::string(70, '\n')};

std::string veranderd(std::string tekst, Dobbelsteen& steen) {
  for (std::size_t aantal = 1 + steen() % 4; aantal > 0; --aantal) {
    std::size_t const plaats = steen() % 8 == 0 ? 0 : steen() % (tekst.size() + 1);
    std::size_t const weg = steen() % 2 == 0 ? 0 : steen() % 20;
    tekst.replace(plaats, weg, stukken[steen() % stukken.size()]);
  }
  return tekst;
}

// The blocks of a file, and blocks that end anywhere.
constexpr std::array<std::size_t, 4> blokken{LeesBlok::gewoonlijk, 1, 7, 64};

TEST(FrameLezerProef, ReadsTextsOfAllEncodersAsTheToolkitDoes) {
  ASSERT_GT(teksten().size(), 40U);
  for (std::string const& tekst : teksten()) {
    for (std::size_t const blok : blokken) {
      for (unsigned int worp = 0; worp < 5; ++worp) {
        ASSERT_NO_FATAL_FAILURE(vergelijk(tekst, blok, worp));
      }
    }
  }
}

TEST(FrameLezerProef, ReadsTextsThatWereChangedAnywhereAsTheToolkitDoes) {
  Dobbelsteen steen(21);  // NOLINT(cert-msc32-c,cert-msc51-cpp): repeatable on purpose
  for (unsigned int ronde = 0; ronde < 2000; ++ronde) {
    std::string const tekst = veranderd(teksten()[steen() % teksten().size()], steen);
    ASSERT_NO_FATAL_FAILURE(vergelijk(tekst, blokken.at(ronde % blokken.size()), ronde));
  }
}

// The toolkit takes the mark off once a character of its encoding has followed.
TEST(FrameLezerProef, ReadsTextsBehindByteOrderMarksAsTheToolkitDoes) {
  for (std::string const& bom : {"\xEF\xBB\xBF"s, "\xFF\xFE"s, "\xFE\xFF"s, "\xFF\xFE\0\0"s}) {
    for (std::string const begin :
         {"", "\xFE\xFF-,{\n\t\n5,\r", "\x87", "\xFF\xFF\xFF\xFF\xFF\xFF"}) {
      for (unsigned int worp = 0; worp < 50; ++worp) {
        ASSERT_NO_FATAL_FAILURE(
            vergelijk(bom + begin + "/x0x5,x-1,-0,007,\n{0x40,0x1f,0x5,0x0,\n0x3, x\n1,2,3,\n",
                      blokken.at(worp % blokken.size()), worp));
      }
    }
  }
}

TEST(FrameLezerProef, ReadsPiecesBehindOneAnotherAsTheToolkitDoes) {
  Dobbelsteen steen(12);  // NOLINT(cert-msc32-c,cert-msc51-cpp): repeatable on purpose
  for (unsigned int ronde = 0; ronde < 5000; ++ronde) {
    std::string tekst;
    for (std::size_t aantal = steen() % 40; aantal > 0; --aantal) {
      tekst += stukken[steen() % stukken.size()];
    }
    ASSERT_NO_FATAL_FAILURE(vergelijk(tekst, blokken.at(ronde % blokken.size()), ronde));
  }
}

}  // namespace
