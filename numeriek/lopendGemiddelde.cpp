#include "numeriek/lopendGemiddelde.h"

#include <algorithm>

void LopendGemiddelde::voegToe(double waarde) {
  ring[schrijfplaats] = waarde;
  schrijfplaats = (schrijfplaats + 1) % ring.size();
  telling = std::min(telling + 1, ring.size());
  // What stands at the new place is the value that leaves the mean, or 0 as long as the ring has
  // not gone round.
  som += waarde - ring[schrijfplaats];
}

double LopendGemiddelde::geefGemiddelde() const {
  std::size_t const aantal = std::min(telling, ring.size() - 1);
  return aantal == 0 ? 0.0 : som / static_cast<double>(aantal);
}
