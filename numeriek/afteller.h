// Afteller: a countdown. It is told of every event, and says which of them is the one waited for:
// the one that brings the count from `grens` down to `ondergrens`, each time or only once.
//
// A plain value for one thread. Counting is in unsigned 64-bit integers, and wraps: a count that
// stands at or below the bound has to go round by way of 2^64 - 1 to come to it.
#pragma once

class Afteller {
 public:
  // Counts down from `grens` to `ondergrens`; where `ondergrens` is the greater of the two, it
  // starts there, and has to go all the way round. With `eenmalig` it fires only once.
  Afteller(unsigned long long grens, bool eenmalig, unsigned long long ondergrens);

  // Starts the count anew from `grens`, or from `ondergrens` where that is greater. A countdown
  // that fires only once does not do so again after it.
  void reset();

  // Starts the count anew from w: from `ondergrens` where w is below it, else from the lesser of w
  // and `grens`.
  void reset(unsigned long long w);

  // From now on counts from g, down to 0. The running count stays as it is until it has fired or is
  // reset.
  void zetGrens(unsigned long long g);

  // The count that it starts from.
  unsigned long long geefGrens() const { return grens_; }
  // The count that it fires at.
  unsigned long long geefOndergrens() const { return ondergrens_; }
  // The running count.
  unsigned long long geefTeller() const { return teller_; }
  // Whether one that fires only once has fired; false for ever for the other kind.
  bool isAfgelopen() const { return afgelopen_; }

  // Counts one event. True when the count comes to `ondergrens` by it; the count then starts anew
  // from `grens`, or stays where that is greater: Afteller(3, false, 0) gives false, false, true,
  // and so on.
  //
  // One that fires only once gives true the first time alone. Its count starts anew from 1, not
  // from `grens`: with an `ondergrens` of 0 it comes to the bound at every later event, and stands
  // at 1 after each; with one of 1 or more it is at or below the bound then, and goes round.
  bool telAf();

 private:
  unsigned long long ondergrens_;
  unsigned long long grens_;
  unsigned long long teller_;
  bool eenmalig_;
  bool afgelopen_ = false;
};
