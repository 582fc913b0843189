// Every call that can fail, failing once, over every road: the program ends well with all that was
// asked for, or it says why not and leaves all files as they were. In both cases nothing else is
// left behind.
//
// A test is a road. With KESTROLIN_FOUTEN=all each call fails; without it some of them do.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>
#include <optional>

#include "opdrachtregel/programma.h"
#include "tests/opdrachtregel/foutWegen.h"
#include "tests/steun/bytes.h"
#include "tests/steun/krapGeheugen.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/schijfStoring.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

// One way to fail; of memory where it is not one of the disk.
struct FoutSoort {
  char const* naam;
  std::optional<SchijfFout> schijf{};
  bool alleenEigen = false;  // the memory of the program's own code alone
};

std::vector<FoutSoort> const foutSoorten = {
    {"open: no space", SchijfFout{SchijfOproep::open, ENOSPC}},
    {"open: error", SchijfFout{SchijfOproep::open, EIO}},
    {"open: too many files", SchijfFout{SchijfOproep::open, EMFILE}},
    {"read: error", SchijfFout{SchijfOproep::lees, EIO}},
    {"read: interrupted", SchijfFout{SchijfOproep::lees, EINTR}},
    {"read: short", SchijfFout{SchijfOproep::lees}},
    {"write: no space", SchijfFout{SchijfOproep::schrijf, ENOSPC, true}},
    {"write: error", SchijfFout{SchijfOproep::schrijf, EIO}},
    {"write: interrupted", SchijfFout{SchijfOproep::schrijf, EINTR}},
    {"write: short, then no space", SchijfFout{SchijfOproep::schrijf, 0, true}},
    {"write: short", SchijfFout{SchijfOproep::schrijf}},
    {"close: no space", SchijfFout{SchijfOproep::sluit, ENOSPC}},
    {"close: interrupted", SchijfFout{SchijfOproep::sluit, EINTR}},
    {"fsync: error", SchijfFout{SchijfOproep::bewaar, EIO}},
    {"fsync: not for this file", SchijfFout{SchijfOproep::bewaar, EINVAL}},
    {"rename: no space", SchijfFout{SchijfOproep::hernoem, ENOSPC}},
    {"rename: not allowed", SchijfFout{SchijfOproep::hernoem, EPERM}},
    {"mkstemp: no space", SchijfFout{SchijfOproep::maakTijdelijk, ENOSPC}},
    {"mkdir: no space", SchijfFout{SchijfOproep::maakMap, ENOSPC}},
    {"link: not on this disk", SchijfFout{SchijfOproep::koppel, EPERM}},
    {"link: no space", SchijfFout{SchijfOproep::koppel, ENOSPC}},
    {"dup: too many files", SchijfFout{SchijfOproep::verdubbel, EMFILE}},
    {"fchmod: not allowed", SchijfFout{SchijfOproep::zetRechten, EPERM}},
    {"lseek: error", SchijfFout{SchijfOproep::zoek, EIO}},
    {"memory: our own", std::nullopt, true},
    {"memory", std::nullopt, false},
};

// What the process of a run tells of it.
struct Verslag {
  int geteld;     // the calls of its kind
  bool gebleken;  // the call came, and failed
  std::array<char, 256> waar;
};

// What became of a run.
struct Verloop {
  int status = -1;
  int signaal = 0;
  std::string fouten;  // standard error
  std::string uit;     // standard output
  Bestanden bestanden;
  Verslag verslag{};
};

// What fails, while it lives.
class Storing {
 public:
  Storing(std::string const& map, FoutSoort const& soort, int nummer) {
    if (soort.schijf) {
      schijf.emplace(map, *soort.schijf, nummer);
    } else {
      geheugen.emplace(nummer, 0, soort.alleenEigen);
    }
  }

  void vertel(Verslag& verslag) const {
    verslag.geteld = schijf ? SchijfStoring::geteld() : KrapGeheugen::geteld();
    verslag.gebleken = schijf ? SchijfStoring::isGebleken() : KrapGeheugen::isGebleken();
    std::strncpy(verslag.waar.data(), schijf ? SchijfStoring::waar().c_str() : "memory",
                 verslag.waar.size() - 1);
  }

 private:
  std::optional<SchijfStoring> schijf;
  std::optional<KrapGeheugen> geheugen;
};

class OpdrachtStoring : public testing::Test {
 protected:
  OpdrachtStoring();
  void TearDown() override { munmap(verslag, sizeof(Verslag)); }

  // One run, in a process of its own; call 0 is none.
  Verloop loop(FoutWeg const& weg, FoutSoort const& soort, int nummer);
  // What is wrong with it, nothing where all is well.
  std::string oordeel(Verloop const& verloop, Verloop const& heel) const;

  Bestanden voor;

 private:
  [[noreturn]] void voer(FoutWeg const& weg, FoutSoort const& soort, int nummer);

  TijdelijkeMap map;
  std::string const werk = map.pad("werk");
  OmgevingsWaarde moment{"SOURCE_DATE_EPOCH", "1767225599"};
  OmgevingsWaarde tijdelijk{"TMPDIR", werk + "/tmp"};
  Verslag* verslag;  // shared with the process of a run
};

