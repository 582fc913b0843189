// The benchmarks of the window: its start and its Encode, against bare windows of the toolkit.
// Wants a display with nobody else on it. Prints one line a figure; ends with status 1 where a goal
// is missed.
#include "bench/venster/vensterCodeer.h"
#include "bench/venster/vensterProces.h"
#include "bench/venster/vensterStart.h"
#include "bench/werkMap.h"

int main() {
  return inWerkMap([](std::string const& map) {
    VensterProces const proces(map);
    // The first program on a display asks for its abilities, and leaves the answers there.
    meetInKind([&] { return proces.draai({kaalVenster}); });
    bool const start = meetVensterStart(proces);
    bool const codeer = meetVensterCodeer(proces);
    return start && codeer;
  });
}
