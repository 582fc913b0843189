// A random source that gives the same values in every run and with every standard library: the
// engine is laid down bit by bit in the standard, its distributions are not, so none is used.
#pragma once

#include <cstdint>
#include <random>

class Toeval {
 public:
  explicit Toeval(std::uint64_t zaad) : motor(zaad) {}

  /// Any of the 2^64 patterns.
  std::uint64_t bits() { return motor(); }

  /// From `onder` up to and including `boven`. The slight unevenness does not matter here.
  long long tussen(long long onder, long long boven) {
    const auto breedte = static_cast<std::uint64_t>(boven - onder) + 1;
    return onder + static_cast<long long>(bits() % breedte);
  }

  /// A 64-bit integer of random size, so that small ones turn up as often as large ones.
  long long geheel() {
    const auto patroon = static_cast<long long>(bits());
    return patroon / (1LL << tussen(0, 62));
  }

 private:
  std::mt19937_64 motor;
};
