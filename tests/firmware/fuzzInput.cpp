#include "tests/firmware/fuzzInput.h"

#include <array>
#include <cstdlib>
#include <iostream>

void demand(Rules rules, std::uint8_t const* bytes, std::size_t count) {
  constexpr std::size_t head = 2;
  constexpr std::array<std::uint16_t, 4> rates{8000, 16000, 32000, 44100};
  if (count < head) {
    return;
  }
  Attempt attempt;
  attempt.headerless = bytes[0] % 2 != 0;
  attempt.rate = rates.at(bytes[0] / 2 % rates.size());
  attempt.room = std::size_t{bytes[1]} + 1;
  attempt.array.assign(bytes + head, bytes + count);
  char const* const broken = rules(attempt);
  if (broken != nullptr) {
    std::cerr << broken << '\n';
    std::abort();
  }
}
