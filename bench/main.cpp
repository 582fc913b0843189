// The benchmarks of the codecs and of kestrolin-cli. Prints one line a figure; ends with status 1
// where a goal is missed.
#include "bench/adpcmTekst.h"
#include "bench/lezer.h"
#include "bench/opdracht.h"
#include "bench/pcmTekst.h"
#include "bench/speexTekst.h"
#include "bench/werkMap.h"

int main() {
  return inWerkMap([](std::string const& map) {
    // First: a small process starts another one sooner.
    bool const opdracht = meetOpdracht(map);
    bool const pcm = meetPcm(map);
    bool const adpcm = meetAdpcm(map);
    bool const speex = meetSpeex(map);
    bool const lezers = meetLezers(map);
    return opdracht && pcm && adpcm && speex && lezers;
  });
}
