// Every call that can fail, failing once, over every road: the program lives, what was whole before
// is whole, and the result is whole or the user was told.
//
// A test is a road. With KESTROLIN_FOUTEN=all the first call of a kind fails, then the second, and
// so on until a run passes untouched; without it some of them do, all over the road.
#include <unistd.h>
#include <wx/log.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <optional>

#include "tests/audio/speex/encoder/toepassing/foutWegen.h"
#include "tests/steun/bytes.h"
#include "tests/steun/krapGeheugen.h"
#include "tests/steun/schijfStoring.h"

namespace {

// One way to fail; of memory where it is not one of the disk.
struct FoutSoort {
  char const* naam;
  std::optional<SchijfFout> schijf;
};

struct Fout {
  char const* naam;
  std::vector<FoutSoort> soorten;
};

std::vector<Fout> const alleFouten = {
    {"Open",
     {{"no space", SchijfFout{SchijfOproep::open, ENOSPC}},
      {"error", SchijfFout{SchijfOproep::open, EIO}},
      {"interrupted", SchijfFout{SchijfOproep::open, EINTR}}}},
    {"Read",
     {{"error", SchijfFout{SchijfOproep::lees, EIO}},
      {"interrupted", SchijfFout{SchijfOproep::lees, EINTR}},
      {"short", SchijfFout{SchijfOproep::lees}}}},
    {"Write",
     {{"no space", SchijfFout{SchijfOproep::schrijf, ENOSPC, true}},
      {"error", SchijfFout{SchijfOproep::schrijf, EIO}},
      {"interrupted", SchijfFout{SchijfOproep::schrijf, EINTR}},
      {"short, then no space", SchijfFout{SchijfOproep::schrijf, 0, true}},
      {"short", SchijfFout{SchijfOproep::schrijf}}}},
    {"Close",
     {{"no space", SchijfFout{SchijfOproep::sluit, ENOSPC}},
      {"error", SchijfFout{SchijfOproep::sluit, EIO}},
      {"interrupted", SchijfFout{SchijfOproep::sluit, EINTR}}}},
    {"Rename",
     {{"no space", SchijfFout{SchijfOproep::hernoem, ENOSPC}},
      {"error", SchijfFout{SchijfOproep::hernoem, EIO}}}},
    {"Mkstemp",
     {{"no space", SchijfFout{SchijfOproep::maakTijdelijk, ENOSPC}},
      {"error", SchijfFout{SchijfOproep::maakTijdelijk, EIO}},
      {"interrupted", SchijfFout{SchijfOproep::maakTijdelijk, EINTR}}}},
    {"Memory", {{"none left", std::nullopt}}},
};

// What fails, while it lives.
class Storing {
 public:
  Storing(std::string const& map, FoutSoort const& soort, int nummer, std::size_t kleinsteBlok) {
    if (soort.schijf) {
      schijf.emplace(map, *soort.schijf, nummer);
    } else {
      geheugen.emplace(nummer, kleinsteBlok, true);
    }
  }

  bool isGebleken() const {
    return schijf ? SchijfStoring::isGebleken() : KrapGeheugen::isGebleken();
  }
  int geteld() const { return schijf ? SchijfStoring::geteld() : KrapGeheugen::geteld(); }
  std::string waar() const { return schijf ? SchijfStoring::waar() : "our own block"; }

 private:
  std::optional<SchijfStoring> schijf;
  std::optional<KrapGeheugen> geheugen;
};

// Standard error, kept while this lives. The toolkit's last words go there.
class KanaalOpname {
 public:
  KanaalOpname() : kanaal(dup(STDERR_FILENO)), bestand(std::tmpfile()) {
    dup2(fileno(bestand), STDERR_FILENO);
  }
  ~KanaalOpname() {
    dup2(kanaal, STDERR_FILENO);
    close(kanaal);
    static_cast<void>(std::fclose(bestand));
  }
  KanaalOpname(KanaalOpname const&) = delete;
  KanaalOpname& operator=(KanaalOpname const&) = delete;
  KanaalOpname(KanaalOpname&&) = delete;
  KanaalOpname& operator=(KanaalOpname&&) = delete;

  std::string tekst() const {
    std::string gelezen;
    std::rewind(bestand);
    for (int teken = std::fgetc(bestand); teken != EOF; teken = std::fgetc(bestand)) {
      gelezen += static_cast<char>(teken);
    }
    return gelezen;
  }

 private:
  int kanaal;
  std::FILE* bestand;
};

// What became of a run.
struct Verloop {
  int geteld = 0;         // the calls of its kind
  bool gebleken = false;  // the call came, and failed
  std::string waar;
  bool geenGeheugen = false;  // the allocation's exception left the handler
  bool magEindigen = false;   // as it may where there was no memory
  bool verteld = false;       // an error line in the log, or behind its end on standard error
  Uitkomst uitkomst;
  std::string beschadigd;    // a file of before that is no longer whole
  bool isVervangen = false;  // the file to be replaced is not the old one
};

// True where `delen` are some of `alle`, in that order.
bool isDeelVan(Uitkomst const& delen, Uitkomst const& alle) {
  auto plaats = alle.begin();
  return std::all_of(delen.begin(), delen.end(), [&](std::string const& een) {
    plaats = std::find(plaats, alle.end(), een);
    return plaats != alle.end() && plaats++ != alle.end();
  });
}

bool wilAlle() {
  char const* const wens = std::getenv("KESTROLIN_FOUTEN");
  return wens != nullptr && std::string(wens) == "all";
}

// Which of `aantal` calls fail, one a run: each of them and one more, or some all over the road,
// others for each of the `soorten` ways to fail; where the sample is small, none for the last ways.
std::vector<int> nummers(int aantal, int soort, int soorten) {
  constexpr int genoeg = KESTROLIN_STEEKPROEF;
  std::vector<int> gekozen;
  if (wilAlle() || aantal * soorten <= genoeg) {
    for (int nummer = 1; nummer <= aantal + (wilAlle() ? 1 : 0); ++nummer) {
      gekozen.push_back(nummer);
    }
    return gekozen;
  }
  constexpr int stappen = genoeg - 1;
  for (int stap = soort; stap <= stappen; stap += soorten) {
    gekozen.push_back(1 + stap * (aantal - 1) / stappen);
  }
  return gekozen;
}

class FoutRonde : public FoutWegen {
 protected:
  // One run over the road, in a program started for it; call 0 is none.
  Verloop loop(Weg const& weg, FoutSoort const& soort, int nummer);

