#include "audio/speex/encoder/toepassing/bezigheid.h"

Bezigheid::Bezigheid(int& aantal) : teller(aantal), hadFocus(wxWindow::FindFocus()) {
  ++teller;
}

Bezigheid::~Bezigheid() {
  --teller;
  if (hadFocus && hadFocus->IsEnabled() && hadFocus->IsShownOnScreen()) {
    hadFocus->SetFocus();
  }
}
