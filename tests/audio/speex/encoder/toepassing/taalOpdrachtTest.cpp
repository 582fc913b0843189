// A window in another language makes the text of kestrolin-cli with its comments translated.
#include <wx/radiobox.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"
#include "tests/steun/programma.h"

namespace {

class TaalOpdracht : public ElkeTaalProef {
 protected:
  // The text of kestrolin-cli with these pieces of it translated, each wherever it stands.
  std::string vertaaldeOpdracht(std::string const& encoder,
                                std::vector<std::string> const& stukken) {
    ProgrammaEinde const einde =
        draai({{KESTROLIN_CLI, "encode", "--encoder", encoder, "-o", "-", "bel.wav", "zoem.wav"},
               map.pad()});
    EXPECT_EQ(einde.status, 0) << einde.fout;
    std::string tekst = zonderMomenten(einde.uit);
    for (std::string const& stuk : stukken) {
      std::string const vertaling = anders(stuk);
      std::size_t plaats = tekst.find(stuk);
      EXPECT_NE(plaats, std::string::npos) << stuk;
      while (plaats != std::string::npos) {
        tekst.replace(plaats, stuk.size(), vertaling);
        plaats = tekst.find(stuk, plaats + vertaling.size());
      }
    }
    return tekst;
  }
};

TEST_P(TaalOpdracht, DiffersByTheTranslatedCommentsAlone) {
  std::string const declaraties = "/* Put these declarations in a header file :*/\n";
  std::string const indeling =
      "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
      "    Bytes 4..5: Sampling frequency\n    Bytes 6..End:Data  */\n\n";
  beginInTaal(EncoderPCM);
  laad({wav("bel.wav", proefSamples(2000)), wav("zoem.wav", proefSamples(100))});
  EXPECT_TRUE(
      zelfdeTekst(codeer().utf8_string(), vertaaldeOpdracht("pcm", {declaraties, indeling})));
  kies(radio(ID_ENCODER_TYPE), EncoderADPCM);
  EXPECT_TRUE(
      zelfdeTekst(codeer().utf8_string(), vertaaldeOpdracht("adpcm", {declaraties, indeling})));
  antwoorden.opBestandsVraag(pad("ingebed.c"));
  klik(wxID_SAVEAS);
  EXPECT_TRUE(
      zelfdeTekst(zonderMomenten(leesTekst(map.pad("ingebed.c"))),
                  vertaaldeOpdracht(
                      "wav", {declaraties, "/* WAV Format                 : WAV S16 PCM\t*/\n"})));
}

INSTANTIATE_TEST_SUITE_P(, TaalOpdracht, ::testing::Values(Taal{"de", wxLANGUAGE_GERMAN}),
                         taalCode);

}  // namespace
