// What kestrolin-cli decode leaves where it fails: nothing, and everything as it was.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "tests/audio/uitvoer/verwachteRun.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/bytes.h"
#include "tests/steun/volleSchijf.h"
#include "tests/steun/wavMaker.h"

namespace fs = std::filesystem;

namespace {

class DecodeerFouten : public ProgrammaProef {
 protected:
  DecodeerFouten() {
    maakBestand(map.pad("een.c"), verwachteRun(Wijze::pcm, {}, {{"bel", {1, -1}}, {"tik", {5}}}));
    maakBestand(map.pad("twee.c"),
                verwachteRun(Wijze::inbed, {1, "Geluid"}, {{"zoem", {9, 8, 7}}, {"tik", {5}}}));
  }

  // Runs the command, which fails so and leaves the directory as it was.
  void verwachtFout(std::vector<std::string> woorden, std::string const& fouten) {
    std::vector<std::string> const namen = inhoud();
    std::vector<std::string> teksten(namen.size());
    std::transform(namen.begin(), namen.end(), teksten.begin(),
                   [this](std::string const& naam) { return tekst(naam); });
    woorden.insert(woorden.begin(), "decode");
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 1);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_EQ(afloop.fouten, fouten);
    EXPECT_EQ(inhoud(), namen);
    for (std::size_t i = 0; i < namen.size(); ++i) {
      EXPECT_EQ(tekst(namen[i]), teksten[i]) << namen[i];
    }
  }

  static std::string wav(std::vector<int> const& samples) { return wavBytes({}, samples); }
};

TEST_F(DecodeerFouten, MakesTheFolderAndThoseAboveItAndReplacesWholeFiles) {
  Afloop const eerste = voer({"decode", "een.c", "--to", "a/b/c", "-v"});
  EXPECT_EQ(eerste.status, 0);
  EXPECT_EQ(eerste.uit, "");
  EXPECT_EQ(eerste.fouten, "kestrolin-cli: a/b/c: 2 WAV files\n");
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"a/", "a/b/", "a/b/c/", "a/b/c/bel.wav",
                                                "a/b/c/tik.wav", "een.c", "twee.c"}));
  EXPECT_EQ(tekst("a/b/c/bel.wav"), wav({1, -1}));
  EXPECT_EQ(tekst("a/b/c/tik.wav"), wav({5}));

  maakBestand(map.pad("a/b/c/tik.wav"), std::string(1000, 'x'));
  maakBestand(map.pad("a/b/c/ander.wav"), "x");
  EXPECT_EQ(voer({"decode", "een.c", "--to", map.pad("a/b/c/")}).status, 0);
  EXPECT_EQ(tekst("a/b/c/tik.wav"), wav({5}));
  EXPECT_EQ(tekst("a/b/c/ander.wav"), "x");
}

TEST_F(DecodeerFouten, WritesLongSoundsWhole) {
  std::vector<int> const lang(70000, -300);
  maakBestand(map.pad("lang.c"), verwachteRun(Wijze::pcm, {}, {{"lang", lang}}));
  EXPECT_EQ(voer({"decode", "lang.c", "--to", "."}).status, 0);
  EXPECT_TRUE(tekst("lang.wav") == wav(lang));
}

TEST_F(DecodeerFouten, TellsOfTextsThatItCannotRead) {
  maakBestand(map.pad("half.c"), tekst("een.c").substr(0, tekst("een.c").rfind('}')));
  std::string const aantal = std::to_string([this] {
    std::string const deel = tekst("half.c");
    return 1 + std::count(deel.begin(), deel.end(), '\n');
  }());
  verwachtFout({"een.c", "half.c", "weg.c", "--to", "uit"},
               "kestrolin-cli: half.c:" + aantal +
                   ": the array tik is cut off here: encode it again\n"
                   "kestrolin-cli: cannot read weg.c: No such file or directory; give a text that "
                   "Kestrolin wrote\n");
}

TEST_F(DecodeerFouten, TellsOfArraysOfOneName) {
  verwachtFout({"een.c", "twee.c", "--to", "uit"},
               "kestrolin-cli: twee.c:50: an array tik stands in een.c:49 too: decode the two into "
               "folders of their own\n");
  EXPECT_EQ(voer({"decode", "een.c", "een.c", "--to", "uit"}).status, 1);
  maakBestand(map.pad("dubbel.c"), tekst("een.c") + tekst("een.c"));
  EXPECT_EQ(voer({"decode", "dubbel.c", "--to", "uit"}).status, 1);
  EXPECT_FALSE(fs::exists(map.pad("uit")));
}

TEST_F(DecodeerFouten, TellsOfAFolderThatCannotBe) {
  verwachtFout({"een.c", "--to", "een.c"},
               "kestrolin-cli: cannot make the folder een.c: File exists; give another one\n");
  verwachtFout({"een.c", "--to", "uit/../een.c/diep"},
               "kestrolin-cli: cannot make the folder uit/../een.c/diep: File exists; give another "
               "one\n");
  verwachtFout({"een.c", "--to", ""},
               "kestrolin-cli: cannot make the folder : No such file or directory; give another "
               "one\n");
}

