#include "opdrachtregel/doelGroep.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "opdrachtregel/melding.h"

namespace fs = std::filesystem;

namespace {

// What is at a place before a new file comes there.
class Terugweg {
 public:
  explicit Terugweg(Doel const& doel);

  // Whether what is there now was kept.
  bool isOpen() const { return isBewaard; }
  // Puts it back.
  void ga();

 private:
  std::string pad;
  std::unique_ptr<WegwerpBestand> oud;
  bool isBewaard = true;
};

Terugweg::Terugweg(Doel const& doel) : pad(doel.geefPad()) {
  if (!doel.bestaat()) {
    return;
  }
  oud = std::make_unique<WegwerpBestand>(doel.geefMap());
  isBewaard = oud->isOpen();
  if (!isBewaard) {
    return;
  }
  // Its name is all that counts: a group may have more files than a process may have open.
  static_cast<void>(oud->sluit());
  std::error_code fout;
  fs::remove(oud->geefPad(), fout);
  fs::create_hard_link(pad, oud->geefPad(), fout);
  if (fout) {
    // Not every file system has links.
    fs::copy_file(pad, oud->geefPad(), fout);
  }
  isBewaard = !fout;
}

void Terugweg::ga() {
  if (oud) {
    static_cast<void>(oud->hernoem(pad));
  } else {
    std::error_code fout;
    fs::remove(pad, fout);
  }
}

}  // namespace

Doel* DoelGroep::voegToe(std::string const& pad, bool aanvullen) {
  std::unique_ptr<Doel> doel = Doel::open(pad, aanvullen);
  if (!doel) {
    return nullptr;
  }
  std::error_code fout;
  if (!plaatsen.insert(fs::weakly_canonical(doel->geefPad(), fout)).second) {
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
  std::vector<Terugweg> terug;
  terug.reserve(doelen.size());
  for (std::unique_ptr<Doel> const& doel : doelen) {
    // Behind the last one nothing can fail.
    bool const isLaatste = terug.size() + 1 == doelen.size();
    bool kan = isLaatste || terug.emplace_back(*doel).isOpen();
    if (!kan) {
      meld("cannot replace " + doel->geefNaam() + ": " + std::strerror(errno));
      terug.pop_back();
    } else if (!doel->plaats()) {
      kan = false;
      if (!isLaatste) {
        terug.pop_back();
      }
    }
    if (!kan) {
      std::for_each(terug.rbegin(), terug.rend(), [](Terugweg& weg) { weg.ga(); });
      return false;
    }
  }
  return true;
}
