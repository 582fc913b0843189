// A record of what our objects ask of the Speex libraries. The linker leads their calls through it
// (see CMakeLists.txt), and from there to the library; the library's own calls do not pass it.
#pragma once

#include <string>
#include <vector>

struct Oproep {
  // The function, and behind it the number of a request and its value as it is at the call, or the
  // other arguments that are numbers. The value is left out for requests that only ask.
  std::string tekst;
  // What the function worked on: a state of the library, or bits.
  void const* toestand = nullptr;
  // The address that the function got for a value or for data.
  void const* adres = nullptr;
};

// What was asked since the last call, in order; the call empties the record.
std::vector<Oproep> neemOproepen();
std::vector<std::string> teksten(std::vector<Oproep> const& oproepen);
// Those of which the text begins like this.
std::vector<Oproep> metBegin(std::vector<Oproep> const& oproepen, std::string const& begin);

// How the library can misbehave.
enum class Streek {
  eerlijk,
  liegt,   // every control call and every encoding answers that it failed although it did not, and
           // every frame size is said to be 9999
  zwijgt,  // no frame is decoded: each is said to be corrupt, and none is recorded
  lang,    // every frame is as long as the encoder of the text allows, and holds the bytes 0, 1, 2
           // and so on
};

// The library does so while this lives.
class MetStreek {
 public:
  explicit MetStreek(Streek streek);
  ~MetStreek();
  MetStreek(MetStreek const&) = delete;
  MetStreek& operator=(MetStreek const&) = delete;
  MetStreek(MetStreek&&) = delete;
  MetStreek& operator=(MetStreek&&) = delete;
};
