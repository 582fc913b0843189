// kestrolin-cli compare as a process: its tables, its JSON and its picture.
#include <filesystem>
#include <nlohmann/json.hpp>
#include <regex>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/wavMaker.h"

namespace fs = std::filesystem;

namespace {

using Json = nlohmann::ordered_json;

class Vergelijk : public ProgrammaProef {
 protected:
  void haal(std::string const& naam) {
    fs::copy_file(std::string(KESTROLIN_FRAGMENTEN) + "/" + naam, map.pad(naam));
  }
  std::string eis(std::vector<std::string> const& woorden) {
    std::vector<std::string> alle{"compare"};
    alle.insert(alle.end(), woorden.begin(), woorden.end());
    Afloop const afloop = voer(alle);
    EXPECT_EQ(afloop.status, 0);
    EXPECT_EQ(afloop.fouten, "");
    return afloop.uit;
  }
};

// The codec's arithmetic is in floating point, so its figures are held elsewhere, less strictly.
std::string zonderSpeexFiguren(std::string const& tabel) {
  return std::regex_replace(tabel, std::regex("(Speex .{45}) +[0-9.]+ +[0-9.]+\n"), "$1\n");
}

constexpr char const* uitleg =
    "fwSNRseg is the frequency-weighted segmental signal-to-noise ratio of what a\n"
    "target plays, from -10 to 35 dB: the figure to go by. SNRseg compares the waves,\n"
    "which Speex does not keep: there it says little.\n"
    "Speex has the settings of a first start of the window.\n";
constexpr char const* uitlegAdpcm =
    "ADPCM takes the low byte of each sample: a recording at full level, as it is,\n"
    "comes out as noise. Bring it down to 8 bits first, as in:\n"
    "  sox -D IN.wav OUT.wav vol 0.00387\n";
constexpr char const* uitlegStil = "-: no 30 ms of the recording are loud enough to be measured.\n";

}  // namespace

// PCM, ADPCM and the rates of Speex are those of the table in docs/firmware.md. The figures of PCM
// and WAV are numpy's, of samples divided toward zero and shifted down.
TEST_F(Vergelijk, TellsOfEachEncoder) {
  haal("ready.wav");
  haal("chime.wav");
  EXPECT_EQ(zonderSpeexFiguren(eis({"ready.wav", "./chime.wav"})),
            "ready.wav: 8000 Hz, 1 channel, 0.626 s\n"
            "\n"
            "Encoder  Setting                    Bytes   Bytes/s  fwSNRseg (dB)  SNRseg (dB)\n"
            "Speex    quality 2                    489       782\n"
            "Speex    quality 4                    634      1013\n"
            "Speex    quality 6                    866      1384\n"
            "Speex    quality 8                   1156      1848\n"
            "Speex    quality 10                  1852      2960\n"
            "ADPCM    as it is                    2511      4014           -6.5        -10.0\n"
            "ADPCM    brought down to 8 bits      2511      4014           18.3         18.4\n"
            "PCM      8-bit DAC                  10016     16010           23.4         25.6\n"
            "PCM      10-bit DAC                 10016     16010           29.3         33.2\n"
            "PCM      12-bit DAC                 10016     16010           33.2         35.0\n"
            "PCM      16-bit DAC                 10016     16010           35.0         35.0\n"
            "WAV      8-bit DAC                  10054     16070           25.2         24.9\n"
            "WAV      10-bit DAC                 10054     16070           30.2         32.8\n"
            "WAV      12-bit DAC                 10054     16070           33.6         34.9\n"
            "WAV      16-bit DAC                 10054     16070           35.0         35.0\n"
            "\n"
            "./chime.wav: 16000 Hz, 1 channel, 1.200 s\n"
            "\n"
            "Encoder  Setting                    Bytes   Bytes/s  fwSNRseg (dB)  SNRseg (dB)\n"
            "Speex    quality 2                   1094       912\n"
            "Speex    quality 4                   1610      1342\n"
            "Speex    quality 6                   2470      2058\n"
            "Speex    quality 8                   3304      2753\n"
            "Speex    quality 10                  4792      3993\n"
            "ADPCM    as it is                    9609      8008           -8.6         -9.8\n"
            "ADPCM    brought down to 8 bits      9609      8008            3.0         14.4\n"
            "PCM      8-bit DAC                  38406     32005            4.0         13.9\n"
            "PCM      10-bit DAC                 38406     32005            8.9         22.3\n"
            "PCM      12-bit DAC                 38406     32005           19.4         29.5\n"
            "PCM      16-bit DAC                 38406     32005           35.0         35.0\n"
            "WAV      8-bit DAC                  38444     32037            3.7         12.2\n"
            "WAV      10-bit DAC                 38444     32037            9.4         22.2\n"
            "WAV      12-bit DAC                 38444     32037           20.7         29.4\n"
            "WAV      16-bit DAC                 38444     32037           35.0         35.0\n"
            "\n" +
                std::string(uitleg) + uitlegAdpcm);
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"chime.wav", "ready.wav"}));
}

