// Embedding into a stream that takes no more.
#include <wx/stream.h>

#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/inbedHulp.h"

namespace {

// Takes that many writes and fails the next one.
class VolleStroom : public wxOutputStream {
 public:
  explicit VolleStroom(int goed) : teGaan(goed) {}

  int naDeFout = 0;  // the writes behind the one that failed

 protected:
  size_t OnSysWrite(void const* /*bytes*/, size_t aantal) override {
    naDeFout += m_lasterror == wxSTREAM_NO_ERROR ? 0 : 1;
    if (teGaan-- <= 0) {
      m_lasterror = wxSTREAM_WRITE_ERROR;
      return 0;
    }
    return aantal;
  }

 private:
  int teGaan;
};

using InbedStroom = InbedProef;

TEST_F(InbedStroom, naEenFoutKomtErGeenPogingMeer) {
  schrijfWav(toon, golf(20));
  int goed = 0;
  for (bool klaar = false; !klaar; ++goed) {
    VolleStroom stroom(goed);
    schrijfInbedding(bestandsnaam(toon), {1, "Klank", 12}, stroom);
    klaar = stroom.IsOk();
    EXPECT_EQ(stroom.naDeFout, 0) << goed;
  }
  // Or no write came behind another.
  EXPECT_GT(goed, 3);
}

}  // namespace
