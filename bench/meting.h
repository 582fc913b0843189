// Measuring of work in a process of its own, so that its memory is its own too.
#pragma once

#include <functional>
#include <string>
#include <vector>

// The processor time of this process so far, in seconds.
double processorTijd();

struct Verbruik {
  double seconden;    // processor time, user and system
  double verstreken;  // seconds from start to end
  double mebibytes;   // the peak of resident memory
  bool geslaagd;
};

// Runs `werk` in a child process, which ends with the status that `werk` returns.
Verbruik meetInKind(std::function<int()> const& werk);

// Of `keer` measurements of each the least times, which are what the work costs when nothing
// disturbs it, and the greatest memory. The works take turns, so that a machine which grows slower
// or faster meanwhile does so for all of them.
using Werken = std::vector<std::function<int()>>;
std::vector<Verbruik> meetOmBeurten(int keer, Werken const& werken);
// The processor times of works that take turns in this very process, by work and by round: for
// works that differ by a few per cent, since to start a process costs some time more or less. Empty
// where a work returns another status than 0.
using Tijden = std::vector<std::vector<double>>;
Tijden meetHierOmBeurten(int keer, Werken const& werken);
// Of the ratios of all rounds the one in the middle. The least times of two works may come from
// rounds in which the processor ran at different speeds.
double middelsteVerhouding(std::vector<double> const& eigen, std::vector<double> const& ander);

bool alleGeslaagd(std::vector<Verbruik> const& gemeten);

// Prints a figure and its goal in one line, and returns `gehaald`, whether the goal was reached.
bool meld(bool gehaald, std::string const& wat, double waarde, char const* doel);