TEST_F(Vergelijk, TellsWhatSilenceAndSeveralChannelsDo) {
  schrijfWav(map.pad("leeg.wav"), {}, {16000});
  schrijfWav(map.pad("paar.wav"), std::vector<int>(600, 100), {8000, 2});
  std::string const uit = eis({"leeg.wav", "paar.wav"});
  EXPECT_EQ(uit.substr(0, uit.find("\npaar.wav")),
            "leeg.wav: 16000 Hz, 1 channel, 0.000 s\n"
            "\n"
            "Encoder  Setting                    Bytes   Bytes/s  fwSNRseg (dB)  SNRseg (dB)\n"
            "Speex    quality 2                      4         -              -            -\n"
            "Speex    quality 4                      4         -              -            -\n"
            "Speex    quality 6                      4         -              -            -\n"
            "Speex    quality 8                      4         -              -            -\n"
            "Speex    quality 10                     4         -              -            -\n"
            "ADPCM    as it is                       9         -              -            -\n"
            "PCM      8-bit DAC                      6         -              -            -\n"
            "PCM      10-bit DAC                     6         -              -            -\n"
            "PCM      12-bit DAC                     6         -              -            -\n"
            "PCM      16-bit DAC                     6         -              -            -\n"
            "WAV      8-bit DAC                     44         -              -            -\n"
            "WAV      10-bit DAC                    44         -              -            -\n"
            "WAV      12-bit DAC                    44         -              -            -\n"
            "WAV      16-bit DAC                    44         -              -            -\n");
  EXPECT_EQ(uit.substr(uit.find("fwSNRseg is")),
            std::string(uitleg) + uitlegStil +
                "paar.wav fits 8 bits. ADPCM is measured\n"
                "at the level at which a DAC of 8 bits plays that.\n"
                "paar.wav has 2 channels. Encoders take the first\n"
                "300 of its values, the channels in turn: not all of the sound. The figures\n"
                "are of these values. Make it mono first, as in: sox IN.wav -c 1 OUT.wav\n");
}

TEST_F(Vergelijk, PrintsJson) {
  haal("ready.wav");
  schrijfWav(map.pad("leeg.wav"), {}, {32000, 2});
  std::string const uit = eis({"--json", "ready.wav", "leeg.wav"});
  Json const alles = Json::parse(uit);
  EXPECT_EQ(uit, alles.dump(2) + "\n");
  Json const& opnamen = alles.at("recordings");
  ASSERT_EQ(opnamen.size(), 2U);
  Json kop = opnamen[0];
  kop.erase("encodings");
  EXPECT_EQ(kop.dump(),
            R"({"file":"ready.wav","rate":8000,"channels":1,"samples":5005,"duration":0.625625,)"
            R"("fits_low_byte":false})");
  Json const& encoderingen = opnamen[0].at("encodings");
  ASSERT_EQ(encoderingen.size(), 15U);
  EXPECT_EQ(encoderingen[6].dump(),
            R"({"encoder":"adpcm","setting":"brought down to 8 bits","quality":null,"dac":16,)"
            R"("bytes":2511,"bytes_per_second":4014,"fwsnrseg":18.35,"snrseg":18.38})");
  EXPECT_EQ(encoderingen[12].dump(),
            R"({"encoder":"wav","setting":"10-bit DAC","quality":null,"dac":10,)"
            R"("bytes":10054,"bytes_per_second":16070,"fwsnrseg":30.16,"snrseg":32.84})");
  EXPECT_EQ(opnamen[1].at("encodings")[0].dump(),
            R"({"encoder":"speex","setting":"quality 2","quality":2,"dac":16,)"
            R"("bytes":4,"bytes_per_second":null,"fwsnrseg":null,"snrseg":null})");
}

// As the table in docs/firmware.md has them.
TEST_F(Vergelijk, MeasuresSpeex) {
  haal("ready.wav");
  Json const encoderingen =
      Json::parse(eis({"--json", "ready.wav"})).at("recordings")[0].at("encodings");
  struct Rij {
    int kwaliteit;
    double banden;
    double golven;
  };
  std::size_t nummer = 0;
  for (Rij const& rij : {Rij{2, 11.1, 2.2}, Rij{4, 12.2, 2.6}, Rij{6, 14.9, 3.0}, Rij{8, 17.9, 3.2},
                         Rij{10, 21.2, 3.6}}) {
    Json const& encodering = encoderingen.at(nummer++);
    EXPECT_EQ(encodering.at("encoder"), "speex");
    EXPECT_EQ(encodering.at("quality"), rij.kwaliteit);
    EXPECT_NEAR(encodering.at("fwsnrseg").get<double>(), rij.banden, 0.2);
    EXPECT_NEAR(encodering.at("snrseg").get<double>(), rij.golven, 0.2);
  }
}

