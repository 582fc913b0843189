// The options of kestrolin-cli encode, and what they ask for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "audio/uitvoer/kestrolinConfig.h"
#include "audio/weergave/arrayBytes.h"

namespace CLI {
class App;
}

// Of those with a default, only what was given counts: maakVraag has the defaults.
struct EncodeerOpties {
  std::vector<std::string> wavs;
  std::string encoder;
  std::string taal;
  std::string klasse;
  int dacBits = 0;
  bool metHeader = false;
  unsigned int kwaliteit = 0;
  unsigned int complexiteit = 0;
  std::string bitrate;
  unsigned int maxBitrate = 0;
  bool vad = false;
  bool denoise = false;
  bool agc = false;
  std::string instellingen;
  std::string uitvoer;
  bool aanvullen = false;
  std::string declaraties;
  std::string bron;
  bool flash = false;
  bool standen = false;
  std::string afhankelijkheden;
  bool uitgebreid = false;
};

// Adds the options to `app`, which fills `opties`.
void voegOptiesToe(CLI::App& app, EncodeerOpties& opties);

struct EncodeerVraag {
  ArraySoort soort;
  KestrolinConfig instellingen;
  std::string klasse;  // of the arrays, in C++
};

// What is asked for: the defaults of a first start with PCM and C, or those of the settings file,
// and over them the options that were given. Nothing where the settings file cannot be read, which
// was told.
std::optional<EncodeerVraag> maakVraag(CLI::App const& app, EncodeerOpties const& opties);
