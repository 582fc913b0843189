// Memory that runs out on purpose: `operator new` of the whole program, which fails once when a
// test asks for it.
#pragma once

// While it lives, the `nummer`-th allocation from here on, counted from 1, throws std::bad_alloc,
// and that one alone; 0 lets all succeed.
class KrapGeheugen {
 public:
  explicit KrapGeheugen(int nummer);
  ~KrapGeheugen();
  KrapGeheugen(KrapGeheugen const&) = delete;
  KrapGeheugen& operator=(KrapGeheugen const&) = delete;
  KrapGeheugen(KrapGeheugen&&) = delete;
  KrapGeheugen& operator=(KrapGeheugen&&) = delete;

  // The allocations so far, the one that failed counted in.
  static int geteld();
  // True once an allocation has failed.
  static bool isGebleken();
};
