// kestrolin-cli encode that is ended in the middle: by a signal, or by a reader that goes away.
//
// The program cannot go on by itself where these tests wait for it: the rules for make go to a pipe
// that nobody reads, and a pipe takes no more than a part of the text.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <tuple>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/programma.h"
#include "tests/steun/wavMaker.h"

namespace {

using Woorden = std::vector<std::string>;

class Einde : public ProgrammaProef {
 protected:
  Einde() {
    maakWav(map.pad("kort.wav"), proefSamples(40000));
    // Seconds of work for Speex.
    maakWav(map.pad("lang.wav"), proefSamples(400000), {16000});
    EXPECT_EQ(mkfifo(map.pad("pijp").c_str(), S_IRUSR | S_IWUSR), 0);
  }

  void maakOude() const {
    maakBestand(map.pad("uit.c"), "old text\n");
    maakBestand(map.pad("uit.h"), "old header\n");
    maakBestand(map.pad("bron.c"), "old source\n");
  }

  // The command line of a run that waits at the pipe; words of the shell come first.
  ProgrammaVraag vraag(std::string const& wav, Woorden woorden = {}) const {
    woorden.insert(woorden.end(),
                   {KESTROLIN_CLI, "encode", "--encoder", "speex", "--complexity", "10", wav, "-o",
                    "uit.c", "--declarations", "uit.h", "--source", "bron.c", "--depfile", "pijp"});
    return {woorden, map.pad(), {"TMPDIR=" + map.pad("tmp")}};
  }

  bool heeftTijdelijke() const {
    std::vector<std::string> const namen = inhoud();
    return std::any_of(namen.begin(), namen.end(), [](std::string const& naam) {
      return naam.find(".kestrolin-") != std::string::npos;
    });
  }
  // Waits for the first of the files that the program writes beside their places.
  void wachtOpBegin(Programma& programma) const {
    while (!heeftTijdelijke()) {
      ASSERT_TRUE(programma.loopt()) << programma.wacht().fout;
      usleep(1000);
    }
  }

