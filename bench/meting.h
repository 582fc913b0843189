// Measuring of work in a process of its own, so that its memory is its own too, and the clean
// comparison of two pieces of work in the same run.
#pragma once

#include <functional>

struct Verbruik {
  double seconden;   // processor time, user and system
  double megabytes;  // the peak of resident memory
  bool geslaagd;
};

// Runs `werk` in a child process, which ends with the status that `werk` returns.
Verbruik meetInKind(std::function<int()> const& werk);

// The least of `keer` measurements: what the work costs when nothing disturbs it.
Verbruik meetBeste(int keer, std::function<int()> const& werk);
