// Hoek: an angle, held in radians as a double.
//
// A plain value without a range: 370 degrees is an angle as good as any, and arithmetic keeps it
// one. Only normaliseer, zelfNormaliseer, tegenHoek and verschilHoek know of a turn. Nothing is
// checked, reported or thrown; infinities and NaN take the ways of floating point.
#pragma once

#include <cmath>

class wxString;

class Hoek {
 public:
  // The units. The underlying type is fixed, so that any number of it can be passed: each operation
  // tells what it does with an unknown one.
  enum HoekSoort : unsigned int { Radialen = 0, Graden = 1 };

  // Parts of a turn, in radians: the doubles nearest to them.
  static constexpr double kwartpi = 0.78539816339744830962;
  static constexpr double halfpi = 1.57079632679489661923;
  static constexpr double pi = 3.14159265358979323846;
  static constexpr double minpi = -3.14159265358979323846;
  static constexpr double anderhalfpi = 4.71238898038468985769;
  static constexpr double tweepi = 6.28318530717958647693;

  // The angle of x radians or x degrees. An unknown unit ends in StopHier and the angle 0.
  Hoek(double x, HoekSoort s) : waarde(inRadialen(x, s)) {}

  // The direction from the origin to the point (x, y), from -pi to pi: atan2(y, x). A unit at the
  // second place has to be of the enumeration: a plain number there is a y.
  Hoek(double x, double y) : waarde(std::atan2(y, x)) {}

  // From degrees to radians and back, by multiplication with the doubles nearest to pi/180 and
  // 180/pi.
  static double gradNaarRad(double graden) { return graden * 0.017453292519943295; }
  static double radNaarGrad(double radialen) { return radialen * 57.29577951308232; }

  // What Hoek(x, s) would hold, in radians, StopHier included. Does not depend on this angle.
  double zetOm(double x, HoekSoort s) const { return inRadialen(x, s); }

  // The angle in radians, as it is held, and in degrees.
  double rad() const { return waarde; }
  double grad() const { return radNaarGrad(waarde); }

  // The functions of the angle, by the standard library.
  double sinus() const { return std::sin(waarde); }
  double cosinus() const { return std::cos(waarde); }
  double tangens() const { return std::tan(waarde); }

  // The angle with its sign cleared, and with its sign changed, also of a zero, an infinity or NaN.
  Hoek absHoek() const { return {std::fabs(waarde), Radialen}; }
  Hoek ngHoek() const { return {-waarde, Radialen}; }

  // "Hoek=", the angle with two decimals, a blank and "rad"; for every unit but Radialen, unknown
  // ones too, the angle in degrees and "grad". The decimal point is one in every locale, and NaN
  // prints as "nan". Who calls it includes <wx/string.h>.
  wxString print(HoekSoort s) const;

  // The angle within one turn, for angles above -2*pi. With v the angle, and t the number of whole
  // turns in it, v/(2*pi) cut toward zero:
  // - v at least 0: v less t turns, so from 0 to 2*pi. The rounding of quotient and product shifts
  //   it, for large v by more than a turn.
  // - v between -2*pi and 0: v plus one turn, so from 0 to 2*pi.
  // - v from -2*pi down to just above -4*pi: v as it is, negative.
  // - v at or below -4*pi: v plus 2^64 + t + 1 turns, since the negative number t + 1 is read as an
  //   unsigned one: -14 gives 1.16e20.
  // t is a 64-bit integer, and stands still at the ends of its range. An infinity stays one, NaN
  // stays NaN.
  Hoek normaliseer() const;

  // The same in place; returns the object.
  Hoek& zelfNormaliseer();

  // The opposite direction: half a turn added, and normalised as by normaliseer.
  Hoek tegenHoek() const;

  // The shortest way from this angle to b, positive where b lies ahead: from 350 to 10 degrees it
  // is 20 degrees. From -pi to pi for two angles of one turn, as normalised ones are; beyond that
  // it may be more, since one turn is added or taken off at most.
  Hoek verschilHoek(Hoek const& b) const;

  // Plain arithmetic on the radians. A number beside an angle is radians too, but for `*` and `/`,
  // where it is a factor.
  Hoek operator+(double x) const { return {waarde + x, Radialen}; }
  Hoek operator+(Hoek const& b) const { return *this + b.waarde; }
  Hoek operator-(double x) const { return {waarde - x, Radialen}; }
  Hoek operator-(Hoek const& b) const { return *this - b.waarde; }
  Hoek operator*(double x) const { return {waarde * x, Radialen}; }
  Hoek operator/(double x) const { return {waarde / x, Radialen}; }

  // The same in place; each returns the object.
  Hoek& operator+=(double x) { return *this = *this + x; }
  Hoek& operator+=(Hoek const& b) { return *this = *this + b; }
  Hoek& operator-=(double x) { return *this = *this - x; }
  Hoek& operator-=(Hoek const& b) { return *this = *this - b; }
  Hoek& operator*=(double x) { return *this = *this * x; }
  Hoek& operator/=(double x) { return *this = *this / x; }

  // x radians.
  Hoek& operator=(double x) {
    waarde = x;
    return *this;
  }

  // Comparison of the radians, exact: no tolerance, and no regard for turns. NaN is unequal to all,
  // itself included, and in no order with any.
  bool operator==(double x) const { return waarde == x; }
  bool operator!=(double x) const { return waarde != x; }
  bool operator<(double x) const { return waarde < x; }
  bool operator>(double x) const { return waarde > x; }
  bool operator<=(double x) const { return waarde <= x; }
  bool operator>=(double x) const { return waarde >= x; }
  bool operator==(Hoek const& b) const { return *this == b.waarde; }
  bool operator!=(Hoek const& b) const { return *this != b.waarde; }
  bool operator<(Hoek const& b) const { return *this < b.waarde; }
  bool operator>(Hoek const& b) const { return *this > b.waarde; }
  bool operator<=(Hoek const& b) const { return *this <= b.waarde; }
  bool operator>=(Hoek const& b) const { return *this >= b.waarde; }

 private:
  static double inRadialen(double x, HoekSoort s);

  double waarde;
};

// The angle x times as wide.
inline Hoek operator*(double x, Hoek const& h) {
  return h * x;
}
