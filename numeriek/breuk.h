// Breuk: a fraction of two signed 64-bit integers. It holds sampling frequencies and periods
// exactly, where a double would already have rounded 1/3 of a second.
//
// A Breuk is a bare pair. It has no invariant: every pair is allowed, also with a zero or negative
// noemer; nothing moves a sign or brings the pair to lowest terms on its own. Nothing is reported,
// thrown or allocated; integer arithmetic that leaves 64 bits wraps (two's complement), and what
// the processor or the loop could not end has a result all the same: see rondAf and normaliseer.
// The results of a zero divisor and of 0/0, as told below, are settled: callers may rely on them.
#pragma once

#include <array>
#include <cstdint>

// How deep Breuk::nulWerkers is used when a double becomes a Breuk. The value is the number of the
// table's entry, counted from 1; 0 uses no entry, and keeps the whole number alone.
enum class BreukRelAantalRelevanteNummers : unsigned int {
  geheel = 0,
  schaal1 = 1,
  schaal10 = 2,
  schaal100 = 3,
  schaal1000 = 4,
  schaal10000 = 5,
  schaal100000 = 6,
  schaal1000000 = 7,
  schaal10000000 = 8,
};

class Breuk {
 public:
  // The scales a double can be taken at: the powers of ten from 1 to 10 million.
  static constexpr std::array<std::int32_t, 8> nulWerkers{1,     10,     100,     1000,
                                                          10000, 100000, 1000000, 10000000};

  // teller/noemer, both stored as they come. The usual empty value is Breuk(0, 1).
  Breuk(long long teller, long long noemer) : teller_(teller), noemer_(noemer) {}

  // x in units of 1/scale, rounded down to a whole number of them, over a noemer that is at most
  // the scale and never 0. A k above 8 counts as 8. The second argument has to be of the
  // enumeration: with a plain number beside it x would be cut to an integer teller.
  //
  // The factors 2, 3, 5 and 7 are then taken out of the fractional part, and the scale is divided
  // by them too, with truncation, whether it has them or not. So the result can differ from x:
  // 0.25 at scale 100 gives 1/4, but 0.8 at scale 10 gives 1/1. A fractional part of 0 leaves the
  // scale whole: 8000.0 at scale 10 gives 80000/10.
  //
  // An x whose whole part does not fit 64 bits becomes the nearest integer that does, over 1; NaN
  // becomes 0/1. An x that fits, but whose product with the scale does not, wraps.
  Breuk(double x, BreukRelAantalRelevanteNummers k);

  long long teller() const { return teller_; }
  long long noemer() const { return noemer_; }

  // noemer/teller, not normalised. Needs no value other than 0: 0/1 gives 1/0.
  Breuk omgekeerd() const { return {noemer_, teller_}; }

  // teller divided by noemer, or with `omgekeerd` noemer divided by teller, truncated toward zero.
  // A zero divisor gives 0; the lowest integer divided by -1 wraps to itself.
  long long rondAf(bool omgekeerd) const;

  // x times this, truncated toward zero. The product comes first, and wraps; the division follows
  // the rules of rondAf.
  long long vermenigvuldig(long long x) const;

  // The quotient, or with `omgekeerd` that of noemer over teller, in single precision: both fields
  // are rounded to float, divided as float, and the result widened. A zero divisor gives an
  // infinity, or NaN for 0/0.
  double alsFloat(bool omgekeerd) const;

  // Equality of value by wrapping cross products, so 1/2 equals 2/4. It follows that 0/0 equals
  // every Breuk, and that pairs whose products wrap may be equal by accident.
  bool operator==(Breuk const& ander) const;
  bool operator!=(Breuk const& ander) const;

  // Equality with the whole number x: teller against the wrapping product x * noemer.
  bool operator==(long long x) const;
  bool operator!=(long long x) const;

  // The arithmetic of fractions. Each forms the plain result (with d1*d2 as the noemer of a sum,
  // never a least common multiple) in wrapping 64-bit arithmetic, and normalises it.
  Breuk operator+(Breuk const& b) const;
  Breuk operator-(Breuk const& b) const;
  Breuk operator*(Breuk const& b) const;
  // An object divided by itself (the same object, not an equal one) gives 1/1, also for zero.
  // Division by a zero value gives a noemer of 0.
  Breuk operator/(Breuk const& b) const;

  // The same with the whole number x as x/1.
  Breuk operator+(long long x) const;
  Breuk operator-(long long x) const;
  Breuk operator*(long long x) const;
  Breuk operator/(long long x) const;

  // The same in place: the object takes the normalised result, and is returned. The right side may
  // be the object itself.
  Breuk& operator+=(Breuk const& b);
  Breuk& operator-=(Breuk const& b);
  Breuk& operator*=(Breuk const& b);
  Breuk& operator*=(long long x);
  Breuk& operator/=(long long x);

  // The same value without the common factors 2, 3, 5 and 7, and no others: 22/33 stays 22/33, as
  // do signs: -4/-2 gives -2/-1. A zero counts as divisible by everything: 0/8 gives 0/1, 12/0
  // gives 1/0. 0/0 stays 0/0.
  Breuk normaliseer() const;

  // The same in place; returns this object.
  Breuk& normaliseerZelf();

 private:
  long long teller_;
  long long noemer_;
};

// x * b in double, where b is first rounded to single precision: x * b.alsFloat(false).
double operator*(double x, Breuk const& b);

// x / b as a multiplication by the reciprocal, with the rounding of that: x * b.alsFloat(true).
double operator/(double x, Breuk const& b);
