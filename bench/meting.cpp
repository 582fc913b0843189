#include "bench/meting.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <iterator>

namespace {

double alsSeconden(timeval const& tijd) {
  constexpr double microsPerSeconde = 1e6;
  return static_cast<double>(tijd.tv_sec) + static_cast<double>(tijd.tv_usec) / microsPerSeconde;
}

}  // namespace

double processorTijd() {
  timespec tijd{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &tijd);
  constexpr double nanosPerSeconde = 1e9;
  return static_cast<double>(tijd.tv_sec) + static_cast<double>(tijd.tv_nsec) / nanosPerSeconde;
}

Verbruik meetInKind(std::function<int()> const& werk) {
  auto const begin = std::chrono::steady_clock::now();
  pid_t const kind = fork();
  if (kind == 0) {
    _exit(werk());
  }
  int status = 0;
  rusage gebruik{};
  bool const gewacht = kind > 0 && wait4(kind, &status, 0, &gebruik) == kind;
  std::chrono::duration<double> const verstreken = std::chrono::steady_clock::now() - begin;
  constexpr double kibPerMib = 1024;
  return {alsSeconden(gebruik.ru_utime) + alsSeconden(gebruik.ru_stime), verstreken.count(),
          static_cast<double>(gebruik.ru_maxrss) / kibPerMib,
          gewacht && WIFEXITED(status) && WEXITSTATUS(status) == 0};
}

std::vector<Verbruik> meetOmBeurten(int keer, Werken const& werken) {
  std::vector<Verbruik> beste;
  std::transform(werken.begin(), werken.end(), std::back_inserter(beste), meetInKind);
  for (int i = 1; i < keer; ++i) {
    std::transform(werken.begin(), werken.end(), beste.begin(), beste.begin(),
                   [](std::function<int()> const& werk, Verbruik const& tot) {
                     Verbruik const nu = meetInKind(werk);
                     return Verbruik{std::min(tot.seconden, nu.seconden),
                                     std::min(tot.verstreken, nu.verstreken),
                                     std::max(tot.mebibytes, nu.mebibytes),
                                     tot.geslaagd && nu.geslaagd};
                   });
  }
  return beste;
}

Tijden meetHierOmBeurten(int keer, Werken const& werken) {
  Tijden tijden(werken.size());
  for (int i = 0; i < keer; ++i) {
    for (std::size_t werk = 0; werk < werken.size(); ++werk) {
      double const begin = processorTijd();
      if (werken[werk]() != 0) {
        return {};
      }
      tijden[werk].push_back(processorTijd() - begin);
    }
  }
  return tijden;
}

double middelsteVerhouding(std::vector<double> const& eigen, std::vector<double> const& ander) {
  std::vector<double> ronden;
  std::transform(eigen.begin(), eigen.end(), ander.begin(), std::back_inserter(ronden),
                 std::divides<>());
  auto const midden = ronden.begin() + static_cast<std::ptrdiff_t>(ronden.size() / 2);
  std::nth_element(ronden.begin(), midden, ronden.end());
  return *midden;
}

bool alleGeslaagd(std::vector<Verbruik> const& gemeten) {
  return std::all_of(gemeten.begin(), gemeten.end(), [](Verbruik const& v) { return v.geslaagd; });
}

bool meld(bool gehaald, std::string const& wat, double waarde, char const* doel) {
  std::printf("%-62s %8.2f  %-10s %s\n", wat.c_str(), waarde, doel, gehaald ? "ok" : "MISSED");
  return gehaald;
}