OpdrachtStoring::OpdrachtStoring()
    : verslag(static_cast<Verslag*>(mmap(nullptr, sizeof(Verslag), PROT_READ | PROT_WRITE,
                                         MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {}

void OpdrachtStoring::voer(FoutWeg const& weg, FoutSoort const& soort, int nummer) {
  constexpr mode_t rechten = 0600;
  dup2(open(map.pad("fouten").c_str(), O_WRONLY | O_CREAT | O_TRUNC, rechten), STDERR_FILENO);
  dup2(open((werk + "/uitvoer").c_str(), O_WRONLY | O_CREAT | O_TRUNC, rechten), STDOUT_FILENO);
  std::vector<std::string> woorden;
  std::transform(weg.woorden.begin(), weg.woorden.end(), std::back_inserter(woorden),
                 [this](std::string const& woord) {
                   return woord.rfind("./", 0) == 0 ? werk + woord.substr(1) : woord;
                 });
  std::vector<char const*> argumenten{"kestrolin-cli"};
  std::transform(woorden.begin(), woorden.end(), std::back_inserter(argumenten),
                 [](std::string const& woord) { return woord.c_str(); });
  Storing const storing(werk, soort, nummer);
  int const status = voerProgrammaUit(static_cast<int>(argumenten.size()), argumenten.data());
  storing.vertel(*verslag);
  _exit(status);
}

Verloop OpdrachtStoring::loop(FoutWeg const& weg, FoutSoort const& soort, int nummer) {
  maakVoor(weg, werk);
  voor = leesBestanden(werk);
  *verslag = {};
  pid_t const kind = fork();
  if (kind == 0) {
    voer(weg, soort, nummer);
  }
  int status = 0;
  EXPECT_EQ(waitpid(kind, &status, 0), kind);
  Verloop verloop;
  verloop.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  verloop.signaal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
  verloop.fouten = leesTekst(map.pad("fouten"));
  verloop.bestanden = leesBestanden(werk);
  verloop.uit = verloop.bestanden["uitvoer"];
  verloop.bestanden.erase("uitvoer");
  verloop.verslag = *verslag;
  return verloop;
}

std::string verschil(Bestanden const& gevonden, Bestanden const& verwacht) {
  for (auto const& [naam, inhoud] : gevonden) {
    auto const plaats = verwacht.find(naam);
    if (plaats == verwacht.end()) {
      return naam + " is there";
    }
    if (plaats->second != inhoud) {
      return naam + " is another";
    }
  }
  for (auto const& [naam, inhoud] : verwacht) {
    if (gevonden.count(naam) == 0) {
      return naam + " is missing";
    }
  }
  return "";
}

std::string OpdrachtStoring::oordeel(Verloop const& verloop, Verloop const& heel) const {
  if (verloop.status == 0) {
    std::string const anders = verschil(verloop.bestanden, heel.bestanden);
    return anders.empty() && verloop.uit != heel.uit ? "it succeeded with another standard output"
           : anders.empty()                          ? ""
                                                     : "it succeeded, and " + anders;
  }
  if (verloop.status != 1) {
    return "it ended with status " + std::to_string(verloop.status) + ", signal " +
           std::to_string(verloop.signaal);
  }
  if (verloop.fouten.find("kestrolin-cli: ") == std::string::npos) {
    return "it failed without a word";
  }
  std::string const anders = verschil(verloop.bestanden, voor);
  if (!anders.empty()) {
    return "it failed, and " + anders;
  }
  // What went out cannot be taken back.
  return heel.uit.rfind(verloop.uit, 0) == 0 ? "" : "standard output is no beginning";
}

class OpdrachtFout : public OpdrachtStoring, public testing::WithParamInterface<FoutWeg> {};

// Which of `aantal` calls fail, one a run: each of them, or some all over the road and the last
// ones, by which the files come into place.
std::vector<int> nummers(int aantal) {
  constexpr int genoeg = KESTROLIN_STEEKPROEF;
  char const* const wens = std::getenv("KESTROLIN_FOUTEN");
  bool const alle = wens != nullptr && std::string(wens) == "all";
  std::vector<int> gekozen;
  for (int nummer = 1; nummer <= aantal; ++nummer) {
    if (alle || aantal - nummer < genoeg ||
        nummer * genoeg / aantal != (nummer - 1) * genoeg / aantal) {
      gekozen.push_back(nummer);
    }
  }
  return gekozen;
}

TEST_P(OpdrachtFout, LeavesAllOrNothing) {
  FoutWeg const& weg = GetParam();
  for (FoutSoort const& soort : foutSoorten) {
    Verloop const heel = loop(weg, soort, 0);
    ASSERT_EQ(heel.status, 0) << heel.fouten;
    ASSERT_EQ(heel.fouten, "");
    for (int const nummer : nummers(heel.verslag.geteld)) {
      Verloop const verloop = loop(weg, soort, nummer);
      EXPECT_EQ(oordeel(verloop, heel), "")
          << weg.naam << ", " << soort.naam << ", n = " << nummer << " of " << heel.verslag.geteld
          << ", " << verloop.verslag.waar.data() << "\n"
          << verloop.fouten;
    }
  }
}

// Where the libraries did not find our calls, nothing would fail above.
TEST_F(OpdrachtStoring, EveryKindOfCallIsMet) {
  for (FoutSoort const& soort : foutSoorten) {
    EXPECT_TRUE(std::any_of(foutWegen.begin(), foutWegen.end(), [&](FoutWeg const& weg) {
      return loop(weg, soort, 0).verslag.geteld > 0;
    })) << soort.naam;
  }
}

INSTANTIATE_TEST_SUITE_P(Every, OpdrachtFout, testing::ValuesIn(foutWegen),
                         [](testing::TestParamInfo<FoutWeg> const& een) {
                           return std::string(een.param.naam);
                         });

}  // namespace
