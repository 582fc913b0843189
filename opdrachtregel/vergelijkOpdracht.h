// kestrolin-cli compare: what each encoder would make of recordings.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/opdracht.h"

struct Opname;

class VergelijkOpdracht : public Opdracht {
 public:
  explicit VergelijkOpdracht(CLI::App& programma);

  Uitslag voerUit() override;

 private:
  std::vector<std::string> wavs;
  std::string plaat;
  bool alsJson = false;
};
