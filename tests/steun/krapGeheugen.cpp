#include "tests/steun/krapGeheugen.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

// Asked by the leak detector. The toolkit loses the buffer of a text that it converts, one way or
// the other, where there is no memory for the string.
extern "C" char const* geduldeLekken() asm("__lsan_default_suppressions");
char const* geduldeLekken() {
  return "leak:wxMBConv::cMB2WC\nleak:wxMBConv::FromWChar\n";
}

namespace {

constexpr std::size_t bestaatNergens = std::size_t{1} << 40U;  // 1 TiB

int falend = 0;
int teller = 0;
std::size_t kleinste = 0;
std::size_t grootsteVraag = 0;
int rijen = 0;

void* neem(std::size_t bytes) {
  grootsteVraag = std::max(grootsteVraag, bytes);
  if (bytes >= kleinste) {
    ++teller;
  }
  if ((bytes >= kleinste && teller == falend) || bytes > bestaatNergens) {
    throw std::bad_alloc();
  }
  void* const geheugen = std::malloc(std::max<std::size_t>(bytes, 1));
  if (geheugen == nullptr) {
    throw std::bad_alloc();
  }
  return std::memset(geheugen, vuil, std::min(bytes, vuilBytes));
}

void geefRijTerug(void* geheugen) {
  if (geheugen != nullptr) {
    --rijen;
  }
  std::free(geheugen);
}

}  // namespace

// The forms for arrays too: a sanitizer has some of its own, which are not built on the plain ones.
void* operator new(std::size_t bytes) {
  return neem(bytes);
}

void* operator new[](std::size_t bytes) {
  void* const geheugen = neem(bytes);
  ++rijen;
  return geheugen;
}

void operator delete(void* geheugen) noexcept {
  std::free(geheugen);
}

void operator delete(void* geheugen, std::size_t /*bytes*/) noexcept {
  std::free(geheugen);
}

void operator delete[](void* geheugen) noexcept {
  geefRijTerug(geheugen);
}

void operator delete[](void* geheugen, std::size_t /*bytes*/) noexcept {
  geefRijTerug(geheugen);
}

KrapGeheugen::KrapGeheugen(int nummer, std::size_t vanaf) {
  falend = nummer;
  kleinste = vanaf;
  teller = 0;
  grootsteVraag = 0;
}

KrapGeheugen::~KrapGeheugen() {
  falend = 0;
  kleinste = 0;
}

bool KrapGeheugen::isGebleken() {
  return falend != 0 && teller >= falend;
}

int KrapGeheugen::geteld() {
  return teller;
}

int KrapGeheugen::openRijen() {
  return rijen;
}

std::size_t KrapGeheugen::grootste() {
  return grootsteVraag;
}
