// The rules alone that tell which controls are usable when.
#include "audio/speex/encoder/toepassing/bedieningsRegels.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct Regel {
  VensterToestand toestand;  // loaded, encoded, class missing
  Bediening mag;             // source, embed, encode, result
};

constexpr std::array<Regel, 8> regels{{
    {{false, false, false}, {false, false, false, false}},
    {{false, false, true}, {false, false, false, false}},
    {{false, true, false}, {false, false, false, true}},
    {{false, true, true}, {false, false, false, true}},
    {{true, false, false}, {true, true, true, false}},
    {{true, false, true}, {true, false, false, false}},
    {{true, true, false}, {true, true, false, true}},
    {{true, true, true}, {true, false, false, true}},
}};

TEST(BedieningsRegels, FollowFromTheThreeFlagsInAllEightStates) {
  for (Regel const& regel : regels) {
    Bediening const mag = bepaalBediening(regel.toestand);
    SCOPED_TRACE(::testing::Message() << regel.toestand.geladen << regel.toestand.gecodeerd
                                      << regel.toestand.klasseOntbreekt);
    EXPECT_EQ(mag.bron, regel.mag.bron);
    EXPECT_EQ(mag.inbedden, regel.mag.inbedden);
    EXPECT_EQ(mag.coderen, regel.mag.coderen);
    EXPECT_EQ(mag.resultaat, regel.mag.resultaat);
  }
}

}  // namespace
