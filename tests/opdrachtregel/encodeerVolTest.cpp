// kestrolin-cli encode on a disk that is full, or becomes so in the middle.
#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/programma.h"
#include "tests/steun/wavMaker.h"

namespace fs = std::filesystem;

namespace {

using Inhoud = std::map<std::string, std::string>;

Inhoud const oude{{"uit.c", "old text\n"},
                  {"uit.h", "old header\n"},
                  {"bron.c", "old source\n"},
                  {"uit.d", "old rules\n"}};

// A file system of its own, gone with the process, that has room for as many pages as $1 tells.
// What lies in `oud` is on it before; behind the run `na` has what lies there.
constexpr char const* opVolleSchijf = R"(
  vrij=$1
  shift
  mount -t tmpfs -o size=1m none vol || exit 77
  cp -a oud/. vol/
  dd if=/dev/zero of=vol/vulling bs=4096 2>/dev/null
  truncate -s $(($(stat -c %s vol/vulling) - vrij * 4096)) vol/vulling
  "$@"
  status=$?
  rm vol/vulling
  cp -a vol/. na/
  exit $status
)";
constexpr int geenSchijf = 77;

class VolleSchijfProef : public ProgrammaProef {
 protected:
  VolleSchijfProef() {
    maakWav(map.pad("bel.wav"), proefSamples(3000));
    for (char const* const naam : {"oud", "vol", "na"}) {
      fs::create_directory(map.pad(naam));
    }
  }

  ProgrammaEinde metRuimte(int bladen) {
    fs::remove_all(map.pad("na"));
    fs::create_directory(map.pad("na"));
    return draai({{"unshare", "-m", "sh", "-c", opVolleSchijf, "sh", std::to_string(bladen),
                   KESTROLIN_CLI, "encode", "bel.wav", "-o", "vol/uit.c", "--declarations",
                   "vol/uit.h", "--source", "vol/bron.c", "--depfile", "vol/uit.d"},
                  map.pad(),
                  {"SOURCE_DATE_EPOCH=0", "TMPDIR=" + map.pad("tmp")}});
  }

  Inhoud na() const {
    Inhoud alle;
    for (fs::directory_entry const& deel : fs::directory_iterator(map.pad("na"))) {
      std::string const naam = deel.path().filename().string();
      alle[naam] = tekst("na/" + naam);
    }
    return alle;
  }

  // Runs with less and less room, and expects all or nothing, with a line for each file that finds
  // none.
  void verwachtAllesOfNiets(Inhoud const& voor) {
    constexpr int genoeg = 200;
    ProgrammaEinde const heel = metRuimte(genoeg);
    if (heel.status == geenSchijf) {
      GTEST_SKIP() << "no file system can be mounted here: " << heel.fout;
    }
    ASSERT_EQ(heel.status, 0) << heel.fout;
    Inhoud const alles = na();
    ASSERT_EQ(alles.size(), oude.size());
    std::set<std::string> zonderRuimte;
    // Three files of a page, and the text.
    int const meeste = 3 + static_cast<int>(alles.at("uit.c").size() / 4096) + 1;
    for (int bladen = meeste; bladen >= 0; --bladen) {
      SCOPED_TRACE(bladen);
      ProgrammaEinde const einde = metRuimte(bladen);
      EXPECT_EQ(einde.status, bladen == meeste ? 0 : 1);
      EXPECT_EQ(na(), bladen == meeste ? alles : voor);
      verwachtRegels(einde.fout, zonderRuimte);
    }
    EXPECT_EQ(zonderRuimte.size(), oude.size());
  }

  // Expects nothing but lines of outputs that found no room, and gathers them.
  static void verwachtRegels(std::string const& fouten, std::set<std::string>& regels) {
    std::istringstream stroom(fouten);
    for (std::string regel; std::getline(stroom, regel);) {
      EXPECT_TRUE(std::any_of(oude.begin(), oude.end(), [&regel](auto const& een) {
        return regel == "kestrolin-cli: cannot write vol/" + een.first +
                            ": No space left on device; make room, or give another place";
      })) << regel;
      regels.insert(regel);
    }
  }
};

TEST_F(VolleSchijfProef, NewFilesAreAllThereOrNone) {
  verwachtAllesOfNiets({});
}

TEST_F(VolleSchijfProef, OldFilesAreAllReplacedOrNone) {
  for (auto const& [naam, inhoud] : oude) {
    maakBestand(map.pad("oud/" + naam), inhoud);
  }
  verwachtAllesOfNiets(oude);
}

TEST_F(VolleSchijfProef, ALimitOfTheSizeOfFilesIsTold) {
  maakBestand(map.pad("uit.c"), "old text\n");
  for (char const* const doel : {"uit.c", "nieuw.c", "-"}) {
    ProgrammaEinde const einde = draai({{"sh", "-c", "ulimit -f 8; exec \"$@\"", "sh",
                                         KESTROLIN_CLI, "encode", "bel.wav", "-o", doel},
                                        map.pad(),
                                        {"TMPDIR=" + map.pad("tmp")}});
    EXPECT_EQ(einde.status, 1) << einde.signaal;
    EXPECT_EQ(einde.fout, std::string("kestrolin-cli: cannot write ") + doel +
                              ": File too large; make room, or give another place\n");
    EXPECT_EQ(einde.uit, "");
  }
  EXPECT_EQ(tekst("uit.c"), "old text\n");
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"bel.wav", "na/", "oud/", "uit.c", "vol/"}));
}

}  // namespace
