// Blocks that cannot be: where the size that was asked for exists on no machine.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "audio/codec/array.h"
#include "audio/codec/fragmentTekst.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/stroomRuimte.h"
#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

// Stands in for the one that our own code calls: a sanitizer ends the program at such a size.
extern "C" void* echtRealloc(void* blok, std::size_t bytes) asm("__real_realloc");
extern "C" void* vangRealloc(void* blok, std::size_t bytes) asm("__wrap_realloc");
// The most that was asked for.
static std::size_t meest = 0;
void* vangRealloc(void* blok, std::size_t bytes) {
  meest = std::max(meest, bytes);
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

// The toolkit's stream, which asks in its own library, has no more to ask for.
template <typename Schrijf>
void verwachtRuimteVoorAlles(Schrijf schrijf) {
  wxMemoryOutputStream uit;
  meest = 0;
  schrijf(uit);
  EXPECT_GT(uit.GetSize(), 400000U);
  EXPECT_GE(meest, uit.GetSize() - 2000);
}

TEST(StroomRuimte, ruimteVoorEenArrayWordtInEenKeerGevraagd) {
  verwachtRuimteVoorAlles([](wxMemoryOutputStream& uit) {
    constexpr unsigned long long bytes = 100000;
    FragmentTekst(uit).schrijfRijen(VelmoraArray<unsigned char>(bytes));
  });
}

TEST(StroomRuimte, ruimteVoorEenIngebedBestandWordtInEenKeerGevraagd) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), golf(50000));
  verwachtRuimteVoorAlles([&map](wxMemoryOutputStream& uit) {
    schrijfInbedding(bestandsnaam(map.pad("toon.wav")), {0, "", 16, map.pad("beeld.wav")}, uit);
  });
}

}  // namespace
