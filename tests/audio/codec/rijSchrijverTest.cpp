// The rows of arrays: the text of every byte, where rows break, and how the text reaches its
// stream.
#include "audio/codec/rijSchrijver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <sstream>
#include <string>

#include "tests/audio/codec/codecHulp.h"

namespace {

std::string hexadecimaal(unsigned int byte) {
  std::ostringstream tekst;
  tekst << "0x" << std::hex << byte << ',';
  return tekst.str();
}

TEST(ByteTeksten, EveryByteStandsInLowerCaseHexadecimalWithoutLeadingZeros) {
  for (unsigned int byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(hexadecimaleBytes[byte].zicht(), hexadecimaal(byte));
  }
  EXPECT_EQ(hexadecimaleBytes[0].zicht(), "0x0,");
  EXPECT_EQ(hexadecimaleBytes[171].zicht(), "0xab,");
}

TEST(ByteTeksten, EveryByteStandsInSignedDecimal) {
  for (int byte = -128; byte < 128; ++byte) {
    EXPECT_EQ(decimaleBytes[static_cast<unsigned char>(byte)].zicht(), std::to_string(byte) + ',');
  }
  EXPECT_EQ(decimaleBytes[128].zicht(), "-128,");
}

using Schrijven = std::function<void(RijSchrijver&)>;

// What `schrijf` makes of a stream that holds "eerst\n", where room is asked for `verwacht` bytes.
std::string geschreven(Schrijven const& schrijf, std::size_t verwacht = 0,
                       ByteTeksten const& teksten = hexadecimaleBytes) {
  wxMemoryOutputStream uit;
  uit.Write("eerst\n", 6);
  RijSchrijver rijen(uit, teksten, verwacht);
  schrijf(rijen);
  rijen.rondAf();
  return tekstVan(uit);
}

Bytes oplopend(std::size_t aantal) {
  Bytes bytes(aantal);
  std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(0));
  return bytes;
}

// Eight to the line, by the definition.
std::string verwachteRijen(Bytes const& bytes) {
  std::string tekst = "eerst\n";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    tekst += i > 0 && i % 8 == 0 ? "\n\t" : "";
    tekst += hexadecimaal(bytes[i]);
  }
  return tekst;
}

TEST(RijSchrijver, NothingWrittenLeavesTheStreamAsItIs) {
  EXPECT_EQ(geschreven([](RijSchrijver&) {}), "eerst\n");
  EXPECT_EQ(geschreven([](RijSchrijver&) {}, 1000), "eerst\n");
}

TEST(RijSchrijver, RowBreaksWhereAnotherByteFollowsIt) {
  for (std::size_t const aantal : {0U, 1U, 7U, 8U, 9U, 15U, 16U, 17U, 24U, 255U, 256U}) {
    Bytes const bytes = oplopend(aantal);
    EXPECT_EQ(geschreven([&](RijSchrijver& rijen) { rijen.schrijfBytes(bytes.data(), aantal); }),
              verwachteRijen(bytes))
        << aantal;
  }
}

TEST(RijSchrijver, BytesInPiecesOfAnyLengthMakeTheSameRows) {
  Bytes const bytes = oplopend(50);
  for (std::size_t stuk = 1; stuk <= bytes.size(); ++stuk) {
    EXPECT_EQ(geschreven([&](RijSchrijver& rijen) {
                for (std::size_t i = 0; i < bytes.size(); i += stuk) {
                  rijen.schrijfBytes(bytes.data() + i, std::min(stuk, bytes.size() - i));
                }
              }),
              verwachteRijen(bytes))
        << stuk;
  }
}

TEST(RijSchrijver, FullRowAndNoOtherIsBrokenOnRequest) {
  Bytes const bytes = oplopend(8);
  auto const metBreuk = [&bytes](std::size_t aantal) {
    return geschreven([&](RijSchrijver& rijen) {
      rijen.schrijfBytes(bytes.data(), aantal);
      rijen.breekVolleRij();
      rijen.breekVolleRij();
      rijen.schrijfBytes(bytes.data(), 1);
    });
  };
  EXPECT_EQ(metBreuk(0), "eerst\n0x0,");
  EXPECT_EQ(metBreuk(7), "eerst\n0x0,0x1,0x2,0x3,0x4,0x5,0x6,0x0,");
  EXPECT_EQ(metBreuk(8), "eerst\n0x0,0x1,0x2,0x3,0x4,0x5,0x6,0x7,\n\t0x0,");
}

TEST(RijSchrijver, RowBeginsAnewBehindText) {
  Bytes const bytes = oplopend(8);
  EXPECT_EQ(geschreven([&](RijSchrijver& rijen) {
              rijen.schrijfTekst("\t");
              rijen.schrijfBytes(bytes.data(), 3);
              rijen.schrijfTekst("|");
              rijen.schrijfBytes(bytes.data(), 8);
              rijen.schrijfTekst("\n");
              rijen.schrijfBytes(bytes.data(), 1);
            }),
            "eerst\n\t0x0,0x1,0x2,|0x0,0x1,0x2,0x3,0x4,0x5,0x6,0x7,\n0x0,");
}

TEST(RijSchrijver, DecimalBytesStandInTheSameRows) {
  Bytes const bytes{0, 1, 127, 128, 255, 100, 200, 9, 10};
  EXPECT_EQ(geschreven([&](RijSchrijver& rijen) { rijen.schrijfBytes(bytes.data(), bytes.size()); },
                       0, decimaleBytes),
            "eerst\n0,1,127,-128,-1,100,-56,9,\n\t10,");
}

