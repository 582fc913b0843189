#include "tests/steun/krapGeheugen.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>

// Asked by the leak detector. The toolkit loses the buffer of a text that it converts, one way or
// the other, where there is no memory for the string.
extern "C" char const* geduldeLekken() asm("__lsan_default_suppressions");
char const* geduldeLekken() {
  return "leak:wxMBConv::cMB2WC\nleak:wxMBConv::FromWChar\n";
}

// Where the program's own code begins and ends, as the linker tells.
extern "C" char const begin asm("__executable_start");
extern "C" char const einde asm("etext");

namespace {

constexpr std::size_t bestaatNergens = std::size_t{1} << 40U;  // 1 TiB

int falend = 0;
int teller = 0;
std::size_t kleinste = 0;
bool eigenAlleen = false;
std::size_t grootsteVraag = 0;
int rijen = 0;

// True for code of the program itself, false for that of the shared libraries.
bool isEigen(void const* code) {
  return !std::less<>()(code, static_cast<void const*>(&begin)) &&
         std::less<>()(code, static_cast<void const*>(&einde));
}

// `vrager` is the code that wants the memory.
void* neem(std::size_t bytes, void const* vrager) {
  grootsteVraag = std::max(grootsteVraag, bytes);
  bool const telt = bytes >= kleinste && (!eigenAlleen || isEigen(vrager));
  if (telt) {
    ++teller;
  }
  if ((telt && teller == falend) || bytes > bestaatNergens) {
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

// What asks without an exception, as the standard library does for buffers of its own.
void* neemOfNiets(std::size_t bytes, void const* vrager) {
  try {
    return neem(bytes, vrager);
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}

}  // namespace

// Every form: a sanitizer has some of its own, which are not built on the plain ones.
void* operator new(std::size_t bytes) {
  return neem(bytes, __builtin_return_address(0));
}

void* operator new[](std::size_t bytes) {
  void* const geheugen = neem(bytes, __builtin_return_address(0));
  ++rijen;
  return geheugen;
}

void* operator new(std::size_t bytes, std::nothrow_t const& /*geen*/) noexcept {
  return neemOfNiets(bytes, __builtin_return_address(0));
}

void* operator new[](std::size_t bytes, std::nothrow_t const& /*geen*/) noexcept {
  void* const geheugen = neemOfNiets(bytes, __builtin_return_address(0));
  rijen += geheugen != nullptr ? 1 : 0;
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

KrapGeheugen::KrapGeheugen(int nummer, std::size_t vanaf, bool alleenEigen) {
  falend = nummer;
  kleinste = vanaf;
  eigenAlleen = alleenEigen;
  teller = 0;
  grootsteVraag = 0;
}

KrapGeheugen::~KrapGeheugen() {
  falend = 0;
  kleinste = 0;
  eigenAlleen = false;
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
