// The elements of an array, as they stand between its braces.
#pragma once

#include <optional>

#include "audio/weergave/arrayBytes.h"
#include "audio/weergave/tekstWoorden.h"

class ElementLezer {
 public:
  // Reads elements of signed char or of unsigned char, from behind the brace that opens them.
  ElementLezer(TekstWoorden& tekst, bool signedChar) : woorden(tekst), isSigned(signedChar) {}

  // Appends the elements to `bytes`. Nothing where all is well up to the brace that closes them;
  // otherwise the word at which reading stopped: no element, or one that its type cannot hold. A
  // signed one may be an unsigned byte in hexadecimal, as the sizes of frames are.
  std::optional<Woord> lees(ArrayBytes& bytes);

  // Passes over what is left of an array, from `woord` on, and returns the word that ends it: the
  // closing brace, the comment that begins a fragment or a run, or the end of the text.
  Woord slaOver(Woord woord);
  // The next word that counts within an array: other comments do not.
  Woord volgende();

 private:
  std::optional<unsigned char> leesElement(Woord& woord);
  void leesRijen(ArrayBytes& bytes);

  TekstWoorden& woorden;
  bool isSigned;
};

// Whether the array is cut off there.
bool breektAf(Woord const& woord);
