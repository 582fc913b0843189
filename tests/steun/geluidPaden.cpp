#include "tests/steun/geluidPaden.h"

#include <wx/sound.h>

#include <utility>

namespace {

std::vector<wxString>& paden() {
  static std::vector<wxString> opgenomen;
  return opgenomen;
}

}  // namespace

// The constructor as the program calls it, and the toolkit's own.
extern "C" void opgenomenGeluid(wxSound* zelf, wxString const& pad,
                                bool hulpbron) asm("__wrap__ZN7wxSoundC1ERK8wxStringb");
extern "C" void echtGeluid(wxSound* zelf, wxString const& pad,
                           bool hulpbron) asm("__real__ZN7wxSoundC1ERK8wxStringb");

void opgenomenGeluid(wxSound* zelf, wxString const& pad, bool hulpbron) {
  paden().push_back(pad);
  echtGeluid(zelf, pad, hulpbron);
}

std::vector<wxString> neemGeluidPaden() {
  return std::exchange(paden(), {});
}