TEST_F(DecodeerFouten, LeavesTheOthersWhereOneFileCannotBeWritten) {
  fs::create_directories(map.pad("uit/tik.wav/vol"));
  maakBestand(map.pad("uit/bel.wav"), "was hier");
  verwachtFout({"een.c", "--to", "uit"},
               "kestrolin-cli: cannot write uit/tik.wav: it is a folder; give the name of a file "
               "in it\n");
}

TEST_F(DecodeerFouten, WritesNotOverItsInput) {
  fs::create_directory(map.pad("uit"));
  maakBestand(map.pad("uit/bel.wav"), tekst("een.c"));
  verwachtFout({"./uit/bel.wav", "--to", "uit"},
               "kestrolin-cli: cannot write uit/bel.wav: it is one of the files to read; give "
               "another folder\n");
}

TEST_F(DecodeerFouten, LeavesNothingOnAFullDisk) {
  maakBestand(map.pad("lang.c"),
              verwachteRun(Wijze::pcm, {}, {{"lang", std::vector<int>(9000)}, {"kort", {1}}}));
  fs::create_directory(map.pad("uit"));
  maakBestand(map.pad("uit/kort.wav"), "was hier");
  constexpr rlim_t bytes = 8192;
  VolleSchijf const vol(bytes);
  verwachtFout({"lang.c", "--to", "uit"},
               "kestrolin-cli: cannot write uit/lang.wav: File too large; make room, or give "
               "another place\n");
  verwachtFout({"lang.c", "--to", "nieuw/uit"},
               "kestrolin-cli: cannot write nieuw/uit/lang.wav: File too large; make room, or give "
               "another place\n");
}

TEST_F(DecodeerFouten, WritesMoreFilesThanAProcessMayHaveOpen) {
  constexpr int aantal = 100;
  std::vector<RunFragment> fragmenten(aantal);
  for (int i = 0; i < aantal; ++i) {
    fragmenten[static_cast<std::size_t>(i)] = {"f" + std::to_string(i), {i}};
  }
  maakBestand(map.pad("veel.c"), verwachteRun(Wijze::pcm, {}, fragmenten));
  rlimit vorige{};
  getrlimit(RLIMIT_NOFILE, &vorige);
  rlimit grens = vorige;
  grens.rlim_cur = 30;
  setrlimit(RLIMIT_NOFILE, &grens);
  // Into nothing, and over what is there.
  for (int keer = 0; keer < 2; ++keer) {
    Afloop const afloop = voer({"decode", "veel.c", "--to", "uit"});
    EXPECT_EQ(afloop.status, 0);
    EXPECT_EQ(afloop.fouten, "");
  }
  setrlimit(RLIMIT_NOFILE, &vorige);
  EXPECT_EQ(tekst("uit/f99.wav"), wav({99}));
  EXPECT_EQ(std::distance(fs::directory_iterator(map.pad("uit")), fs::directory_iterator()),
            aantal);
}

TEST_F(DecodeerFouten, TellsOfWrongUse) {
  for (std::vector<std::string> const& woorden :
       {std::vector<std::string>{"decode", "een.c"},
        {"decode", "--to", "uit"},
        {"decode", "een.c", "--to", "uit", "--dac", "9"},
        {"decode", "een.c", "--to", "uit", "--dac", "010"},
        {"decode", "een.c", "--to", "uit", "--dac", "x"}}) {
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 2);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_NE(afloop.fouten, "");
  }
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"een.c", "twee.c"}));
}

// The program waits for a text that never comes, with the files of another text written beside
// their places.
class DecodeerSignaal : public DecodeerFouten, public testing::WithParamInterface<int> {
 protected:
  static bool bestaatBeginVan(fs::path const& folder) {
    std::error_code fout;
    fs::directory_iterator const begin(folder, fout);
    return !fout && std::distance(begin, fs::directory_iterator()) >= 2;
  }
};

TEST_P(DecodeerSignaal, LeavesNothingBehind) {
  std::string const pijp = map.pad("pijp");
  ASSERT_EQ(mkfifo(pijp.c_str(), 0600), 0);
  std::vector<std::string> const voor = inhoud();
  pid_t const kind = fork();
  if (kind == 0) {
    static_cast<void>(std::signal(GetParam(), SIG_DFL));
    if (chdir(map.pad().c_str()) == 0) {
      execl(KESTROLIN_CLI, KESTROLIN_CLI, "decode", "een.c", "pijp", "--to", "nieuw/uit", nullptr);
    }
    _exit(127);
  }
  // Open on both sides, so that the reader is not at its end.
  int const schrijver = open(pijp.c_str(), O_WRONLY);
  while (!bestaatBeginVan(map.pad("nieuw/uit"))) {
    ASSERT_EQ(waitpid(kind, nullptr, WNOHANG), 0) << "the program did not wait";
    usleep(1000);
  }
  kill(kind, GetParam());
  int status = 0;
  waitpid(kind, &status, 0);
  close(schrijver);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), GetParam());
  EXPECT_EQ(inhoud(), voor);
}

INSTANTIATE_TEST_SUITE_P(, DecodeerSignaal, testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace
