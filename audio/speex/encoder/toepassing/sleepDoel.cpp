#include "audio/speex/encoder/toepassing/sleepDoel.h"

#include <utility>

SleepDoel::SleepDoel(std::function<bool(wxArrayString const& paden)> neem)
    : neemPaden(std::move(neem)) {}

bool SleepDoel::OnDropFiles(wxCoord /*x*/, wxCoord /*y*/, wxArrayString const& paden) {
  return neemPaden(paden);
}
