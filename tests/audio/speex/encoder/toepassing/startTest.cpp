// The window as it stands after a start.
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/statusbr.h>
#include <wx/tglbtn.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/vensterProef.h"

namespace {

class StartProef : public VensterProef {};

TEST_F(StartProef, FirstStartShowsItsOwnTitleAndLogsNothing) {
  start();
  EXPECT_EQ(venster->GetTitle(), "Kestrolin Encoder for embedded applications");
  EXPECT_TRUE(venster->IsShown());
  EXPECT_EQ(venster->GetClientSize(), wxSize(800, 600));
  EXPECT_EQ(status(), "No audio file loaded");
  EXPECT_TRUE(log().empty());
}

}  // namespace
