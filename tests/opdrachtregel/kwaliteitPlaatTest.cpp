// The picture of size against quality, and what it is put together from.
#include "opdrachtregel/kwaliteitPlaat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <regex>

#include "opdrachtregel/labelVakken.h"
#include "opdrachtregel/svg.h"

namespace {

Vergelijking vergelijking(std::string const& naam, std::vector<Encodering> const& encoderingen) {
  SF_INFO info{};
  info.samplerate = 8000;
  info.channels = 1;
  info.frames = 8000;
  return {{naam, wxFileName(wxString::FromUTF8(naam)), info}, false, encoderingen};
}

Encodering speex(unsigned int kwaliteit, std::size_t bytes, double db) {
  return {{ArraySoort::speex, 16, kwaliteit, false}, bytes, Kwaliteit{db, 0}};
}

Encodering van(ArraySoort soort, unsigned int dacBits, std::size_t bytes, double db) {
  return {{soort, dacBits, {}, false}, bytes, Kwaliteit{db, 0}};
}

// All that an expression finds, its first group.
std::vector<std::string> alle(std::string const& tekst, std::string const& uitdrukking) {
  std::regex const vorm(uitdrukking);
  std::vector<std::string> gevonden;
  std::transform(std::sregex_iterator(tekst.begin(), tekst.end(), vorm), std::sregex_iterator(),
                 std::back_inserter(gevonden), [](std::smatch const& een) { return een.str(1); });
  return gevonden;
}

// The places at which signs of this shape stand in the panel.
std::vector<Plek> plaatsen(std::string const& svg, std::string const& begin) {
  std::regex const vorm(R"re(<path transform="translate\(([0-9.-]+),([0-9.-]+)\)" d="([^"]*)")re");
  std::vector<Plek> gevonden;
  std::string const paneel = svg.substr(0, svg.find("</g>"));
  for (std::sregex_iterator een(paneel.begin(), paneel.end(), vorm); een != std::sregex_iterator();
       ++een) {
    if (een->str(3).rfind(begin, 0) == 0) {
      gevonden.push_back({std::stod(een->str(1)), std::stod(een->str(2))});
    }
  }
  return gevonden;
}

constexpr char const* driehoek = "M-5,-4H5L";
constexpr char const* cirkel = "M-4,0a";

}  // namespace

TEST(Svg, WritesElements) {
  EXPECT_EQ(svgTekst({1, 2.25}, "a<b>&\x1F\xC3\xA9", "x=\"y\""),
            "<text x=\"1.0\" y=\"2.2\" x=\"y\">a&lt;b&gt;&amp;?\xC3\xA9</text>\n");
  EXPECT_EQ(svgLijn({{1, 2}, {-3, 4.5}}, "stroke=\"#000\""),
            "<polyline fill=\"none\" stroke=\"#000\" points=\"1.0,2.0 -3.0,4.5 \"/>\n");
  EXPECT_EQ(svgVorm({1, 2}, "M0,0Z", "fill=\"red\""),
            "<path transform=\"translate(1.0,2.0)\" d=\"M0,0Z\" fill=\"red\"/>\n");
}

TEST(LabelVakken, PutLabelsBesideTheirSigns) {
  LabelVakken vakken({0, 0}, {400, 400});
  vakken.houdVrij({100, 100}, 7);
  std::optional<Plek> const rechts = vakken.plaats({100, 100}, Kant::rechts, 2);
  std::optional<Plek> const links = vakken.plaats({100, 100}, Kant::links, 2);
  std::optional<Plek> const boven = vakken.plaats({100, 100}, Kant::boven, 2);
  ASSERT_TRUE(rechts && links && boven);
  EXPECT_GT(rechts->x, 107);
  EXPECT_EQ(rechts->y, 100);
  EXPECT_LT(links->x, 93);
  EXPECT_EQ(links->y, 100);
  EXPECT_EQ(boven->x, 100);
  EXPECT_LT(boven->y, 93);
}

TEST(LabelVakken, KeepLabelsApartFromOneAnotherAndFromSigns) {
  LabelVakken vakken({0, 0}, {400, 400});
  vakken.houdVrij({118, 94}, 7);  // in the way of the first
  std::vector<Plek> gevonden;
  for (int i = 0; i < 4; ++i) {
    std::optional<Plek> const plek = vakken.plaats({100, 100}, Kant::rechts, 2);
    ASSERT_TRUE(plek);
    EXPECT_FALSE(plek->y + 6 > 87 && plek->y - 6 < 101) << plek->y;
    for (Plek const& ander : gevonden) {
      EXPECT_GE(std::abs(ander.y - plek->y), 12);
    }
    gevonden.push_back(*plek);
  }
}

TEST(LabelVakken, LeaveOutWhatHasNoRoom) {
  LabelVakken vakken({0, 0}, {120, 400});
  EXPECT_FALSE(vakken.plaats({100, 100}, Kant::rechts, 2));
  EXPECT_TRUE(vakken.plaats({100, 100}, Kant::links, 2));
  vakken.houdVrij({100, 100}, 90);
  EXPECT_FALSE(vakken.plaats({100, 100}, Kant::boven, 1));
}

TEST(KwaliteitPlaat, TellsInWordsWhatItShows) {
  std::string const svg = tekenPlaat(
      {vergelijking("a&b.wav", {speex(2, 500, 11.06), van(ArraySoort::wav, 8, 16044, -0.04)}),
       vergelijking("c.wav", {{{ArraySoort::adpcm, 16, {}, true}, 2500, {}}})});
  EXPECT_EQ(alle(svg, "(<title.*</title>)"),
            std::vector<std::string>{
                "<title id=\"title\">Flash against quality, by recording and encoder</title>"});
  EXPECT_EQ(alle(svg, "(<desc.*</desc>)"),
            std::vector<std::string>{
                "<desc id=\"desc\">a&amp;b.wav: Speex, quality 2: 500 bytes, 11.1 dB; WAV, 8-bit "
                "DAC: 16044 bytes, 0.0 dB. c.wav: ADPCM, brought down to 8 bits: 2500 bytes. "
                "</desc>"});
  EXPECT_EQ(alle(svg, R"re(y="24.0" text-anchor="middle">([^<]*))re"),
            (std::vector<std::string>{"a&amp;b.wav, 8000 Hz", "c.wav, 8000 Hz"}));
}

// Twice the bytes are the same step at any size, and so is a dB.
TEST(KwaliteitPlaat, HasALogarithmicAxisOfBytesAndAStraightOneOfDb) {
  std::string const svg =
      tekenPlaat({vergelijking("a.wav", {speex(2, 500, 0), speex(4, 1000, 10), speex(6, 2000, 30),
                                         van(ArraySoort::pcm, 8, 1000, 35)})});
  std::vector<Plek> const punten = plaatsen(svg, driehoek);
  ASSERT_EQ(punten.size(), 3U);
  EXPECT_NEAR(punten[1].x - punten[0].x, punten[2].x - punten[1].x, 0.11);
  EXPECT_GT(punten[1].x - punten[0].x, 50);
  EXPECT_NEAR(punten[1].y - punten[2].y, 2 * (punten[0].y - punten[1].y), 0.11);
  EXPECT_GT(punten[0].y, punten[1].y);
  ASSERT_EQ(plaatsen(svg, cirkel).size(), 1U);
  EXPECT_EQ(plaatsen(svg, cirkel)[0].x, punten[1].x);
  // The names of the axis stand where the signs of those sizes do.
  std::vector<std::string> const plekken = alle(svg, R"re(<text x="([0-9.]+)" y="302.0")re");
  EXPECT_EQ(alle(svg, R"re(y="302.0" text-anchor="middle">([^<]*))re"),
            (std::vector<std::string>{"500", "1 k", "2 k"}));
  ASSERT_EQ(plekken.size(), 3U);
  for (std::size_t i = 0; i < plekken.size(); ++i) {
    EXPECT_NEAR(std::stod(plekken[i]), punten[i].x, 0.11);
  }
}

TEST(KwaliteitPlaat, LeavesOutTwosAndFivesWhereTheAxisIsLong) {
  std::string const svg =
      tekenPlaat({vergelijking("a.wav", {speex(2, 60, 0), speex(4, 3000000, 10)})});
  EXPECT_EQ(alle(svg, R"re(y="302.0" text-anchor="middle">([^<]*))re"),
            (std::vector<std::string>{"100", "1 k", "10 k", "100 k", "1 M", "10 M"}));
}

TEST(KwaliteitPlaat, LabelsSignsThatLieOverOneAnotherOnce) {
  std::string const svg = tekenPlaat({vergelijking(
      "a.wav", {van(ArraySoort::pcm, 8, 16006, 25), van(ArraySoort::pcm, 10, 16006, 35),
                van(ArraySoort::pcm, 12, 16006, 35), van(ArraySoort::pcm, 16, 16006, 35),
                van(ArraySoort::wav, 16, 16044, 35), speex(2, 500, 11)})});
  EXPECT_EQ(plaatsen(svg, cirkel).size(), 4U);
  EXPECT_EQ(alle(svg, R"re(font-size="11" text-anchor="(?:start|middle)">([^<]*))re"),
            (std::vector<std::string>{"2", "8", "10, 12, 16"}));
  EXPECT_EQ(alle(svg, R"re(font-size="11" text-anchor="end">([^<]*))re"),
            (std::vector<std::string>{"16"}));
}

TEST(KwaliteitPlaat, ShortensNamesThatHaveNoRoom) {
  std::string const lang(60, 'x');
  EXPECT_EQ(alle(tekenPlaat({vergelijking(lang, {speex(2, 500, 11)})}),
                 R"re(y="24.0" text-anchor="middle">([^<]*))re"),
            std::vector<std::string>{std::string(39, 'x') + "\xE2\x80\xA6, 8000 Hz"});
}

// A sign of four bytes is two of a wchar_t on Windows.
TEST(KwaliteitPlaat, ShortensNamesBetweenCharacters) {
  std::string const vogel = "\xF0\x9F\x90\xA6";
  std::string heel;
  for (int i = 0; i < 40; ++i) {
    heel += vogel;
  }
  std::string const negenendertig = heel.substr(0, 39 * vogel.size());
  auto const kop = [](std::string const& naam) {
    return alle(tekenPlaat({vergelijking(naam, {speex(2, 500, 11)})}),
                R"re(y="24.0" text-anchor="middle">([^<]*))re");
  };
  EXPECT_EQ(kop(heel), std::vector<std::string>{heel + ", 8000 Hz"});
  EXPECT_EQ(kop(heel + "x"), std::vector<std::string>{negenendertig + "\xE2\x80\xA6, 8000 Hz"});
}
