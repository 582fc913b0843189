// A control that is never narrower than its content. Where the window has no room for it, with
// large fonts for instance, it reaches out of its place, and the edge of the window cuts it off.
//
// GTK lays out check boxes, radio buttons and spin buttons so: to narrower ones it writes a
// complaint on standard error at each layout.
#pragma once

#include <algorithm>

template <typename Control>
class NooitSmaller : public Control {
 public:
  // Some of them take arrays.
  // NOLINTNEXTLINE(modernize-avoid-c-arrays)
  using Control::Control;

 protected:
  void DoSetSize(int x, int y, int breedte, int hoogte, int vlaggen) override {
    // A negative width asks for the present one, or for the best.
    int const ruim = breedte < 0 ? breedte : std::max(breedte, this->GetBestSize().GetWidth());
    Control::DoSetSize(x, y, ruim, hoogte, vlaggen);
  }
};
