// The progress of a run, as a terminal shows it.
#include "opdrachtregel/voortgang.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>

#include "opdrachtregel/melding.h"

namespace {

using namespace std::chrono_literals;

// Standard error, on a terminal of its own or in a pipe, while this lives.
class Kanaal {
 public:
  explicit Kanaal(bool isTerminal) : vorige(dup(STDERR_FILENO)) {
    if (isTerminal) {
      lezer = posix_openpt(O_RDWR | O_NOCTTY);
      grantpt(lezer);
      unlockpt(lezer);
      schrijver = open(ptsname(lezer), O_RDWR | O_NOCTTY);
    } else {
      std::array<int, 2> einden{};
      EXPECT_EQ(pipe(einden.data()), 0);
      lezer = einden[0];
      schrijver = einden[1];
    }
    dup2(schrijver, STDERR_FILENO);
  }
  ~Kanaal() {
    herstel();
    close(lezer);
    close(schrijver);
    close(vorige);
  }
  Kanaal(Kanaal const&) = delete;
  Kanaal& operator=(Kanaal const&) = delete;
  Kanaal(Kanaal&&) = delete;
  Kanaal& operator=(Kanaal&&) = delete;

  // All that was written so far. Ends the taking.
  std::string tekst() {
    std::string alles;
    // A mark of ours, so that reading need not wait for more.
    EXPECT_EQ(write(STDERR_FILENO, "#", 1), 1);
    herstel();
    for (char teken = 0; read(lezer, &teken, 1) == 1 && teken != '#';) {
      alles += teken;
    }
    return alles;
  }

 private:
  void herstel() { dup2(vorige, STDERR_FILENO); }

  int vorige;
  int lezer = -1;
  int schrijver = -1;
};

std::string toon(bool isTerminal, std::chrono::milliseconds geduld) {
  Kanaal kanaal(isTerminal);
  {
    Voortgang voortgang(3, "recordings", geduld);
    voortgang.meldGedaan(1);
    voortgang.meldGedaan(2);
    voortgang.meldGedaan(3);
  }
  return kanaal.tekst();
}

TEST(Voortgang, ALineOnATerminalTellsHowFarALongRunIsAndGoesAtTheEnd) {
  EXPECT_EQ(toon(true, 0ms),
            "\r\033[Kkestrolin-cli: 1 of 3 recordings"
            "\r\033[Kkestrolin-cli: 2 of 3 recordings"
            "\r\033[K");
}

TEST(Voortgang, AMessageTakesTheLineAway) {
  Kanaal kanaal(true);
  {
    Voortgang voortgang(3, "arrays", 0ms);
    voortgang.meldGedaan(1);
    meld("something is wrong");
  }
  EXPECT_EQ(kanaal.tekst(),
            "\r\033[Kkestrolin-cli: 1 of 3 arrays"
            "\r\033[Kkestrolin-cli: something is wrong\r\n");
}

TEST(Voortgang, AShortRunShowsNothing) {
  EXPECT_EQ(toon(true, 24h), "");
}

TEST(Voortgang, NothingIsShownWhereThereIsNoTerminal) {
  EXPECT_EQ(toon(false, 0ms), "");
}

}  // namespace