// Some blocks of 65536 signs, however much room was asked for.
TEST(RijSchrijver, LongArrayIsWholeAcrossItsBlocks) {
  Bytes const bytes = oplopend(60001);
  std::string const verwacht = verwachteRijen(bytes);
  for (std::size_t const ruimte : {0U, 1U, 30000U, 60001U, 1000000U}) {
    EXPECT_EQ(geschreven(
                  [&](RijSchrijver& rijen) {
                    for (std::size_t i = 0; i < bytes.size(); i += 7) {
                      rijen.schrijfBytes(bytes.data() + i, std::min<std::size_t>(7, 60001 - i));
                    }
                  },
                  ruimte),
              verwacht)
        << ruimte;
  }
}

TEST(RijSchrijver, LongestRowFitsWhereverItBeginsInABlock) {
  Bytes const bytes(8, 0xFF);
  for (std::size_t over = 0; over < 64; ++over) {
    std::string const voor(65536 - over, 'a');
    EXPECT_EQ(geschreven([&](RijSchrijver& rijen) {
                rijen.schrijfTekst(voor);
                rijen.schrijfBytes(bytes.data(), 8);
                rijen.schrijfBytes(bytes.data(), 8);
              }),
              "eerst\n" + voor +
                  "0xff,0xff,0xff,0xff,0xff,0xff,0xff,0xff,\n\t"
                  "0xff,0xff,0xff,0xff,0xff,0xff,0xff,0xff,")
        << over;
  }
}

TEST(RijSchrijver, RoomIsMadeForTheLongestTextThatTheBytesCanHave) {
  for (std::size_t const aantal : {1U, 8U, 9U, 1000U}) {
    Bytes const bytes(aantal, 0xFF);
    std::size_t const nodig = verwachteRijen(bytes).size();
    wxMemoryOutputStream uit;
    uit.Write("eerst\n", 6);
    RijSchrijver const rijen(uit, hexadecimaleBytes, aantal);
    EXPECT_GE(uit.GetSize(), nodig) << aantal;
    wxMemoryOutputStream meer;
    meer.Write("eerst\n", 6);
    RijSchrijver const metTekst(meer, hexadecimaleBytes, aantal, 100);
    EXPECT_EQ(meer.GetSize(), uit.GetSize() + 100);
  }
}

// Takes one write and fails the next.
class VolleStroom : public wxOutputStream {
 public:
  int pogingen = 0;

 protected:
  size_t OnSysWrite(void const* /*bytes*/, size_t aantal) override {
    m_lasterror = ++pogingen > 1 ? wxSTREAM_WRITE_ERROR : wxSTREAM_NO_ERROR;
    return pogingen > 1 ? 0 : aantal;
  }
};

TEST(RijSchrijver, NothingMoreIsWrittenOnceAWriteHasFailed) {
  VolleStroom uit;
  RijSchrijver rijen(uit, hexadecimaleBytes, 100);
  Bytes const bytes = oplopend(200000);
  rijen.schrijfBytes(bytes.data(), bytes.size());
  rijen.rondAf();
  EXPECT_EQ(uit.pogingen, 2);
}

TEST(StroomRuimte, RoomForAWholeTextIsAskedOnce) {
  wxMemoryOutputStream uit;
  uit.Write("eerst\n", 6);
  {
    StroomRuimte const ruimte(uit, 100000);
    void const* const blok = uit.GetOutputStreamBuffer()->GetBufferStart();
    EXPECT_EQ(uit.GetLength(), 100006);
    std::string const tekst(99999, 'a');
    uit.Write(tekst.data(), tekst.size());
    EXPECT_EQ(uit.GetLength(), 100006);
    EXPECT_EQ(uit.GetOutputStreamBuffer()->GetBufferStart(), blok);
  }
  EXPECT_EQ(tekstVan(uit), "eerst\n" + std::string(99999, 'a'));
}

TEST(StroomRuimte, MoreThanWasAskedForIsWrittenAllTheSame) {
  wxMemoryOutputStream uit;
  {
    StroomRuimte const ruimte(uit, 2);
    uit.Write("meer", 4);
  }
  uit.Write(" dan", 4);
  EXPECT_EQ(tekstVan(uit), "meer dan");
}

TEST(StroomRuimte, TextBehindThePlaceOfWritingStays) {
  wxMemoryOutputStream uit;
  uit.Write("abcdef", 6);
  uit.SeekO(2);
  {
    StroomRuimte const ruimte(uit, 100);
    uit.Write("X", 1);
  }
  EXPECT_EQ(tekstVan(uit), "abXdef");
}

TEST(StroomRuimte, FixedMemoryOfACallerIsLeftAlone) {
  wxMemoryOutputStream uit;
  uit.GetOutputStreamBuffer()->SetBufferIO(4);
  uit.GetOutputStreamBuffer()->Fixed(true);
  void const* const blok = uit.GetOutputStreamBuffer()->GetBufferStart();
  uit.Write("vier", 4);
  { StroomRuimte const ruimte(uit, 100); }
  EXPECT_EQ(uit.GetOutputStreamBuffer()->GetBufferStart(), blok);
  EXPECT_EQ(tekstVan(uit), "vier");
}

}  // namespace
