// The progress dialog of the three runs and of an embedding: how it is made, and how it goes on.
#include <wx/progdlg.h>
#include <wx/radiobox.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"
#include "tests/audio/speex/encoder/toepassing/voortgangOproepen.h"

namespace {

class VoortgangProef : public InbedVensterProef {
 protected:
  void laadDrie() {
    laad({wav("a.wav"), wav("b.wav"), wav("c.wav")});
    // Those of the tests before this one.
    neemVoortgang();
  }

  // One dialog, which stands at 0 for the first file, and for each further one at the number of
  // those before it less 1.
  void verwachtVoortgang() const {
    std::vector<VoortgangDialoog> const gevonden = neemVoortgang();
    ASSERT_EQ(gevonden.size(), 1U);
    EXPECT_EQ(gevonden[0].grootte, 3);
    EXPECT_EQ(gevonden[0].stijl, wxPD_APP_MODAL | wxPD_AUTO_HIDE | wxPD_ELAPSED_TIME);
    EXPECT_EQ(gevonden[0].standen,
              (std::set<std::pair<std::string, int>>{
                  {map.pad("a.wav"), 0}, {map.pad("b.wav"), 0}, {map.pad("c.wav"), 1}}));
  }
};

TEST_F(VoortgangProef, OfARunOfEachEncoderAndOfAnEmbedding) {
  begin();
  laadDrie();
  for (EncoderSoort const soort : {EncoderSpeex, EncoderADPCM, EncoderPCM}) {
    SCOPED_TRACE(soort);
    kies(radio(ID_ENCODER_TYPE), soort);
    codeer();
    verwachtVoortgang();
  }
  inbed(pad("uit.c"));
  verwachtVoortgang();
}

}  // namespace
