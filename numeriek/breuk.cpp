#include "numeriek/breuk.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "numeriek/verzadigd.h"

namespace {

using Ongetekend = unsigned long long;

static_assert(std::numeric_limits<long long>::digits == 63, "a Breuk is two 64-bit integers");
static_assert(std::numeric_limits<float>::is_iec559, "a zero noemer must divide to an infinity");

// Signed overflow is undefined, unsigned overflow wraps: all arithmetic takes that road.
long long maal(long long a, long long b) {
  return static_cast<long long>(static_cast<Ongetekend>(a) * static_cast<Ongetekend>(b));
}

long long plus(long long a, long long b) {
  return static_cast<long long>(static_cast<Ongetekend>(a) + static_cast<Ongetekend>(b));
}

long long verschil(long long a, long long b) {
  return static_cast<long long>(static_cast<Ongetekend>(a) - static_cast<Ongetekend>(b));
}

// The two divisions that the processor traps on get a defined result instead: by zero gives 0, and
// by -1 is a wrapping negation, which leaves the lowest integer as it is.
long long gedeeldDoor(long long deeltal, long long deler) {
  if (deler == 0) {
    return 0;
  }
  if (deler == -1) {
    return verschil(0, deeltal);
  }
  return deeltal / deler;
}

// In single precision by definition: a quotient in double would differ in the last digits.
double quotient(long long boven, long long onder) {
  float const enkel = static_cast<float>(boven) / static_cast<float>(onder);
  return static_cast<double>(enkel);
}

long long schaalVan(BreukRelAantalRelevanteNummers k) {
  const std::size_t diepte = std::min(static_cast<std::size_t>(k), Breuk::nulWerkers.size());
  return Breuk::nulWerkers.at(diepte - 1);
}

// The factors that a fraction is reduced by. Frequencies and periods in decimal units have no
// others worth removing, so no greatest common divisor is computed.
constexpr std::array<long long, 4> factoren{2, 3, 5, 7};

}  // namespace

Breuk::Breuk(double x, BreukRelAantalRelevanteNummers k) : teller_(0), noemer_(1) {
  double const onderkant = std::floor(x);
  auto const geheel = verzadigd<long long>(onderkant);
  if (k == BreukRelAantalRelevanteNummers::geheel || !pastIn<long long>(onderkant)) {
    teller_ = geheel;
    return;
  }
  long long schaal = schaalVan(k);
  // x lies less than 1 above `geheel`, or through rounding just at 1, so this is 0 to `schaal`.
  auto deel = static_cast<long long>(
      std::floor(static_cast<double>(schaal) * (x - static_cast<double>(geheel))));
  // Only the part decides, and the scale is divided along, remainder or not. That makes 0.8 come
  // out as 1/1. That is the definition, and has to stay.
  // The scale never reaches 0: it starts at or above the part, and stays there.
  for (long long const factor : factoren) {
    while (deel != 0 && deel % factor == 0) {
      deel /= factor;
      schaal /= factor;
    }
  }
  noemer_ = schaal;
  teller_ = plus(maal(schaal, geheel), deel);
}

long long Breuk::rondAf(bool omgekeerd) const {
  return omgekeerd ? gedeeldDoor(noemer_, teller_) : gedeeldDoor(teller_, noemer_);
}

long long Breuk::vermenigvuldig(long long x) const {
  return gedeeldDoor(maal(x, teller_), noemer_);
}

double Breuk::alsFloat(bool omgekeerd) const {
  return omgekeerd ? quotient(noemer_, teller_) : quotient(teller_, noemer_);
}

bool Breuk::operator==(Breuk const& ander) const {
  return this == &ander || maal(teller_, ander.noemer_) == maal(noemer_, ander.teller_);
}

bool Breuk::operator!=(Breuk const& ander) const {
  return !(*this == ander);
}

bool Breuk::operator==(long long x) const {
  return teller_ == maal(x, noemer_);
}

bool Breuk::operator!=(long long x) const {
  return !(*this == x);
}

Breuk Breuk::operator+(Breuk const& b) const {
  long long const som = plus(maal(noemer_, b.teller_), maal(b.noemer_, teller_));
  return Breuk(som, maal(noemer_, b.noemer_)).normaliseer();
}

Breuk Breuk::operator-(Breuk const& b) const {
  long long const boven = verschil(maal(b.noemer_, teller_), maal(noemer_, b.teller_));
  return Breuk(boven, maal(noemer_, b.noemer_)).normaliseer();
}

Breuk Breuk::operator*(Breuk const& b) const {
  return Breuk(maal(teller_, b.teller_), maal(noemer_, b.noemer_)).normaliseer();
}

Breuk Breuk::operator/(Breuk const& b) const {
  if (this == &b) {
    return {1, 1};
  }
  return Breuk(maal(teller_, b.noemer_), maal(noemer_, b.teller_)).normaliseer();
}

Breuk Breuk::operator+(long long x) const {
  return Breuk(plus(teller_, maal(x, noemer_)), noemer_).normaliseer();
}

Breuk Breuk::operator-(long long x) const {
  return Breuk(verschil(teller_, maal(x, noemer_)), noemer_).normaliseer();
}

Breuk Breuk::operator*(long long x) const {
  return Breuk(maal(teller_, x), noemer_).normaliseer();
}

Breuk Breuk::operator/(long long x) const {
  return Breuk(teller_, maal(noemer_, x)).normaliseer();
}

Breuk& Breuk::operator+=(Breuk const& b) {
  *this = *this + b;
  return *this;
}

Breuk& Breuk::operator-=(Breuk const& b) {
  *this = *this - b;
  return *this;
}

Breuk& Breuk::operator*=(Breuk const& b) {
  *this = *this * b;
  return *this;
}

Breuk& Breuk::operator*=(long long x) {
  *this = *this * x;
  return *this;
}

Breuk& Breuk::operator/=(long long x) {
  *this = *this / x;
  return *this;
}

Breuk Breuk::normaliseer() const {
  Breuk kopie = *this;
  kopie.normaliseerZelf();
  return kopie;
}

Breuk& Breuk::normaliseerZelf() {
  // 0/0 can be divided for ever and keeps all its factors; a tool that hangs helps nobody, so it is
  // left alone. Any other pair has a field that gets smaller with every division.
  if (teller_ == 0 && noemer_ == 0) {
    return *this;
  }
  for (long long const factor : factoren) {
    while (teller_ % factor == 0 && noemer_ % factor == 0) {
      teller_ /= factor;
      noemer_ /= factor;
    }
  }
  return *this;
}

double operator*(double x, Breuk const& b) {
  return x * b.alsFloat(false);
}

double operator/(double x, Breuk const& b) {
  return x * b.alsFloat(true);
}
