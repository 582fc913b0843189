// The language of the program reaches the text of its runs.
#include <wx/radiobox.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"
#include "tests/audio/uitvoer/verwachteRun.h"

namespace {

class TaalTekst : public ElkeTaalProef {
 protected:
  // The text of a run over one file of a quarter of a second, with these lines translated.
  std::string verwacht(Wijze wijze, std::vector<std::string> const& regels) {
    std::string tekst = verwachteRun(wijze, {}, {{"bel", golf(2000)}});
    for (std::string const& regel : regels) {
      std::size_t const plaats = tekst.find(regel);
      EXPECT_NE(plaats, std::string::npos) << regel;
      tekst.replace(plaats, regel.size(), anders(regel));
    }
    return tekst;
  }
};

TEST_P(TaalTekst, HasTheCommentsOfTheLanguageAndThePointOfEnglish) {
  std::string const declaraties = "/* Put these declarations in a header file :*/\n";
  beginInTaal(EncoderPCM);
  laad({wav("bel.wav", proefSamples(2000))});
  EXPECT_TRUE(zelfdeTekst(
      codeer().utf8_string(),
      verwacht(Wijze::pcm, {declaraties,
                            "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
                            "    Bytes 4..5: Sampling frequency\n    Bytes 6..End:Data  */\n\n"})));
  bewaar(pad("uit.c"));
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
  antwoorden.opBestandsVraag(pad("ingebed.c"));
  klik(wxID_SAVEAS);
  EXPECT_TRUE(zelfdeTekst(
      zonderMomenten(leesTekst(map.pad("ingebed.c"))),
      verwacht(Wijze::inbed, {declaraties, "/* WAV Format                 : WAV S16 PCM\t*/\n"})));
  EXPECT_TRUE(nietsGelogd(log()));
}

INSTANTIATE_TEST_SUITE_P(, TaalTekst, ::testing::Values(Taal{"de", wxLANGUAGE_GERMAN}), taalCode);

}  // namespace
