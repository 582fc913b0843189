// A libsndfile that misbehaves. The linker leads our calls through it (see CMakeLists.txt), and
// from there to the library.
#pragma once

#include <optional>

struct SndStoring {
  bool krapNaOpen = false;          // an open file leaves no memory for what is allocated next
  std::optional<int> gelukteReads;  // the reads that succeed; the later ones give nothing
  bool schijfLoos = false;          // writes succeed and write nothing
};

// While it lives, the library misbehaves like that.
class MetSndStoring {
 public:
  explicit MetSndStoring(SndStoring const& storing);
  ~MetSndStoring();
  MetSndStoring(MetSndStoring const&) = delete;
  MetSndStoring& operator=(MetSndStoring const&) = delete;
  MetSndStoring(MetSndStoring&&) = delete;
  MetSndStoring& operator=(MetSndStoring&&) = delete;

  // The writes since its beginning.
  static unsigned long long writes();
};
