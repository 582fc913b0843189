// The toolkit's sound, recorded instead of heard. What is played counts as over at once, also when
// it was to be played on the side.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

struct OpgenomenGeluid {
  unsigned int kanalen;
  unsigned int rate;     // Hz
  unsigned int bits;     // the width of a sample
  unsigned int samples;  // of each channel
  std::size_t bytes;     // of all samples
  unsigned int vlaggen;  // wxSOUND_SYNC, wxSOUND_ASYNC, wxSOUND_LOOP

  bool operator==(OpgenomenGeluid const& ander) const;
};

// The bytes of a sound as a loudspeaker gets them, for those who want more than their number.
using GeluidBytes = std::vector<unsigned char>;

// Runs each time that a sound is to be played, at the moment when it would begin to be heard, with
// its bytes. An empty function ends that.
void bijElkGeluid(std::function<void(OpgenomenGeluid const& geluid, GeluidBytes const& bytes)> wat);

// From here on the player says of each sound that it could not be played, although it is recorded.
void zegDatHetNietSpeelt();

// What was played since the last call, in that order; the call empties the record. The first call
// puts the recorder in the place of the toolkit's player, to the toolkit's end: sounds of before
// that are not recorded.
std::vector<OpgenomenGeluid> neemGeluiden();
