// What kestrolin-cli encode does not take: a line for each fault that names the file and the
// remedy, status 1, and no file touched.
#include <filesystem>

#include "opdrachtregel/melding.h"
#include "opdrachtregel/opname.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/wavMaker.h"

namespace {

constexpr char const* oud = "what was there before\n";
constexpr char const* sox = "; convert it first, as in: sox IN.wav -r 16000 -b 16 -c 1 OUT.wav\n";

class EncodeerFouten : public ProgrammaProef {
 protected:
  EncodeerFouten() {
    maakWav(map.pad("goed.wav"), {1, 2, 3});
    maakBestand(map.pad("t"), oud);
  }

  // The exit status of the program in a line of shell, and its messages where they are.
  std::string inSchil(std::string const& regel) const {
    voerUit("cd '" + map.pad() + "' && bash -c \"set -o pipefail; '" KESTROLIN_CLI "' " + regel +
            "\" 2>.fouten; echo $? >.status");
    std::string status = tekst(".status");
    status.back() = ' ';
    std::string const fouten = tekst(".fouten");
    std::filesystem::remove(map.pad(".status"));
    std::filesystem::remove(map.pad(".fouten"));
    return status + fouten;
  }

  // Encodes, over a text of before; expects these lines and nothing else.
  void eis(std::vector<std::string> const& woorden, std::string const& fouten) {
    std::vector<std::string> alle{"encode", "-o", "t"};
    alle.insert(alle.end(), woorden.begin(), woorden.end());
    std::vector<std::string> const voor = inhoud();
    Afloop const afloop = voer(alle);
    EXPECT_EQ(afloop.status, 1);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_EQ(afloop.fouten, fouten);
    EXPECT_EQ(tekst("t"), oud);
    EXPECT_EQ(inhoud(), voor);
  }
};

TEST_F(EncodeerFouten, FilesThatAreNoRecordingsAreToldEach) {
  maakBestand(map.pad("tekst.wav"), "hello");
  schrijfWav(map.pad("acht.wav"), {1, 2}, {8000, 1, 8});
  schrijfWav(map.pad("snel.wav"), {1, 2}, {44100});
  std::filesystem::create_directory(map.pad("map.wav"));
  eis({"goed.wav", "weg.wav", "tekst.wav", "acht.wav", "snel.wav", "map.wav", ""},
      "kestrolin-cli: weg.wav: cannot be read: No such file or directory; check the path\n"
      "kestrolin-cli: tekst.wav: is no WAV file" +
          std::string(sox) +
          "kestrolin-cli: acht.wav: is WAV (Microsoft), Unsigned 8 bit PCM, 8000 Hz, not a WAV "
          "file "
          "with 16-bit PCM or IMA ADPCM samples at 8000, 16000 or 32000 Hz" +
          sox +
          "kestrolin-cli: snel.wav: is WAV (Microsoft), Signed 16 bit PCM, 44100 Hz, not a WAV "
          "file "
          "with 16-bit PCM or IMA ADPCM samples at 8000, 16000 or 32000 Hz" +
          sox +
          "kestrolin-cli: map.wav: this is a folder; give the WAV files in it\n"
          "kestrolin-cli: : this names no file; give the path of a WAV file, in UTF-8\n");
}

TEST_F(EncodeerFouten, NamesThatAreNotUtf8) {
  maakWav(map.pad("gr\xF6\xDF"
                  "e.wav"),
          {1});
  eis({"gr\xF6\xDF"
       "e.wav"},
      "kestrolin-cli: gr\xF6\xDF"
      "e.wav: this names no file; give the path of a WAV file, in UTF-8\n");
}

TEST_F(EncodeerFouten, RecordingsOfTwoRates) {
  maakWav(map.pad("snel.wav"), {1}, {16000});
  maakWav(map.pad("ook.wav"), {1}, {32000});
  eis({"snel.wav", "goed.wav", "ook.wav"},
      "kestrolin-cli: goed.wav: has 8000 Hz where snel.wav has 16000 Hz; encode each rate by "
      "itself, or convert one of them\n"
      "kestrolin-cli: ook.wav: has 32000 Hz where snel.wav has 16000 Hz; encode each rate by "
      "itself, or convert one of them\n");
}

TEST_F(EncodeerFouten, NamesThatAreNoneInTheLanguage) {
  for (char const* const naam : {"a-b.wav", "1e.wav", "int.wav", "new.wav", "é.wav", "a.b.wav",
                                 "_Alarm.wav", "a__b.wav", "size_t.wav", "Geluid.wav"}) {
    maakWav(map.pad(naam), {1});
  }
  std::string const eind = ", which is no name in C; rename the file\n";
  eis({"a-b.wav", "1e.wav", "int.wav", "é.wav", "a.b.wav", "_Alarm.wav", "a__b.wav", "size_t.wav"},
      "kestrolin-cli: a-b.wav: its array would be called \"a-b\"" + eind +
          "kestrolin-cli: 1e.wav: its array would be called \"1e\"" + eind +
          "kestrolin-cli: int.wav: its array would be called \"int\"" + eind +
          "kestrolin-cli: é.wav: its array would be called \"é\"" + eind +
          "kestrolin-cli: a.b.wav: its array would be called \"a.b\"" + eind +
          "kestrolin-cli: _Alarm.wav: its array would be called \"_Alarm\"" + eind +
          "kestrolin-cli: a__b.wav: its array would be called \"a__b\"" + eind +
          "kestrolin-cli: size_t.wav: its array would be called \"size_t\"" + eind);
  // A word of C++ alone, and the name of the class.
  eis({"new.wav", "Geluid.wav", "--language", "c++", "--class", "Geluid"},
      "kestrolin-cli: new.wav: its array would be called \"new\", which is no name in C++; rename "
      "the file\n"
      "kestrolin-cli: Geluid.wav: its array would be called \"Geluid\", as its class is; rename "
      "the "
      "file or the class\n");
  EXPECT_EQ(voer({"encode", "new.wav", "Geluid.wav", "-o", "-"}).status, 0);
}

TEST_F(EncodeerFouten, TwoFilesOfOneName) {
  std::filesystem::create_directory(map.pad("x"));
  maakWav(map.pad("x/goed.wav"), {1});
  eis({"goed.wav", "x/goed.wav"},
      "kestrolin-cli: x/goed.wav: its array would be called \"goed\", as that of goed.wav; rename "
      "one of them\n");
  eis({"goed.wav", "./goed.wav"},
      "kestrolin-cli: ./goed.wav: its array would be called \"goed\", as that of goed.wav; rename "
      "one of them\n");
}

// Whoever appends in a build would do so each time.
TEST_F(EncodeerFouten, AnArrayThatTheTextToAppendToHasAlready) {
  ASSERT_EQ(voer({"encode", "goed.wav", "-o", "u"}).status, 0);
  maakWav(map.pad("ook.wav"), {1});
  std::string const voor = tekst("u");
  Afloop const afloop = voer({"encode", "goed.wav", "ook.wav", "-o", "u", "--append"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.fouten,
            "kestrolin-cli: goed.wav: its array would be called \"goed\", as one that is in u "
            "already; rename the file, or make u anew without --append\n");
  EXPECT_EQ(tekst("u"), voor);
  // The member of a class is another array; so is one of another file.
  EXPECT_EQ(voer({"encode", "goed.wav", "-o", "u", "--append", "--language", "c++", "--class", "G"})
                .status,
            0);
  EXPECT_EQ(voer({"encode", "ook.wav", "-o", "u", "--append"}).status, 0);
  // What is no generated text can be appended to.
  EXPECT_EQ(voer({"encode", "goed.wav", "-o", "t", "--append"}).status, 0);
}

TEST_F(EncodeerFouten, AnArrayCalledAsTheSizeOfAnother) {
  maakWav(map.pad("goed_size.wav"), {1});
  eis({"goed_size.wav", "goed.wav", "--declarations", "t.h"},
      "kestrolin-cli: goed_size.wav: its array would be called \"goed_size\", as the size of that "
      "of goed.wav; rename one of them\n");
  EXPECT_EQ(voer({"encode", "goed_size.wav", "goed.wav", "-o", "-"}).status, 0);
}

TEST_F(EncodeerFouten, NamesThatCannotStandInAComment) {
  maakWav(map.pad("regel.wa\nv"), {1});
  eis({"regel.wa\nv"},
      "kestrolin-cli: regel.wa?v: its name cannot stand in a comment; rename the file\n");
}

TEST_F(EncodeerFouten, PlacesThatCannotBeWritten) {
  std::filesystem::create_directory(map.pad("map"));
  struct Rij {
    char const* doel;
    char const* reden;
  };
  for (Rij const rij :
       {Rij{"map", "it is a folder; give the name of a file in it"},
        Rij{"weg/t.h", "No such file or directory; check the path"},
        Rij{"goed.wav/t", "Not a directory; check the path"},
        Rij{"./goed.wav", "it is one of the files to read; give another name"},
        Rij{"/dev/full", "No space left on device; make room, or give another place"}}) {
    for (char const* const optie : {"--declarations", "--depfile"}) {
      eis({"goed.wav", optie, rij.doel},
          std::string("kestrolin-cli: cannot write ") + rij.doel + ": " + rij.reden + "\n");
    }
  }
  eis({"goed.wav", "--depfile", "./t"},
      "kestrolin-cli: cannot write ./t twice: give each output a file of its own\n");
}

TEST_F(EncodeerFouten, APlaceThatIsProtected) {
  zonderVoorrecht = true;
  maakBestand(map.pad("vast.h"), oud);
  std::filesystem::permissions(map.pad("vast.h"), std::filesystem::perms::owner_read);
  eis({"goed.wav", "--declarations", "vast.h"},
      "kestrolin-cli: cannot write vast.h: Permission denied; change its permissions, or give "
      "another place\n");
}

TEST_F(EncodeerFouten, SettingsThatCannotBeRead) {
  eis({"goed.wav", "--settings", "weg"},
      "kestrolin-cli: cannot read the settings in weg: No such file or directory; check the "
      "path\n");
  eis({"goed.wav", "--settings", "."},
      "kestrolin-cli: cannot read the settings in .: Is a directory; check the path\n");
  maakBestand(map.pad("ander"), "hello\n=\n[x\n");
  eis({"goed.wav", "--settings", "ander"},
      "kestrolin-cli: ander holds no settings of Kestrolin; the window writes them to "
      "~/.Kestrolin\n");
  maakBestand(map.pad("eigen"), "[Gebruikersinstellingen/Speex]\nspeexQuality=8\n");
  eis({"goed.wav", "--settings", "eigen", "--language", "c", "--declarations", "eigen"},
      "kestrolin-cli: cannot write eigen: it is one of the files to read; give another name\n");
}

TEST_F(EncodeerFouten, MomentsThatAreNone) {
  for (char const* const moment :
       {"now", "-1", "1.5", "12x", "253402300800", "99999999999999999999"}) {
    omgeving["SOURCE_DATE_EPOCH"] = moment;
    eis({"goed.wav"}, std::string("kestrolin-cli: SOURCE_DATE_EPOCH is \"") + moment +
                          "\"; give a number of seconds since 1970, or unset it\n");
  }
  omgeving["SOURCE_DATE_EPOCH"] = "253402300799";
  EXPECT_NE(voer({"encode", "goed.wav", "-o", "-"}).uit.find("/* Date : 9999-12-31 : 23:59:59"),
            std::string::npos);
}

TEST_F(EncodeerFouten, NoTemporaryFolder) {
  omgeving["TMPDIR"] = map.pad("weg");
  std::string const regel = "kestrolin-cli: cannot make a temporary file in " + map.pad("weg") +
                            ": No such file or directory; let TMPDIR name a folder with room\n";
  eis({"goed.wav", "--encoder", "wav"}, regel);
  Afloop const afloop = voer({"encode", "goed.wav", "-o", "-"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.uit, "");
  EXPECT_EQ(afloop.fouten, regel);
}

TEST_F(EncodeerFouten, DevicesThatTakeNothing) {
  constexpr char const* vol = ": No space left on device; make room, or give another place\n";
  Afloop const afloop = voer({"encode", "goed.wav", "-o", "/dev/full"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.fouten, std::string("kestrolin-cli: cannot write /dev/full") + vol);
  // The same as standard output, and one that is closed.
  EXPECT_EQ(inSchil("encode goed.wav -o - >/dev/full"),
            std::string("1 kestrolin-cli: cannot write -") + vol);
  EXPECT_EQ(
      inSchil("encode goed.wav -o - >&-"),
      "1 kestrolin-cli: cannot write -: Bad file descriptor; see to that, and run it again\n");
  EXPECT_EQ(inSchil("--help >&-"), "1 kestrolin-cli: cannot write standard output\n");
  // Nothing gets into a file that takes the place of a closed channel.
  EXPECT_EQ(inSchil("encode goed.wav weg.wav -o uit <&- >&- 2>&-"), "1 ");
  EXPECT_EQ(inSchil("encode goed.wav -o uit <&- >&- 2>&-"), "0 ");
  EXPECT_EQ(tekst("uit").rfind("/* PCM encoding output of 1 audio files", 0), 0U);
}

TEST_F(EncodeerFouten, NamesOfPipesAreTheirDevices) {
  ASSERT_EQ(inSchil("encode goed.wav -o /dev/stdout | cat >uit"), "0 ");
  EXPECT_EQ(tekst("uit").rfind("/* PCM encoding output of 1 audio files", 0), 0U);
}

// A recording that is replaced while the text is made would give an array that is half the one and
// half the other, or one that its header does not declare.
TEST_F(EncodeerFouten, ARecordingThatChangesMeanwhile) {
  auto const opnamen = leesOpnamen({map.pad("goed.wav")});
  ASSERT_TRUE(opnamen);
  EXPECT_TRUE(isOngewijzigd(opnamen->front()));
  maakWav(map.pad("goed.wav"), {1, 2, 3, 4});
  int const voor = aantalGemeld();
  testing::internal::CaptureStderr();
  EXPECT_FALSE(isOngewijzigd(opnamen->front()));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "kestrolin-cli: " + map.pad("goed.wav") +
                ": changed while it was read; run this again when it is complete\n");
  EXPECT_EQ(aantalGemeld(), voor + 1);
  std::filesystem::remove(map.pad("goed.wav"));
  testing::internal::CaptureStderr();
  EXPECT_FALSE(isOngewijzigd(opnamen->front()));
  testing::internal::GetCapturedStderr();
}

TEST_F(EncodeerFouten, NamesThatTheHeaderCannotHave) {
  for (char const* const naam : {"delete.wav", "bel.wav"}) {
    maakWav(map.pad(naam), {1});
  }
  eis({"delete.wav", "--declarations", "t.h"},
      "kestrolin-cli: delete.wav: its array would be called \"delete\", which is no name in C++, "
      "where the header can be included too; rename the file\n");
  eis({"bel.wav", "--language", "c++", "--class", "bel_size", "--declarations", "t.h"},
      "kestrolin-cli: bel.wav: the size of its array would be called \"bel_size\", as its class "
      "is; "
      "rename the file or the class\n");
  EXPECT_EQ(voer({"encode", "delete.wav", "-o", "-"}).status, 0);
}

TEST_F(EncodeerFouten, LinksThatLeadNowhere) {
  std::filesystem::create_symlink("b", map.pad("a"));
  std::filesystem::create_symlink("a", map.pad("b"));
  eis({"goed.wav", "--depfile", "a"},
      "kestrolin-cli: cannot write a: Too many levels of symbolic links; check the path\n");
}

TEST_F(EncodeerFouten, OnlyAnEmbeddedFileAndADeviceNeedTheTemporaryFolder) {
  omgeving["TMPDIR"] = map.pad("weg");
  for (char const* const encoder : {"pcm", "adpcm", "speex"}) {
    EXPECT_EQ(voer({"encode", "goed.wav", "-o", "uit", "--encoder", encoder}).status, 0);
  }
}

}  // namespace
