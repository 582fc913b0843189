// StandSchakelaar: a switch that is on or off, with a lock that holds it in its place.
//
// A plain value for one thread. Two things are not what they look like, and have to stay so:
// - a number at construction means the reverse of the same number assigned;
// - a switch assigned to a switch changes nothing: it is a question. To take over the place of b,
//   write `a = b.geefStand()`.
#pragma once

#include <cstdint>

// The places of a switch. Om is none of them, but a request: the other place. On 32 bits, so that
// every number of that width is a value, which the operations below give a meaning.
enum class Schakelaar : std::uint32_t { Uit = 0, Aan = 1, Om = 2 };

// NOLINTNEXTLINE(cppcoreguidelines-special-member-functions): a switch has nothing to move
class StandSchakelaar {
 public:
  // These three leave the switch unlocked. They are explicit, and which is meant has to show in the
  // type of the argument (a plain 0 or 1 does not compile), since numbers mean what few expect.

  // Uit or Aan as given; Uit for Om and any other value.
  explicit StandSchakelaar(Schakelaar s);

  // Aan for 0, Uit for any other number.
  explicit StandSchakelaar(unsigned long long v);

  // Aan for true, Uit for false.
  explicit StandSchakelaar(bool b);

  // The same place, and locked where `ander` is.
  StandSchakelaar(StandSchakelaar const& ander) = default;
  ~StandSchakelaar() = default;

  // Aan for a v that is not 0, Uit for 0; unless locked. Returns the object.
  StandSchakelaar& operator=(unsigned int v);

  // Uit or Aan as given, the other place for Om, Uit for any other value; unless locked. Returns
  // the object.
  StandSchakelaar& operator=(Schakelaar s);

  // Whether b is Aan. The object is not looked at and not changed, locked or not.
  // NOLINTNEXTLINE(misc-unconventional-assign-operator,cert-oop54-cpp): a test by that name
  bool operator=(StandSchakelaar const& b) const { return b.boolean(); }

  // Whether this is the switch's place; never true for Om.
  bool operator==(Schakelaar s) const { return stand_ == s; }

  // The place, Uit or Aan, under two names.
  Schakelaar waarde() const { return stand_; }
  Schakelaar geefStand() const { return stand_; }

  // Whether it is Aan.
  bool boolean() const { return stand_ == Schakelaar::Aan; }

  // Whether it is Uit.
  bool omgekeerd() const { return stand_ == Schakelaar::Uit; }

  // Locks the switch (true) or unlocks it, locked or not.
  void blokkeer(bool b) { geblokkeerd_ = b; }

  // Changes to the other place, unless locked.
  void om();

 private:
  Schakelaar stand_;
  bool geblokkeerd_ = false;
};