TEST_F(Vergelijk, DrawsAPictureThatReplacesAnother) {
  haal("ready.wav");
  // A name that a picture cannot hold as it stands.
  std::string const naam = "a<b>&\"c\x01.wav";
  fs::rename(map.pad("ready.wav"), map.pad(naam));
  maakBestand(map.pad("p.svg"), "what was there before");
  EXPECT_EQ(zonderSpeexFiguren(eis({naam})), zonderSpeexFiguren(eis({naam, "--plot", "p.svg"})));
  EXPECT_EQ(inhoud(), (std::vector<std::string>{naam, "p.svg"}));
  EXPECT_EQ(voerUit("rsvg-convert -o '" + map.pad("p.png") + "' '" + map.pad("p.svg") + "'"), 0);
}

TEST_F(Vergelijk, RejectsFilesWithALineEachAndWritesNothing) {
  haal("ready.wav");
  schrijfWav(map.pad("snel.wav"), {1, 2}, {44100});
  maakBestand(map.pad("p.svg"), "what was there before");
  std::vector<std::string> const voor = inhoud();
  Afloop const afloop =
      voer({"compare", "--plot", "p.svg", "ready.wav", "snel.wav", "weg.wav", "p.svg"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.uit, "");
  std::string const sox = "; convert it first, as in: sox IN.wav -r 16000 -b 16 -c 1 OUT.wav\n";
  EXPECT_EQ(
      afloop.fouten,
      "kestrolin-cli: snel.wav: is WAV (Microsoft), Signed 16 bit PCM, 44100 Hz, not a WAV "
      "file with 16-bit PCM or IMA ADPCM samples at 8000, 16000 or 32000 Hz" +
          sox +
          "kestrolin-cli: weg.wav: cannot be read: No such file or directory; check the path\n" +
          "kestrolin-cli: p.svg: is no WAV file" + sox);
  EXPECT_EQ(inhoud(), voor);
  EXPECT_EQ(tekst("p.svg"), "what was there before");
}

TEST_F(Vergelijk, DoesNotDrawOverARecording) {
  haal("ready.wav");
  std::string const voor = tekst("ready.wav");
  fs::create_symlink("ready.wav", map.pad("p.svg"));
  Afloop const afloop = voer({"compare", "ready.wav", "--plot", "p.svg"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.uit, "");
  EXPECT_EQ(afloop.fouten,
            "kestrolin-cli: cannot write p.svg: it is one of the files to read; give another "
            "name\n");
  EXPECT_EQ(tekst("ready.wav"), voor);
}

TEST_F(Vergelijk, TellsWhereThePictureCannotBeWritten) {
  haal("ready.wav");
  Afloop const vol = voer({"compare", "ready.wav", "--plot", "/dev/full"});
  EXPECT_EQ(vol.status, 1);
  EXPECT_EQ(vol.uit, "");
  EXPECT_EQ(vol.fouten,
            "kestrolin-cli: cannot write /dev/full: No space left on device; make room, or give "
            "another place\n");
  Afloop const zonderMap = voer({"compare", "ready.wav", "--plot", "weg/p.svg"});
  EXPECT_EQ(zonderMap.status, 1);
  EXPECT_EQ(zonderMap.uit, "");
  EXPECT_EQ(zonderMap.fouten,
            "kestrolin-cli: cannot write weg/p.svg: No such file or directory; check the path\n");
}

TEST_F(Vergelijk, KeepsThePictureWhereTheFiguresCannotBeWritten) {
  haal("ready.wav");
  maakBestand(map.pad("p.svg"), "old");
  EXPECT_NE(voerUit("cd '" + map.pad() +
                    "' && '" KESTROLIN_CLI "' compare ready.wav --plot p.svg >/dev/full 2>fouten"),
            0);
  EXPECT_EQ(tekst("p.svg"), "old");
  EXPECT_EQ(tekst("fouten"),
            "kestrolin-cli: cannot write -: No space left on device; make room, or give another "
            "place\n");
}

TEST_F(Vergelijk, TellsWhereThereIsNoPlaceForTemporaryFiles) {
  haal("ready.wav");
  omgeving["TMPDIR"] = "weg";
  Afloop const afloop = voer({"compare", "ready.wav"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.uit, "");
  EXPECT_EQ(afloop.fouten,
            "kestrolin-cli: cannot make a temporary file in weg: No such file or directory; let "
            "TMPDIR name a folder with room\n");
}

TEST_F(Vergelijk, SaysHowItIsUsed) {
  haal("ready.wav");
  Afloop const uitvoer = voer({"compare", "ready.wav", "--plot", "-"});
  EXPECT_EQ(uitvoer.status, 2);
  EXPECT_EQ(uitvoer.uit, "");
  EXPECT_EQ(uitvoer.fouten.substr(0, uitvoer.fouten.find('\n')),
            "kestrolin-cli: standard output has the figures; give the plot a file");
  EXPECT_EQ(voer({"compare"}).status, 2);
}
