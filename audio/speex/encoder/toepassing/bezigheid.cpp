#include "audio/speex/encoder/toepassing/bezigheid.h"

#include <utility>

void BezigStand::stelUit(wxEvent const& event) {
  uitgesteld.emplace_back(event.Clone());
}

Bezigheid::Bezigheid(BezigStand& bezig) : stand(bezig), hadFocus(wxWindow::FindFocus()) {
  ++stand.handlers;
}

Bezigheid::~Bezigheid() {
  --stand.handlers;
  if (!stand.isBezig()) {
    stand.inRun = false;
    for (std::unique_ptr<wxEvent>& event : std::exchange(stand.uitgesteld, {})) {
      stand.ontvanger.QueueEvent(event.release());
    }
  }
  if (hadFocus && hadFocus->IsEnabled() && hadFocus->IsShownOnScreen()) {
    hadFocus->SetFocus();
  }
}
