// A window in a process of its own, with a home of its own, as at a first start.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bench/meting.h"

// The programs that show one.
extern std::string const echtVenster;
extern std::string const kaalVenster;

// What a window told.
struct VensterCijfers {
  double seconden;
  double mebibytes;
  double tekens;
};

class VensterProces {
 public:
  // Works in the folder `map`.
  explicit VensterProces(std::string map);

  // Becomes the program `woorden[0]` with these words, for a child. Returns where there is none.
  int draai(std::vector<std::string> const& woorden) const;
  // Has `mebibytes` of free memory at hand, runs that program, and returns what it told; nothing
  // where it failed, which standard error tells.
  std::optional<VensterCijfers> meet(std::vector<std::string> const& woorden,
                                     std::size_t mebibytes) const;

  std::string pad(std::string const& naam) const { return map + "/" + naam; }
  // What the last program said on standard error.
  std::string fouten() const;
  // Moves what the last program left among the temporary files, the one text, to `doel`.
  bool neemTekst(std::string const& doel) const;

 private:
  std::string map;
};
