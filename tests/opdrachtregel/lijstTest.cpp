// What kestrolin-cli list says, whole.
#include <fcntl.h>
#include <unistd.h>

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/verwachteRun.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/bytes.h"
#include "tests/steun/wavMaker.h"

namespace {

// A file as standard input of this process, and of those that it starts.
class AlsInvoer {
 public:
  explicit AlsInvoer(std::string const& pad) : vorige(dup(STDIN_FILENO)) {
    int const bestand = open(pad.c_str(), O_RDONLY | O_CLOEXEC);
    dup2(bestand, STDIN_FILENO);
    close(bestand);
  }
  ~AlsInvoer() {
    dup2(vorige, STDIN_FILENO);
    close(vorige);
  }
  AlsInvoer(AlsInvoer const&) = delete;
  AlsInvoer& operator=(AlsInvoer const&) = delete;
  AlsInvoer(AlsInvoer&&) = delete;
  AlsInvoer& operator=(AlsInvoer&&) = delete;

 private:
  int vorige;
};

class Lijst : public ProgrammaProef {
 protected:
  Lijst() {
    maakBestand(map.pad("pcm.c"), verwachteRun(Wijze::pcm, {0, "", 12, true, 8000},
                                               {{"bel", std::vector<int>(12345, 7)}, {"x", {1}}}));
    maakBestand(map.pad("adpcm.cpp"), verwachteRun(Wijze::adpcm, {1, "Geluid", 16, false, 16000},
                                                   {{"alarm_signaal", {1, 2, 3}}}));
    maakBestand(map.pad("wav.c"),
                verwachteRun(Wijze::inbed, {0, "", 10, true, 32000}, {{"beeld", {1, 2, 3, 4}}}));
  }

  Afloop lijst(std::vector<std::string> woorden) const {
    woorden.insert(woorden.begin(), "list");
    return voer(woorden);
  }

  static void verwacht(Afloop const& afloop, int status, std::string const& uit,
                       std::string const& fouten) {
    EXPECT_EQ(afloop.status, status);
    EXPECT_EQ(afloop.uit, uit);
    EXPECT_EQ(afloop.fouten, fouten);
  }
};

TEST_F(Lijst, TellsOfTheArraysOfOneText) {
  verwacht(lijst({"pcm.c"}), 0,
           "Array            Encoder  Rate (Hz)  Samples  Duration (s)  Bytes\n"
           "bel              PCM           8000    12345         1.543  24696\n"
           "x                PCM           8000        1         0.000      8\n"
           "Total: 2 arrays                        12346         1.543  24704\n",
           "");
}

TEST_F(Lijst, HasAColumnOfFilesWhereThereAreSeveral) {
  verwacht(
      lijst({"wav.c", "pcm.c", "adpcm.cpp"}), 0,
      "File             Array                  Encoder  Rate (Hz)  Samples  Duration (s)  Bytes\n"
      "wav.c            beeld                  WAV          32000        4         0.000     52\n"
      "pcm.c            bel                    PCM           8000    12345         1.543  24696\n"
      "pcm.c            x                      PCM           8000        1         0.000      8\n"
      "adpcm.cpp        Geluid::alarm_signaal  ADPCM        16000        2         0.000     10\n"
      "Total: 4 arrays                                               12352         1.543  24766\n",
      "");
}

TEST_F(Lijst, PutsNamesOfAnyLettersIntoTheirColumn) {
  maakBestand(map.pad("pcm.c"),
              verwachteRun(Wijze::pcm, {}, {{"\xC3\xA9\xC3\xA9n", {1, 2}}, {"b", {}}}));
  verwacht(lijst({"pcm.c"}), 0,
           "Array            Encoder  Rate (Hz)  Samples  Duration (s)  Bytes\n"
           "\xC3\xA9\xC3\xA9n              PCM           8000        2         0.000     10\n"
           "b                PCM           8000        0         0.000      6\n"
           "Total: 2 arrays                            2         0.000     16\n",
           "");
}

TEST_F(Lijst, ReadsStandardInput) {
  AlsInvoer const invoer(map.pad("wav.c"));
  verwacht(lijst({"-"}), 0,
           "Array           Encoder  Rate (Hz)  Samples  Duration (s)  Bytes\n"
           "beeld           WAV          32000        4         0.000     52\n"
           "Total: 1 array                            4         0.000     52\n",
           "");
}

TEST_F(Lijst, PrintsTheSameForScripts) {
  verwacht(lijst({"--json", "adpcm.cpp", "wav.c"}), 0, R"({
  "arrays": [
    {
      "file": "adpcm.cpp",
      "array": "alarm_signaal",
      "class": "Geluid",
      "encoder": "adpcm",
      "rate": 16000,
      "samples": 2,
      "duration": 0.000125,
      "bytes": 10,
      "header": false,
      "dac": null
    },
    {
      "file": "wav.c",
      "array": "beeld",
      "class": null,
      "encoder": "wav",
      "rate": 32000,
      "samples": 4,
      "duration": 0.000125,
      "bytes": 52,
      "header": true,
      "dac": 10
    }
  ],
  "total": {
    "arrays": 2,
    "samples": 6,
    "duration": 0.00025,
    "bytes": 62
  }
}
)",
           "");
}

