// Frequentie and Tijd: fractions with a unit, hertz and seconds. Each is the other turned upside
// down, so they convert into each other exactly, as long as they stay fractions.
//
// Neither normalises, checks or throws: a frequency of 0/1 Hz has the period 1/0 s, whose s() is an
// infinity. The arithmetic of Breuk applies, and gives a Breuk: the unit of a product is for the
// caller to know.
#pragma once

#include "numeriek/breuk.h"

class Tijd;

class Frequentie : public Breuk {
 public:
  // A fraction in hertz, copied as it is.
  Frequentie(Breuk const& hertz) : Breuk(hertz) {}

  // A number of hertz at scale 10, by the rules of Breuk(double, schaal10): 8000.0 gives 80000/10,
  // and the fractional part can come out differently, as told there.
  Frequentie(double hz) : Breuk(hz, BreukRelAantalRelevanteNummers::schaal10) {}

  // The frequency with this period: the fields swapped.
  Frequentie(Tijd const& periode);

  // The period of this frequency: the fields swapped.
  Tijd periode() const;

  // In hertz, in single precision: alsFloat(false), so an infinity or NaN over a zero noemer.
  double hz() const { return alsFloat(false); }
};

class Tijd : public Breuk {
 public:
  // A fraction in seconds, copied as it is.
  Tijd(Breuk const& seconden) : Breuk(seconden) {}

  // A number of seconds at scale 10, by the rules of Breuk(double, schaal10); what is below a
  // tenth of a second is lost.
  Tijd(double seconden) : Breuk(seconden, BreukRelAantalRelevanteNummers::schaal10) {}

  // The period of this frequency: the fields swapped.
  Tijd(Frequentie const& frequentie) : Breuk(frequentie.omgekeerd()) {}

  // The frequency with this period: the fields swapped.
  Frequentie freq() const;

  // In seconds, in single precision: alsFloat(false), so an infinity or NaN over a zero noemer.
  double s() const { return alsFloat(false); }
};
