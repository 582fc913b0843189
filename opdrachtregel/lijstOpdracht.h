// kestrolin-cli list: what stands in generated texts, and what it costs in flash.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/opdracht.h"

class LijstOpdracht : public Opdracht {
 public:
  explicit LijstOpdracht(CLI::App& programma);

  Uitslag voerUit() override;

 private:
  std::vector<std::string> bestanden;
  bool alsJson = false;
};
