// kestrolin-cli encode: from recordings to the text that the window makes of them, and to the files
// by which a program takes it in.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/bijlagen.h"
#include "opdrachtregel/encodeerOpties.h"
#include "opdrachtregel/opdracht.h"
#include "opdrachtregel/opname.h"

class Doel;
class DoelGroep;
class wxOutputStream;

class EncodeerOpdracht : public Opdracht {
 public:
  explicit EncodeerOpdracht(CLI::App& programma);

  Uitslag voerUit() override;

 private:
  Uitslag keurGebruik(EncodeerVraag const& vraag) const;
  bool keurDoelen() const;
  bool keurVermeldingen() const;
  std::vector<std::string> afhankelijkheden() const;
  bool schrijfAlles(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                    DoelGroep& doelen) const;
  // Sets `latereBron` where the source can be written only when the text is made.
  bool schrijfBijlagen(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                       DoelGroep& doelen, Doel*& latereBron) const;
  Omgeving omgevingVan(EncodeerVraag const& vraag) const;
  std::string maakBron(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                       std::vector<CoderStand> const& standen) const;
  // Tells what was made, file by file.
  void vertel(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen) const;
  // The outputs that are asked for, the text first.
  std::vector<std::string> uitvoerPaden() const;

  EncodeerOpties opties;
};
