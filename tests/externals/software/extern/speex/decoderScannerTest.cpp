// How the decoder reads the numbers of a header and the sizes of frames from text.
#include <gtest/gtest.h>
#include <wx/mstream.h>
#include <wx/txtstrm.h>

#include <climits>
#include <string>
#include <utility>

#include "externals/software/extern/speex/speexDesktopDecoder.h"

using namespace std::string_literals;

namespace {

constexpr unsigned long onaangeroerd = 4711;

// Bytes as the stream that the decoder reads from.
class Tekst {
 public:
  explicit Tekst(std::string tekst) : bytes(std::move(tekst)) {}

  unsigned int hexWaarde() { return SpeexDesktopDecoder::leesHexWaarde(stroom); }
  unsigned long header() {
    unsigned long waarde = onaangeroerd;
    SpeexDesktopDecoder::leesHeader(stroom, waarde);
    return waarde;
  }
  // What the reading has left, up to the next comma or line end.
  wxString volgendWoord() { return stroom.ReadWord(); }

 private:
  std::string bytes;
  wxMemoryInputStream bron{bytes.data(), bytes.size()};
  wxTextInputStream stroom{bron, ",", wxConvAuto()};
};

unsigned int hexWaarde(std::string const& tekst) {
  return Tekst(tekst).hexWaarde();
}

unsigned long header(std::string const& tekst) {
  return Tekst(tekst).header();
}

TEST(LeesHexWaarde, TakesTheSizeOutOfASizeLine) {
  EXPECT_EQ(hexWaarde("\t0x1c,  /* Encoded Frame [0] Size */\n\t"), 28U);
  EXPECT_EQ(hexWaarde("\t0x0,  /* Encoded Frame [12] Size */\n\t\n"), 0U);
}

TEST(LeesHexWaarde, ThrowsAwayAllBeforeTheX) {
  EXPECT_EQ(hexWaarde("12,-3,\n\t\n};\n/* {aX 0X7 \xC3\xA9 */\n\t0xc8,"), 200U);
}

TEST(LeesHexWaarde, TakesEveryByte) {
  for (unsigned int waarde = 0; waarde < 256; ++waarde) {
    wxString const tekst = wxString::Format("\t0x%x,", waarde);
    EXPECT_EQ(hexWaarde(tekst.ToStdString()), waarde) << tekst.utf8_str();
  }
  EXPECT_EQ(hexWaarde("0xFf,"), 255U);
}

TEST(LeesHexWaarde, KeepsTheLowEightBits) {
  EXPECT_EQ(hexWaarde("0x100,"), 0U);
  EXPECT_EQ(hexWaarde("0x1234,"), 0x34U);
  EXPECT_EQ(hexWaarde("0xffffffffffffff12,"), 0x12U);
  EXPECT_EQ(hexWaarde("0x-1,"), 255U);
}

TEST(LeesHexWaarde, LeavesOffBehindTheCommaOrLineEnd) {
  for (std::string const einde : {",", "\n", "\r\n", "\r"}) {
    Tekst tekst("0x1f" + einde + "rest,");
    EXPECT_EQ(tekst.hexWaarde(), 31U);
    EXPECT_EQ(tekst.volgendWoord(), "rest");
  }
}

TEST(LeesHexWaarde, SkipsCommasAndLineEndsBehindTheX) {
  EXPECT_EQ(hexWaarde("0x,,\n,1f,"), 31U);
}

TEST(LeesHexWaarde, BlanksAndTabsBelongToTheWord) {
  EXPECT_EQ(hexWaarde("0x \t1f,"), 31U);
  EXPECT_EQ(hexWaarde("0x1f ,"), 0U);
  EXPECT_EQ(hexWaarde("0x1f\t,"), 0U);
  EXPECT_EQ(hexWaarde("0x1 f,"), 0U);
}

TEST(LeesHexWaarde, UnreadableWordsAreZero) {
  EXPECT_EQ(hexWaarde("/* Max bytes/encoded frame         : 28 bytes\t\t*/\n"), 0U);
  EXPECT_EQ(hexWaarde("0xg,"), 0U);
  EXPECT_EQ(hexWaarde("0x12zz,"), 0U);
  EXPECT_EQ(hexWaarde("0x12.5,"), 0U);
  EXPECT_EQ(hexWaarde("0x1\xC3\xA9,"), 0U);
  EXPECT_EQ(hexWaarde("0x10000000000000012,"), 0U);
}

TEST(LeesHexWaarde, TheEndOfTheTextIsZero) {
  EXPECT_EQ(hexWaarde(""), 0U);
  EXPECT_EQ(hexWaarde("12,13,};"), 0U);
  EXPECT_EQ(hexWaarde("0x"), 0U);
  Tekst tekst("0x7");
  EXPECT_EQ(tekst.hexWaarde(), 7U);
  EXPECT_EQ(tekst.hexWaarde(), 0U);
  EXPECT_EQ(tekst.hexWaarde(), 0U);
}

TEST(LeesHexWaarde, ANulStopsTheSearch) {
  Tekst tekst("rows \0 0x5,0x6,"s);
  EXPECT_EQ(tekst.hexWaarde(), 5U) << "the word behind the NUL";
  EXPECT_EQ(tekst.hexWaarde(), 6U);
  EXPECT_EQ(hexWaarde("rows \0no 0x5,"s), 0U);
  EXPECT_EQ(hexWaarde("rows \0"
                      "1f,0x5,"s),
            31U);
}

TEST(LeesHeader, JoinsTheSecondWordBeforeTheFirst) {
  EXPECT_EQ(header("0x40,0x1f,"), 8000U);
  EXPECT_EQ(header("0x80,0x3e,"), 16000U);
  EXPECT_EQ(header("0xff,0xff,"), 65535U);
  EXPECT_EQ(header("0xa0,0x0,"), 160U);
}

TEST(LeesHeader, ALowByteOfOneDigitIsJoinedAllTheSame) {
  EXPECT_EQ(header("0x0,0x7d,"), 0x7D0U);
  EXPECT_EQ(header("0x5,0x12,"), 0x125U);
  EXPECT_EQ(header("0x0,0x0,"), 0U);
  EXPECT_EQ(header("0x00,0x7d,"), 32000U);
}

TEST(LeesHeader, ReadsBothFieldsBehindTheCommentOfTheHeader) {
  Tekst tekst(
      "\n\t/* Header: Sampling Freq (Lower + Higher Byte), Number of Frames (Lower + Higher Byte) "
      "*/\n\t(signed char)0x40,(signed char)0x1f,(signed char)0x20,(signed char)0x3,\n"
      "\t0x1c,  /* Encoded Frame [0] Size */\n");
  EXPECT_EQ(tekst.header(), 8000U);
  EXPECT_EQ(tekst.header(), 0x320U);
  EXPECT_EQ(tekst.hexWaarde(), 28U);
}

TEST(LeesHeader, LongerWordsAreJoinedToo) {
  EXPECT_EQ(header("0x1170,0x1,"), 70000U);
  EXPECT_EQ(header("0xffffffff,0xffffffff,"), ULONG_MAX);
}

TEST(LeesHeader, UnreadableWordsLeaveTheResultAlone) {
  EXPECT_EQ(header("0xzz,0xzz,"), onaangeroerd);
  EXPECT_EQ(header("0x40,0xg1,"), onaangeroerd);
  EXPECT_EQ(header("0xffffffff,0x1ffffffff,"), onaangeroerd);
}

TEST(LeesHeader, OfAPartlyReadableWordTheFirstDigitsCount) {
  EXPECT_EQ(header("0x40,0x1fzz,"), 0x1FU);
  EXPECT_EQ(header("0x4zz,0x1f,"), 0x1F4U);
  EXPECT_EQ(header("0x40 ,0x1f,"), 8000U);
}

TEST(LeesHeader, StopsAtTheEndOfTheTextAndLeavesTheResultAlone) {
  std::string const tot = "\t(signed char)0x40,(signed char)0";
  for (std::size_t lengte = 0; lengte <= tot.size(); ++lengte) {
    EXPECT_EQ(header(tot.substr(0, lengte)), onaangeroerd) << lengte;
  }
}

TEST(LeesHeader, AnEndBehindTheSecondXCutsTheSecondWordShort) {
  std::string const tot = "\t(signed char)0x40,(signed char)0x";
  EXPECT_EQ(header(tot), 0x40U);
  EXPECT_EQ(header(tot + "1"), 0x140U);
  EXPECT_EQ(header(tot + "1f"), 8000U);
}

TEST(LeesHeader, ANulInTheTextDoesNotStopIt) {
  EXPECT_EQ(header("rows \0 \0 0x40,\0\0 0x1f,"s), 8000U);
}

TEST(LeesHeader, ANulAtTheEndOfTheTextIsTheEnd) {
  EXPECT_EQ(header("rows \0"s), onaangeroerd);
  EXPECT_EQ(header("rows 0x40,\0\0"s), onaangeroerd);
}

TEST(LeesHeader, ManyNulsBetweenTheWordsDoNotStopIt) {
  EXPECT_EQ(header("0x40," + std::string(1000, '\0') + "0x1f,"), 8000U);
}

TEST(LeesHeader, ACutSignOfSeveralBytesIsTheEnd) {
  EXPECT_EQ(header("rows \xC3"), onaangeroerd);
  EXPECT_EQ(header("rows 0x40,\xE2\x82"), onaangeroerd);
}

}  // namespace
