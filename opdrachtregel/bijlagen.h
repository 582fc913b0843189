// The files that go with a text: those by which a program takes it in, and the one for the build.
#pragma once

#include <string>
#include <vector>

// An array of the text, as it is declared.
struct Declaratie {
  std::string naam;
  std::string type;    // of its elements
  std::string uitleg;  // its kind, rate and number of samples
};

// What a decoder of ADPCM has to start from.
struct CoderStand {
  int voorspelling;  // -32768 to 32767
  int index;         // 0 to 88
};

// What the declarations belong to.
struct Omgeving {
  int taal;                 // UitvoerTaalC or UitvoerTaalCPP
  std::string klasse;       // in C++
  bool metFlash = false;    // arrays lie where the readers of the target read
  bool metStanden = false;  // each array has a state to start from
};

// The name of the size of an array, a size_t.
std::string grootteNaam(std::string const& array);

// The name of the state that the decoder of an array starts from: three bytes, laid out as in the
// header of an ADPCM array.
std::string standNaam(std::string const& array);

// A header that declares the arrays and their sizes; `bestand` is its path, from which, and from
// the first array or the class, the include guard is made. A header for C can be included from C++
// too.
std::string declaratieTekst(std::string const& bestand, Omgeving const& omgeving,
                            std::vector<Declaratie> const& arrays);

// A source that takes in the text and defines the sizes, and with `metStanden` the states, one for
// each array. `declaraties` and `tekst` are the paths of the header and of the text as that source
// includes them.
std::string bronTekst(std::string const& declaraties, std::string const& tekst,
                      Omgeving const& omgeving, std::vector<Declaratie> const& arrays,
                      std::vector<CoderStand> const& standen);

// Whether a path can stand in an #include.
bool pastInInsluiting(std::string const& pad);

// The path of `doel` as a file in the folder of `bron` includes it.
std::string insluitPad(std::string const& doel, std::string const& bron);

// Whether make and ninja can both be told of a file of this name: some characters are theirs.
bool pastInAfhankelijkheden(std::string const& pad);

// The rule that `doel` depends on these files, as make and ninja read it, and an empty rule for
// each of them, so that one that has gone makes the text again instead of stopping the build.
std::string afhankelijkheidTekst(std::string const& doel, std::vector<std::string> const& bronnen);
