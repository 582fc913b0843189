// kestrolin-cli play: what a target plays of a generated text, to the sound device.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "opdrachtregel/opdracht.h"

struct TekstArray;

class SpeelOpdracht : public Opdracht {
 public:
  explicit SpeelOpdracht(CLI::App& programma);

  Uitslag voerUit() override;

 private:
  // The numbers of the arrays to play, in that order.
  std::optional<std::vector<std::size_t>> kies(std::vector<TekstArray> const& arrays) const;

  std::string bestand;
  std::vector<std::string> namen;
  unsigned int dacBits = 0;
};
