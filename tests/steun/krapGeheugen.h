// Memory that runs out on purpose: `operator new` of the whole program, which fails once when a
// test asks for it, and always at a size that no machine has, whatever the system or a sanitizer
// would make of that.
#pragma once

#include <cstddef>

// What each of the first bytes of fresh memory holds, at most `vuilBytes` of them.
constexpr unsigned char vuil = 0xA5;
constexpr std::size_t vuilBytes = 4096;

// While it lives, the `nummer`-th allocation from here on, counted from 1, throws std::bad_alloc,
// and that one alone; 0 lets all succeed. Those of less than `vanaf` bytes do not count,
// nor, with `alleenEigen`, those that a shared library asks for.
class KrapGeheugen {
 public:
  explicit KrapGeheugen(int nummer, std::size_t vanaf = 0, bool alleenEigen = false);
  ~KrapGeheugen();
  KrapGeheugen(KrapGeheugen const&) = delete;
  KrapGeheugen& operator=(KrapGeheugen const&) = delete;
  KrapGeheugen(KrapGeheugen&&) = delete;
  KrapGeheugen& operator=(KrapGeheugen&&) = delete;

  // The allocations so far, the one that failed counted in.
  static int geteld();
  // True once an allocation has failed.
  static bool isGebleken();
  // The arrays that were allocated and not yet released as arrays, since the program began.
  static int openRijen();
  // The most bytes that one allocation asked for so far, whether it got them or not.
  static std::size_t grootste();
};
