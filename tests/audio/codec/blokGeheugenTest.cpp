// Blocks that cannot be: where the size that was asked for exists on no machine.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "audio/codec/array.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/stroomRuimte.h"
#include "tests/audio/codec/codecHulp.h"

// Stands in for the one that our own code calls: a sanitizer ends the program at such a size.
extern "C" void* echtRealloc(void* blok, std::size_t bytes) asm("__real_realloc");
extern "C" void* vangRealloc(void* blok, std::size_t bytes) asm("__wrap_realloc");
void* vangRealloc(void* blok, std::size_t bytes) {
  constexpr std::size_t bestaatNergens = std::size_t{1} << 40U;
  return bytes < bestaatNergens ? echtRealloc(blok, bytes) : nullptr;
}

namespace {

// Kept from the compiler, which would see at once that it is too much.
unsigned long long volatile const teVeel = 1ULL << 62U;

TEST(Array, blokDatNietBestaanKanGeeftDeStandaarduitzondering) {
  EXPECT_THROW(VelmoraArray<int>{teVeel}, std::bad_alloc);
}

TEST(PcmPakket, blokDatNietBestaanKanGeeftDeStandaarduitzondering) {
  EXPECT_THROW(VelmoraPCMPakket(teVeel, Breuk(1, 1)), std::bad_alloc);
}

TEST(StroomRuimte, ruimteDieNietBestaanKanGeeftDeStandaarduitzonderingEnLaatDeTekstStaan) {
  wxMemoryOutputStream uit;
  uit.Write("eerst\n", 6);
  EXPECT_THROW(StroomRuimte(uit, teVeel), std::bad_alloc);
  uit.Write("dan\n", 4);
  EXPECT_EQ(tekstVan(uit), "eerst\ndan\n");
}

}  // namespace
