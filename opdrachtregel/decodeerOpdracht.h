// kestrolin-cli decode: from generated texts to the WAV files that a target would play.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "opdrachtregel/opdracht.h"

class DoelGroep;
struct DoelGeluid;
struct TekstArray;

class DecodeerOpdracht : public Opdracht {
 public:
  explicit DecodeerOpdracht(CLI::App& programma);

  Uitslag voerUit() override;

 private:
  bool decodeerAlle(DoelGroep& doelen);
  bool decodeerTekst(std::string const& bestand, std::vector<TekstArray> const& arrays,
                     DoelGroep& doelen);
  bool keurNaam(std::string const& bestand, TekstArray const& array);
  bool schrijf(TekstArray const& array, DoelGeluid const& geluid, DoelGroep& doelen) const;
  std::string doelPad(TekstArray const& array) const;

  std::vector<std::string> bestanden;
  std::string map;
  unsigned int dacBits = 0;
  bool uitgebreid = false;

  std::map<std::string, std::string> plaatsen;  // where an array of each name stands
};
