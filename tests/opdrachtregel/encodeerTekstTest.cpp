// The texts that kestrolin-cli encode makes, whole, for each encoder, language, width and header.
#include <wx/string.h>

#include <tuple>

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/verwachteRun.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/wavMaker.h"

namespace {

// The moment of 1234567890 seconds, which is known from elsewhere.
constexpr char const* epoch = "1234567890";
std::string const epochRegel = "/* Date : 2009-02-13 : 23:31:30\t\t*/\n";

// The text with `epochRegel` in the place of each moment.
std::string metMoment(std::string tekst) {
  for (std::size_t plaats = tekst.find(momentRegel); plaats != std::string::npos;
       plaats = tekst.find(momentRegel, plaats)) {
    tekst.replace(plaats, momentRegel.size(), epochRegel);
  }
  return tekst;
}

struct WijzeNaam {
  Wijze wijze;
  char const* optie;
};

std::vector<WijzeNaam> const wijzen{
    {Wijze::pcm, "pcm"}, {Wijze::adpcm, "adpcm"}, {Wijze::inbed, "wav"}};

class EncodeerTekst : public ProgrammaProef {
 protected:
  EncodeerTekst() { omgeving["SOURCE_DATE_EPOCH"] = epoch; }

  void wav(std::string const& naam, std::vector<int> const& samples, int rate = 8000) const {
    schrijfWav(map.pad(naam), samples, {rate});
  }
};

TEST_F(EncodeerTekst, IsWorkedOutForEachEncoderLanguageWidthAndHeader) {
  std::vector<int> const een{1, -1, 300, -300, 32767, -32768, 5};
  std::vector<int> const twee{100, 90, -80, 12};
  wav("een.wav", een);
  wav("twee.wav", twee);
  for (WijzeNaam const& wijze : wijzen) {
    for (int const taal : {0, 1}) {
      for (int const bits : {8, 10, 12, 16}) {
        for (bool const header : {true, false}) {
          std::vector<std::string> woorden{
              "encode", "twee.wav",           "een.wav", "--encoder", wijze.optie,
              "--dac",  std::to_string(bits), "-o",      "t"};
          if (taal == 1) {
            woorden.insert(woorden.end(), {"--language", "c++", "--class", "Geluid"});
          }
          if (!header) {
            woorden.emplace_back("--no-header");
          }
          Afloop const afloop = voer(woorden);
          EXPECT_EQ(afloop.status, 0);
          EXPECT_EQ(afloop.uit + afloop.fouten, "");
          EXPECT_EQ(tekst("t"),
                    metMoment(verwachteRun(wijze.wijze, {taal, "Geluid", bits, header, 8000},
                                           {{"een", een}, {"twee", twee}})))
              << wijze.optie << " " << taal << " " << bits << " " << header;
        }
      }
    }
  }
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"een.wav", "t", "twee.wav"}));
}

TEST_F(EncodeerTekst, DefaultsArePcmInCForSixteenBitsWithHeader) {
  wav("een.wav", {1, 2, 3}, 32000);
  EXPECT_EQ(voer({"encode", "een.wav", "-o", "t"}).status, 0);
  EXPECT_EQ(tekst("t"),
            metMoment(verwachteRun(Wijze::pcm, {0, "", 16, true, 32000}, {{"een", {1, 2, 3}}})));
}

TEST_F(EncodeerTekst, GoesToStandardOutputWhole) {
  wav("een.wav", {1, 2, 3});
  Afloop const afloop = voer({"encode", "een.wav", "-o", "-"});
  EXPECT_EQ(afloop.status, 0);
  EXPECT_EQ(afloop.uit, metMoment(verwachteRun(Wijze::pcm, {}, {{"een", {1, 2, 3}}})));
  EXPECT_EQ(afloop.fouten, "");
  EXPECT_EQ(inhoud(), std::vector<std::string>{"een.wav"});
}

TEST_F(EncodeerTekst, AppendsBehindWhatIsThere) {
  wav("een.wav", {1, 2, 3});
  wav("twee.wav", {4});
  EXPECT_EQ(voer({"encode", "een.wav", "-o", "t", "--append"}).status, 0);
  EXPECT_EQ(voer({"encode", "twee.wav", "-o", "t", "--append"}).status, 0);
  EXPECT_EQ(tekst("t"), metMoment(verwachteRun(Wijze::pcm, {}, {{"een", {1, 2, 3}}}) +
                                  verwachteRun(Wijze::pcm, {}, {{"twee", {4}}})));
}

TEST_F(EncodeerTekst, ReplacesWhatIsThereWithoutAppend) {
  wav("een.wav", {1, 2, 3});
  maakBestand(map.pad("t"), std::string(100000, 'x'));
  EXPECT_EQ(voer({"encode", "een.wav", "-o", "t"}).status, 0);
  EXPECT_EQ(tekst("t"), metMoment(verwachteRun(Wijze::pcm, {}, {{"een", {1, 2, 3}}})));
}

// "/* Date : 2026-11-22" in a zone that is so many hours ahead of UTC.
std::string datumRegel(int uren) {
  std::time_t const daar = std::time(nullptr) + static_cast<std::time_t>(uren) * 3600;
  std::array<char, 32> datum{};
  std::strftime(datum.data(), datum.size(), "/* Date : %Y-%m-%d", std::gmtime(&daar));
  return datum.data();
}

// Two zones in which it is never the same day.
TEST_F(EncodeerTekst, BearsTheMomentOfNowInLocalTimeWithoutAnEpoch) {
  wav("een.wav", {1});
  omgeving["SOURCE_DATE_EPOCH"] = "";
  for (int const uren : {14, -12}) {
    omgeving["TZ"] = uren > 0 ? "OOST-14" : "WEST12";
    std::string const voor = datumRegel(uren);
    std::string const tekst = voer({"encode", "een.wav", "-o", "-"}).uit;
    std::string const na = datumRegel(uren);
    EXPECT_TRUE(tekst.find(voor) != std::string::npos || tekst.find(na) != std::string::npos)
        << voor << "\n"
        << tekst;
  }
}

TEST_F(EncodeerTekst, TheEpochIsUtcInEveryTimeZone) {
  wav("een.wav", {1});
  omgeving["TZ"] = "UTC-14";
  EXPECT_EQ(voer({"encode", "een.wav", "-o", "-"}).uit,
            metMoment(verwachteRun(Wijze::pcm, {}, {{"een", {1}}})));
}

TEST_F(EncodeerTekst, IsTheSameInEveryLocaleAndForEveryFormOfAPath) {
  std::filesystem::create_directories(map.pad("größe en meer/x"));
  wav("größe en meer/een.wav", {1, 2});
  std::string const verwacht = metMoment(verwachteRun(Wijze::pcm, {}, {{"een", {1, 2}}}));
  for (char const* const locale : {"C", "nl_NL.UTF-8", "de_DE.ISO-8859-1", "xx_XX"}) {
    omgeving["LC_ALL"] = locale;
    for (std::string const pad : {"größe en meer/een.wav", "./größe en meer/x/../een.wav"}) {
      Afloop const afloop = voer({"encode", pad, "-o", "-"});
      EXPECT_EQ(afloop.uit, verwacht) << locale;
      EXPECT_EQ(afloop.fouten, "");
    }
  }
}

}  // namespace
