// How samples come to the width of a DAC.
#pragma once

class DacDeler {
 public:
  // For division by 2 to the power `bitShift`, which is 16 minus the width of the DAC. The shift
  // counts modulo 32, so that every shift has a divisor that is not 0.
  constexpr explicit DacDeler(unsigned long long bitShift)
      : schuif(static_cast<unsigned int>(bitShift) & masker), meest(~(~0U << schuif)) {}

  // The quotient of a 16-bit sample, truncated toward zero. A division by a number that is known
  // only when the program runs would take ten times as long.
  constexpr int deel(int sample) const {
    constexpr unsigned int tekenBits = 31;
    int const opslag = static_cast<int>(meest & static_cast<unsigned int>(sample >> tekenBits));
    return (sample + opslag) >> schuif;
  }

 private:
  static constexpr unsigned int masker = 31;

  unsigned int schuif;
  unsigned int meest;  // the divisor less 1
};
