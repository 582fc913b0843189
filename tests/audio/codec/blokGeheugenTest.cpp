// Blocks that cannot be: where the size that was asked for exists on no machine.
#include <gtest/gtest.h>

#include <new>

#include "audio/codec/array.h"
#include "audio/codec/pcmPakket.h"

namespace {

// Kept from the compiler, which would see at once that it is too much.
unsigned long long volatile const teVeel = 1ULL << 62U;

TEST(Array, blokDatNietBestaanKanGeeftDeStandaarduitzondering) {
  EXPECT_THROW(VelmoraArray<int>{teVeel}, std::bad_alloc);
}

TEST(PcmPakket, blokDatNietBestaanKanGeeftDeStandaarduitzondering) {
  EXPECT_THROW(VelmoraPCMPakket(teVeel, Breuk(1, 1)), std::bad_alloc);
}

}  // namespace
