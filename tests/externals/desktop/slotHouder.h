// A second process that holds an application's lock, as a running copy of it would.
#pragma once

#include <sys/types.h>

#include <string>

// How a test program is asked to be that process, and what it answers.
constexpr char const* slotOptie = "--houd-slot";
constexpr char slotGenomen = '+';
constexpr char slotBezet = '-';

class SlotHouder {
 public:
  // Starts this very program again as the holder, and waits until it has the lock.
  explicit SlotHouder(std::string const& naam);
  // Ends the holder, which gives the lock back.
  ~SlotHouder();

  SlotHouder(SlotHouder const&) = delete;
  SlotHouder& operator=(SlotHouder const&) = delete;
  SlotHouder(SlotHouder&&) = delete;
  SlotHouder& operator=(SlotHouder&&) = delete;

  bool heeftSlot() const { return genomen; }

 private:
  pid_t kind = -1;
  int invoer = -1;
  bool genomen = false;
};
