// The whole text of a run as it is expected: the head, the declarations, the marks and the
// fragments, put together here by other means than the product's.
#pragma once

#include <string>
#include <vector>

#include "tests/audio/codec/adpcmModel.h"

// The ways of output whose fragments are worked out here. Those of Speex come out of libspeex.
enum class Wijze { pcm, adpcm, inbed };

// What a text depends on beside its recordings.
struct RunVorm {
  int taal = 0;
  std::string klasse = "Geluid";
  int bits = 16;  // of the DAC
  bool metHeader = true;
  int rate = 8000;  // of every recording; 0 where they cannot be read
};

struct RunFragment {
  std::string naam;  // of the file, without ".wav"
  std::vector<int> samples;
};

// momentRegel stands in the place of each moment. The ADPCM coder starts from `stand` and leaves
// its own there, or starts from silence.
std::string verwachteRun(Wijze wijze, RunVorm const& vorm,
                         std::vector<RunFragment> const& fragmenten, AdpcmStand& stand);
std::string verwachteRun(Wijze wijze, RunVorm const& vorm,
                         std::vector<RunFragment> const& fragmenten);
