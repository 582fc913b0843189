// The saved text of an ADPCM run is source code: compilers take it, and a program finds the codes
// in it.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/compileerProef.h"

namespace {

class AdpcmCompileerProef : public CompileerProef {
 protected:
  void bewaarDrie(int taal, wxString const& naam) {
    beginAdpcm(taal);
    laad({wav("bel.wav", {1, -1, 100, -100, 5}), wav("zoem.wav", {0, 0, 0, 0}),
          wav("stil.wav", {7})});
    codeer();
    bewaar(pad(naam));
  }
};

std::vector<GetoondeArray> const arrays{{"bel", 11}, {"stil", 9}, {"zoem", 11}};

// The number of bytes of code, frequency 8000, a start from 0 and 0, codes. The codes of the last
// array were made from where the first one ended.
constexpr char const* verwacht =
    "02 00 00 00 40 1f 00 00 00 91 f7\n"
    "00 00 00 00 40 1f 00 00 00\n"
    "02 00 00 00 40 1f 00 00 00 82 80\n";

TEST_F(AdpcmCompileerProef, TheCTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(0, "geluid.c");
  EXPECT_EQ(arraysInC(arrays), verwacht);
}

TEST_F(AdpcmCompileerProef,
       TheCPlusPlusTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(1, "geluid.cpp");
  EXPECT_EQ(arraysInCpp(arrays), verwacht);
}

}  // namespace