 private:
  void vergelijk(Weg const& weg, Bestanden const& voor, Verloop& verloop) const;
};

Verloop FoutRonde::loop(Weg const& weg, FoutSoort const& soort, int nummer) {
  std::filesystem::remove(map.pad(nieuw));
  maakBestanden();
  (this->*weg.voor)();
  Bestanden const voor = bestaande();
  log().clear();
  Verloop verloop;
  {
    KanaalOpname const opname;
    Storing const storing(map.pad(), soort, nummer, weg.kleinsteBlok);
    try {
      (this->*weg.doe)();
    } catch (std::bad_alloc const&) {
      verloop.geenGeheugen = true;
      verloop.magEindigen = !soort.schijf;
    }
    verloop.verteld = opname.tekst().find("Error: ") != std::string::npos;
    verloop.geteld = storing.geteld();
    verloop.gebleken = storing.isGebleken();
    verloop.waar = storing.waar();
  }
  verloop.verteld = verloop.verteld ||
                    std::any_of(log().begin(), log().end(),
                                [](LogRegel const& regel) { return regel.niveau <= wxLOG_Error; });
  vergelijk(weg, voor, verloop);
  antwoorden.wis();
  if (!verloop.geenGeheugen) {
    verloop.uitkomst = (this->*weg.uitkomst)();
  }
  antwoorden.wis();
  if (leeft()) {
    EXPECT_TRUE(stop().Contains("StopTijd=")) << "the settings were not written";
  }
  return verloop;
}

void FoutRonde::vergelijk(Weg const& weg, Bestanden const& voor, Verloop& verloop) const {
  Bestanden const na = bestaande();
  for (auto const& [naam, inhoud] : voor) {
    std::string const& nu = na.at(naam);
    bool const isBegin = nu.compare(0, inhoud.size(), inhoud) == 0;
    if (naam == weg.vervangt) {
      verloop.isVervangen = nu != inhoud;
    } else if (nu != inhoud && !(naam == weg.groeit && isBegin)) {
      verloop.beschadigd = naam;
    }
  }
}

// Nothing where all is well.
std::string oordeel(Weg const& weg, Verloop const& verloop, Verloop const& heel) {
  if (!verloop.beschadigd.empty()) {
    return "what was whole before is not: " + verloop.beschadigd;
  }
  if (verloop.isVervangen && verloop.uitkomst != heel.uitkomst) {
    return std::string("neither the old one nor the new one: ") + weg.vervangt;
  }
  if (verloop.geenGeheugen && !heel.geenGeheugen && !verloop.magEindigen) {
    return "the program ended for want of memory";
  }
  if (verloop.geenGeheugen || verloop.uitkomst == heel.uitkomst ||
      (verloop.gebleken && verloop.verteld) ||
      (verloop.gebleken && weg.slaatOver && isDeelVan(verloop.uitkomst, heel.uitkomst))) {
    return "";
  }
  auto const [een, ander] = std::mismatch(verloop.uitkomst.begin(), verloop.uitkomst.end(),
                                          heel.uitkomst.begin(), heel.uitkomst.end());
  std::string gevonden = een == verloop.uitkomst.end() ? "nothing" : *een;
  std::string verwacht = ander == heel.uitkomst.end() ? "nothing" : *ander;
  return "nothing was logged, and the result has " + std::to_string(gevonden.size()) +
         " bytes for " + std::to_string(verwacht.size()) + " in its piece " +
         std::to_string(een - verloop.uitkomst.begin() + 1);
}

class FoutProef : public FoutRonde, public testing::WithParamInterface<Weg> {};

TEST_P(FoutProef, LeavesAllWholeOrIsTold) {
  Weg const& weg = GetParam();
  for (auto const& [naam, soorten] : alleFouten) {
    Verloop const heel = loop(weg, soorten[0], 0);
    for (std::size_t i = 0; i < soorten.size(); ++i) {
      for (int const nummer :
           nummers(heel.geteld, static_cast<int>(i), static_cast<int>(soorten.size()))) {
        Verloop const verloop = loop(weg, soorten[i], nummer);
        EXPECT_EQ(oordeel(weg, verloop, heel), "")
            << weg.naam << ", " << naam << ": " << soorten[i].naam << ", n = " << nummer << " of "
            << heel.geteld << ", " << verloop.waar;
      }
    }
  }
}

// Where the libraries did not find our calls, nothing would fail above.
TEST_F(FoutRonde, EveryKindOfCallIsMet) {
  for (Fout const& fout : alleFouten) {
    int geteld = 0;
    for (Weg const& weg : wegen) {
      if (geteld == 0) {
        geteld = loop(weg, fout.soorten[0], 0).geteld;
      }
    }
    EXPECT_GT(geteld, 0) << fout.naam;
  }
}

INSTANTIATE_TEST_SUITE_P(Every, FoutProef, testing::ValuesIn(wegen),
                         [](testing::TestParamInfo<Weg> const& een) {
                           return std::string(een.param.naam);
                         });

}  // namespace
