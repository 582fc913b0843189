// Percentage: a number kept between two bounds, which are 0 and 100. The size ratio of an encoder
// is one. Nothing is reported: what lies outside is brought to the nearest bound.
#pragma once

// No move operations: they would do what the copies do.
class Percentage {  // NOLINT(cppcoreguidelines-special-member-functions)
 public:
  // 0 per cent.
  Percentage() = default;

  // x per cent: 0 for an x below 0, else the lesser of 100 and x. NaN, which is below nothing,
  // gives 100, so that the value always lies within the bounds.
  Percentage(double x);

  Percentage(Percentage const& ander) = default;
  ~Percentage() = default;

  // Takes over the bounds of `ander`, and its value clamped to them.
  Percentage& operator=(Percentage const& ander);

  // The value, in per cent, from geefOndergrens() to geefBovengrens().
  double geefWaarde() const { return waarde; }

  // The bounds, in per cent.
  double geefOndergrens() const { return ondergrens; }
  double geefBovengrens() const { return bovengrens; }

 private:
  double ondergrens = 0.0;
  double bovengrens = 100.0;
  double waarde = 0.0;
};
