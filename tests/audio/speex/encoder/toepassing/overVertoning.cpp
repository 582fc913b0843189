#include "tests/audio/speex/encoder/toepassing/overVertoning.h"

#include <utility>

namespace {

struct Stand {
  std::vector<Vertoning> alle;
  bool echt = false;
};

Stand& stand() {
  static Stand deze;
  return deze;
}

}  // namespace

// The function as the program calls it, and the toolkit's own.
extern "C" void genoteerdeVertoning(wxAboutDialogInfo const& info, wxWindow* ouder) asm(
    "__wrap__Z10wxAboutBoxRK17wxAboutDialogInfoP8wxWindow");
extern "C" void echteVertoning(wxAboutDialogInfo const& info, wxWindow* ouder) asm(
    "__real__Z10wxAboutBoxRK17wxAboutDialogInfoP8wxWindow");

void genoteerdeVertoning(wxAboutDialogInfo const& info, wxWindow* ouder) {
  stand().alle.push_back({info, ouder});
  if (stand().echt) {
    echteVertoning(info, ouder);
  }
}

std::vector<Vertoning> neemVertoningen() {
  return std::exchange(stand().alle, {});
}

void laatVertoningenZien() {
  stand().echt = true;
}
