// The whole road of a fragment, as a user goes it: open, encode to PCM, save, quit.
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/vensterProef.h"

namespace {

class WegProef : public VensterProef {};

TEST_F(WegProef, OpenEncodeSaveAndQuitThroughControlsAndDialogs) {
  start();
  wxString const wav = KESTROLIN_FRAGMENTEN "/ready.wav";
  antwoorden.opBestandsVraag(wav);
  klik(wxID_OPEN);
  EXPECT_EQ(status(), "Audio files loaded");

  kies(radio(ID_ENCODER_TYPE), 2);
  kies(radio(ID_LANG_IMPL), 0);
  antwoorden.opBericht(wxID_OK);
  klik(ID_CODEER);
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, "PCM encoding succeeded");
  EXPECT_EQ(antwoorden.berichten[0].tekst,
            "Audio data in\n" KESTROLIN_FRAGMENTEN "\nwas successfully encoded to PCM.");

  antwoorden.opBestandsVraag(pad("uit.c"));
  klik(wxID_SAVE);
  EXPECT_EQ(status(), "Speex embedded data saved in uit.c");
  ASSERT_EQ(antwoorden.bestandsVragen.size(), 2U);
  EXPECT_EQ(antwoorden.bestandsVragen[0].map, thuis());
  EXPECT_EQ(antwoorden.bestandsVragen[1].naam, "ready.c");
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
  EXPECT_TRUE(nietsGelogd(log()));

  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\nwavDirectory=" KESTROLIN_FRAGMENTEN "\n"));
  EXPECT_TRUE(bewaard.Contains("\nspeexDirectory=" + wxString::FromUTF8(map.pad().c_str()) + "\n"));
  EXPECT_TRUE(bewaard.Contains("\nConvertertype=2\nfile1=" KESTROLIN_FRAGMENTEN "/ready.wav\n"));
}

}  // namespace