TEST_F(Lijst, ShowsNamesOfFilesThatAreNoText) {
  std::string const naam = "a\n\xFF.c";
  maakBestand(map.pad(naam), tekst("wav.c"));
  Afloop const afloop = lijst({"--json", naam});
  EXPECT_EQ(afloop.status, 0);
  EXPECT_NE(afloop.uit.find("\"file\": \"a\\n\xEF\xBF\xBD.c\""), std::string::npos) << afloop.uit;
  Afloop const rijen = lijst({naam, "pcm.c"});
  EXPECT_EQ(rijen.status, 0);
  EXPECT_NE(rijen.uit.find("\na?\xFF.c "), std::string::npos) << rijen.uit;
}

TEST_F(Lijst, SaysNothingButWhatIsWrongWithAnyOfTheTexts) {
  maakBestand(map.pad("half.c"), tekst("pcm.c").substr(0, 5000));
  maakBestand(map.pad("twee.c"), "char a[] = {1};\n\nint b[] = {2};\n");
  maakBestand(map.pad("leeg.c"), "");
  verwacht(
      lijst({"pcm.c", "half.c", "weg.c", "twee.c", ".", "leeg.c"}), 1, "",
      "kestrolin-cli: half.c:" +
          std::to_string(1 +
                         [this] {
                           std::string const deel = tekst("half.c");
                           return std::count(deel.begin(), deel.end(), '\n');
                         }()) +
          ": the array bel is cut off here: encode it again\n"
          "kestrolin-cli: cannot read weg.c: No such file or directory; give a text that Kestrolin "
          "wrote\n"
          "kestrolin-cli: twee.c:1: no comments of Kestrolin tell what this array holds: keep them "
          "before it\n"
          "kestrolin-cli: twee.c:3: no comments of Kestrolin tell what this array holds: keep them "
          "before it\n"
          "kestrolin-cli: cannot read .: Is a directory; give a text that Kestrolin wrote\n"
          "kestrolin-cli: leeg.c: no array of Kestrolin stands in this text\n");
  Afloop const json = lijst({"--json", "half.c", "pcm.c"});
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(json.uit, "");
}

TEST_F(Lijst, AsksForATextAndTakesNoOptionThatItHasNot) {
  Afloop const zonder = lijst({});
  EXPECT_EQ(zonder.status, 2);
  EXPECT_EQ(zonder.uit, "");
  EXPECT_EQ(zonder.fouten,
            "kestrolin-cli: FILE is required\n"
            "  FILE...                 Texts, of the window too; - is standard input\n"
            "Try 'kestrolin-cli list --help' for all of it.\n");
  EXPECT_EQ(lijst({"--xml", "pcm.c"}).status, 2);
}

TEST_F(Lijst, WritesNothing) {
  std::vector<std::string> const voor = inhoud();
  EXPECT_EQ(lijst({"pcm.c", "wav.c"}).status, 0);
  EXPECT_EQ(inhoud(), voor);
}

}  // namespace
