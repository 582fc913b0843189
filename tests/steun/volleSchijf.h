// A disk that is full: no file of this process grows beyond some bytes, as long as this lives. A
// write across the border takes the bytes before it, and the next one fails.
#pragma once

#include <sys/resource.h>

#include <csignal>

class VolleSchijf {
 public:
  explicit VolleSchijf(rlim_t bytes = 0) : vorigSignaal(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &vorige);
    rlimit grens = vorige;
    grens.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &grens);
  }
  ~VolleSchijf() {
    setrlimit(RLIMIT_FSIZE, &vorige);
    static_cast<void>(std::signal(SIGXFSZ, vorigSignaal));
  }
  VolleSchijf(VolleSchijf const&) = delete;
  VolleSchijf& operator=(VolleSchijf const&) = delete;
  VolleSchijf(VolleSchijf&&) = delete;
  VolleSchijf& operator=(VolleSchijf&&) = delete;

 private:
  rlimit vorige{};
  void (*vorigSignaal)(int);
};
