#include "tests/audio/speex/encoder/toepassing/speelScherm.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <memory>

namespace {

struct Einde {
  void operator()(Display* scherm) const { XCloseDisplay(scherm); }
  void operator()(XImage* beeld) const { XDestroyImage(beeld); }
};

}  // namespace

SchermBeeld leesScherm(SchermDeel const& deel) {
  std::unique_ptr<Display, Einde> const scherm(XOpenDisplay(nullptr));
  if (!scherm) {
    return {};
  }
  std::unique_ptr<XImage, Einde> const beeld(
      XGetImage(scherm.get(), XDefaultRootWindow(scherm.get()), deel.x, deel.y,
                static_cast<unsigned int>(deel.breedte), static_cast<unsigned int>(deel.hoogte),
                AllPlanes, ZPixmap));
  SchermBeeld lijnen;
  for (int y = 0; beeld && y < deel.hoogte; ++y) {
    std::vector<unsigned long>& lijn = lijnen.emplace_back();
    for (int x = 0; x < deel.breedte; ++x) {
      lijn.push_back(XGetPixel(beeld.get(), x, y));
    }
  }
  return lijnen;
}

std::set<int> andereLijnen(SchermBeeld const& een, SchermBeeld const& ander) {
  std::set<int> lijnen;
  for (std::size_t y = 0; y < een.size(); ++y) {
    if (een[y] != ander.at(y)) {
      lijnen.insert(static_cast<int>(y));
    }
  }
  return lijnen;
}

bool isEffen(SchermBeeld const& beeld) {
  return std::all_of(beeld.begin(), beeld.end(), [&beeld](std::vector<unsigned long> const& lijn) {
    return std::all_of(lijn.begin(), lijn.end(),
                       [&beeld](unsigned long pixel) { return pixel == beeld[0][0]; });
  });
}
