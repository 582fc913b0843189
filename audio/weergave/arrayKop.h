// The head of an array: the words of its definition, up to the brace before the first element.
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "audio/weergave/tekstWoorden.h"

struct ArrayKop {
  std::string naam;
  std::string klasse;  // empty where the name stands alone
  bool isSigned;       // elements of signed char, or of unsigned char
};

// Gathers the words between one statement and the next.
class ArrayKopLezer {
 public:
  void neem(Woord const& woord);
  void begin() { woorden.clear(); }

  // Whether a brace at this place opens a list of values, and not a block.
  bool isLijst() const { return !woorden.empty() && woorden.back().is("="); }
  // The head of an array of characters. Nothing for any other, and for one whose name is no
  // identifier: letters, digits and underscores, letters beyond ASCII in UTF-8.
  std::optional<ArrayKop> geef() const;

 private:
  std::deque<Woord> woorden;
};
