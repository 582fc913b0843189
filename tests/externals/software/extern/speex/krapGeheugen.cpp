#include "tests/externals/software/extern/speex/krapGeheugen.h"

#include <algorithm>
#include <cstdlib>
#include <new>

// Asked by the leak detector. The toolkit loses the buffer of a text that it converts where there
// is no memory for the string.
extern "C" char const* geduldeLekken() asm("__lsan_default_suppressions");
char const* geduldeLekken() {
  return "leak:wxMBConv::cMB2WC\n";
}

namespace {

int falend = 0;
int teller = 0;

}  // namespace

void* operator new(std::size_t bytes) {
  if (++teller == falend) {
    throw std::bad_alloc();
  }
  void* const geheugen = std::malloc(std::max<std::size_t>(bytes, 1));
  if (geheugen == nullptr) {
    throw std::bad_alloc();
  }
  return geheugen;
}

void operator delete(void* geheugen) noexcept {
  std::free(geheugen);
}

void operator delete(void* geheugen, std::size_t /*bytes*/) noexcept {
  std::free(geheugen);
}

KrapGeheugen::KrapGeheugen(int nummer) {
  falend = nummer;
  teller = 0;
}

KrapGeheugen::~KrapGeheugen() {
  falend = 0;
}

bool KrapGeheugen::isGebleken() {
  return falend != 0 && teller >= falend;
}

int KrapGeheugen::geteld() {
  return teller;
}
