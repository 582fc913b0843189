#include "opdrachtregel/doelGroep.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <filesystem>
#include <system_error>

#include "opdrachtregel/melding.h"
#include "opdrachtregel/paden.h"
#include "opdrachtregel/signalen.h"
#include "opdrachtregel/systeem.h"

namespace fs = std::filesystem;

namespace {

// What is at a place before a new file comes there. It comes back at the end, also of an exception,
// where the new file came and is not to stay.
class Terugweg {
 public:
  // Keeps what is there now.
  explicit Terugweg(Doel const& doel);
  ~Terugweg();
  Terugweg(Terugweg const&) = delete;
  Terugweg& operator=(Terugweg const&) = delete;
  Terugweg(Terugweg&&) = delete;
  Terugweg& operator=(Terugweg&&) = delete;

  // The errno that tells why it could not be kept, or 0.
  int geefFout() const { return fout; }
  // The new file has come.
  void begin() { isNodig = true; }
  // The new file stays.
  void sluit() { isNodig = false; }

 private:
  std::string pad;
  std::unique_ptr<WegwerpBestand> oud;
  int fout = 0;
  bool isNodig = false;
};

Terugweg::Terugweg(Doel const& doel) : pad(doel.geefPad()) {
  if (!doel.bestaat()) {
    return;
  }
  oud = std::make_unique<WegwerpBestand>(doel.geefMap());
  if (!oud->isOpen()) {
    fout = errno;
    return;
  }
  // Its name is all that counts: a group may have more files than a process may have open.
  static_cast<void>(oud->sluit());
  fout = bewaarOnder(pad, oud->geefPad());
}

Terugweg::~Terugweg() {
  if (isNodig && oud) {
    static_cast<void>(oud->hernoem(pad));
  } else if (isNodig) {
    verwijderBestand(pad);
  }
}

}  // namespace

bool isGeenInvoer(std::string const& pad, std::vector<std::string> const& invoer,
                  char const* raad) {
  bool const isEen = std::any_of(invoer.begin(), invoer.end(), [&pad](std::string const& een) {
    std::error_code geenVanBeide;
    return fs::equivalent(fs::u8path(een), fs::u8path(pad), geenVanBeide);
  });
  if (isEen) {
    meld("cannot write " + pad + ": it is one of the files to read; give " + raad);
  }
  return !isEen;
}

Doel* DoelGroep::voegToe(std::string const& pad, bool aanvullen) {
  std::unique_ptr<Doel> doel = Doel::open(pad, aanvullen);
  if (!doel) {
    return nullptr;
  }
  if (!plaatsen.insert(plaatsVan(doel->geefMap(), doel->geefPad())).second) {
    meld("cannot write " + pad + " twice: give each output a file of its own");
    return nullptr;
  }
  doelen.push_back(std::move(doel));
  return doelen.back().get();
}

bool DoelGroep::legVast() {
  auto const isHeel = [](std::unique_ptr<Doel> const& doel) { return doel->sluit(); };
  if (std::count_if(doelen.begin(), doelen.end(), isHeel) !=
      static_cast<std::ptrdiff_t>(doelen.size())) {
    return false;
  }
  auto const bestanden =
      std::stable_partition(doelen.begin(), doelen.end(),
                            [](std::unique_ptr<Doel> const& doel) { return doel->isToestel(); });
  if (!std::all_of(doelen.begin(), bestanden,
                   [](std::unique_ptr<Doel> const& doel) { return doel->lever(); })) {
    return false;
  }
  doelen.erase(doelen.begin(), bestanden);
  return plaatsAlle();
}

bool DoelGroep::plaatsAlle() {
  SignaalPauze const pauze;
  std::deque<Terugweg> wegen;
  for (std::unique_ptr<Doel> const& doel : doelen) {
    // Behind the last one nothing can fail.
    if (doel == doelen.back()) {
      break;
    }
    Terugweg& weg = wegen.emplace_back(*doel);
    if (weg.geefFout() != 0) {
      meld("cannot replace " + doel->geefNaam() + ": " + redenEnRaad(weg.geefFout()));
      return false;
    }
    if (!doel->plaats()) {
      return false;
    }
    weg.begin();
  }
  if (!doelen.empty() && !doelen.back()->plaats()) {
    return false;
  }
  std::for_each(wegen.begin(), wegen.end(), [](Terugweg& weg) { weg.sluit(); });
  return true;
}