  // The contents of all files that are not temporary, and the names of those that are, if asked
  // for.
  std::map<std::string, std::string> beeld(bool metTijdelijke = true) const {
    std::map<std::string, std::string> alle;
    for (std::string const& naam : inhoud()) {
      bool const isTijdelijk = naam.find(".kestrolin-") != std::string::npos;
      if (naam != "pijp" && (metTijdelijke || (!isTijdelijk && naam != "tmp/"))) {
        alle[naam] = naam.back() == '/' ? "" : tekst(naam);
      }
    }
    return alle;
  }
};

class EindeSignaal : public Einde,
                     public testing::WithParamInterface<std::tuple<int, std::string, bool>> {};

TEST_P(EindeSignaal, LeavesNothingBehindAndOldFilesAsTheyWere) {
  auto const [signaal, wav, metOude] = GetParam();
  if (metOude) {
    maakOude();
  }
  auto const voor = beeld();
  Programma programma(vraag(wav + ".wav"));
  wachtOpBegin(programma);
  programma.stuur(signaal);
  ProgrammaEinde const einde = programma.wacht();
  EXPECT_EQ(einde.signaal, signaal);
  EXPECT_EQ(einde.fout, "");
  EXPECT_EQ(beeld(), voor);
}

std::string naamVan(testing::TestParamInfo<std::tuple<int, std::string, bool>> const& een) {
  auto const& [signaal, wav, metOude] = een.param;
  return "Signal" + std::to_string(signaal) + wav + (metOude ? "Old" : "New");
}

INSTANTIATE_TEST_SUITE_P(Every, EindeSignaal,
                         testing::Combine(testing::Values(SIGINT, SIGTERM, SIGHUP),
                                          testing::Values("kort", "lang"), testing::Bool()),
                         naamVan);

TEST_F(Einde, AKilledRunLeavesFilesAsTheyWereAndTheNextOneIsWhole) {
  maakOude();
  auto const voor = beeld();
  Programma programma(vraag("lang.wav"));
  wachtOpBegin(programma);
  programma.stuur(SIGKILL);
  EXPECT_EQ(programma.wacht().signaal, SIGKILL);
  EXPECT_EQ(beeld(false), voor);
  EXPECT_EQ(voer({"encode", "kort.wav", "-o", "uit.c"}).status, 0);
  EXPECT_NE(tekst("uit.c"), "old text\n");
}

TEST_F(Einde, AnIgnoredSignalStaysIgnored) {
  maakOude();
  // As under nohup, and as the shell starts what runs in the background.
  Programma programma(
      vraag("kort.wav", {"sh", "-c", "trap '' INT HUP; exec \"$@\"", "kestrolin-cli"}));
  wachtOpBegin(programma);
  programma.stuur(SIGINT);
  programma.stuur(SIGHUP);
  int const lezer = open(map.pad("pijp").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ProgrammaEinde const einde = programma.wacht();
  std::array<char, 4> regel{};
  EXPECT_EQ(read(lezer, regel.data(), regel.size()), 4);
  close(lezer);
  EXPECT_EQ(einde.status, 0) << einde.signaal;
  EXPECT_EQ(einde.fout, "");
  EXPECT_EQ(std::string(regel.begin(), regel.end()), "uit.");
  EXPECT_EQ(tekst("uit.c").rfind("/* Speex encoding output", 0), 0U);
  EXPECT_NE(tekst("uit.h"), "old header\n");
  EXPECT_NE(tekst("bron.c"), "old source\n");
  EXPECT_FALSE(heeftTijdelijke());
}

// A text on standard output, of which the first byte has been read, and which the pipe cannot take.
class EindeLezer : public Einde {
 protected:
  EindeLezer() { EXPECT_EQ(pipe2(pijp.data(), O_CLOEXEC), 0); }
  void TearDown() override { close(pijp[0]); }

  ProgrammaVraag naarPijp(Woorden woorden = {}) const {
    woorden.insert(woorden.end(), {KESTROLIN_CLI, "encode", "kort.wav", "-o", "-"});
    return {woorden, map.pad(), {"TMPDIR=" + map.pad("tmp")}, pijp[1]};
  }
  void leesEen() {
    close(pijp[1]);
    char teken = '\0';
    ASSERT_EQ(read(pijp[0], &teken, 1), 1);
    EXPECT_EQ(teken, '/');
  }
  void ga() {
    close(pijp[0]);
    pijp[0] = -1;
  }

  std::array<int, 2> pijp{};
};

TEST_F(EindeLezer, ThatGoesEndsTheProgramWithoutAWord) {
  auto const voor = beeld();
  Programma programma(naarPijp());
  leesEen();
  EXPECT_TRUE(heeftTijdelijke());
  ga();
  ProgrammaEinde const einde = programma.wacht();
  EXPECT_EQ(einde.signaal, SIGPIPE);
  EXPECT_EQ(einde.fout, "");
  EXPECT_EQ(beeld(), voor);
}

TEST_F(EindeLezer, ThatGoesIsAnErrorWhereTheSignalIsIgnored) {
  auto const voor = beeld();
  Programma programma(naarPijp({"sh", "-c", "trap '' PIPE; exec \"$@\"", "kestrolin-cli"}));
  leesEen();
  ga();
  ProgrammaEinde const einde = programma.wacht();
  EXPECT_EQ(einde.status, 1);
  EXPECT_EQ(einde.fout,
            "kestrolin-cli: cannot write -: Broken pipe; see to that, and run it again\n");
  EXPECT_EQ(beeld(), voor);
}

TEST_F(EindeLezer, ThatWaitsIsLeftByASignal) {
  auto const voor = beeld();
  Programma programma(naarPijp());
  leesEen();
  programma.stuur(SIGTERM);
  EXPECT_EQ(programma.wacht().signaal, SIGTERM);
  EXPECT_EQ(beeld(), voor);
}

}  // namespace
