// The saved text of a PCM run is source code: compilers take it, and a program finds the samples in
// it.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/compileerProef.h"

namespace {

class PcmCompileerProef : public CompileerProef {
 protected:
  // Loads and encodes three files, and saves the text as `naam`.
  void bewaarDrie(int taal, wxString const& naam) {
    begin(taal);
    laad({wav("bel.wav", {1, -1}), wav("zoem.wav", {0x1234, -32768, 32767}), wav("stil.wav", {})});
    codeer();
    bewaar(pad(naam));
  }
};

std::vector<GetoondeArray> const arrays{{"bel", 10}, {"stil", 6}, {"zoem", 12}};

// Count, frequency 8000, samples, each low byte first.
constexpr char const* verwacht =
    "02 00 00 00 40 1f 01 00 ff ff\n"
    "00 00 00 00 40 1f\n"
    "03 00 00 00 40 1f 34 12 00 80 ff 7f\n";

TEST_F(PcmCompileerProef, TheCTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(0, "geluid.c");
  EXPECT_EQ(arraysInC(arrays), verwacht);
}

TEST_F(PcmCompileerProef, TheCPlusPlusTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(1, "geluid.cpp");
  EXPECT_EQ(arraysInCpp(arrays), verwacht);
}

}  // namespace
