// The saved text of an embedding is source code: compilers take it with the declarations of its
// comments, and a program finds the images in it.
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/compileerProef.h"

namespace {

class InbedCompileerProef : public CompileerProef {
 protected:
  // Loads three files and embeds them in `naam` for a DAC of 8 bits.
  void bewaarDrie(int taal, wxString const& naam) {
    begin(taal, wxEmptyString, "dacNumberOfBits=0\n");
    laad(
        {wav("bel.wav", {256, -1}), wav("zoem.wav", {0x1234, -32768, 32767}), wav("stil.wav", {})});
    antwoorden.opBestandsVraag(pad(naam));
    klik(wxID_SAVEAS);
  }
};

std::vector<GetoondeArray> const arrays{{"bel", 48}, {"stil", 44}, {"zoem", 50}};

// By the definition of the format: the sizes, 8000 Hz and twice as many bytes a second, the
// samples.
constexpr char const* verwacht =
    "52 49 46 46 28 00 00 00 57 41 56 45 66 6d 74 20 10 00 00 00 01 00 01 00 "
    "40 1f 00 00 80 3e 00 00 02 00 10 00 64 61 74 61 04 00 00 00 01 00 ff ff\n"
    "52 49 46 46 24 00 00 00 57 41 56 45 66 6d 74 20 10 00 00 00 01 00 01 00 "
    "40 1f 00 00 80 3e 00 00 02 00 10 00 64 61 74 61 00 00 00 00\n"
    "52 49 46 46 2a 00 00 00 57 41 56 45 66 6d 74 20 10 00 00 00 01 00 01 00 "
    "40 1f 00 00 80 3e 00 00 02 00 10 00 64 61 74 61 06 00 00 00 12 00 80 ff 7f 00\n";

TEST_F(InbedCompileerProef, TheCTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(0, "geluid.c");
  EXPECT_EQ(arraysInC(arrays), verwacht);
}

TEST_F(InbedCompileerProef,
       TheCPlusPlusTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(1, "geluid.cpp");
  EXPECT_EQ(arraysInCpp(arrays), verwacht);
}

}  // namespace
