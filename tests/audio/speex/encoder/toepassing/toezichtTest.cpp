// The progress dialog while one file takes long: what it shows, and what waits.
#include "audio/speex/encoder/toepassing/vensterToezicht.h"

#include <wx/checkbox.h>
#include <wx/mstream.h>
#include <wx/stattext.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class ToezichtProef : public WerkProef {
 protected:
  // Beats, as long work does, until that is true.
  static void klopTot(std::function<bool()> const& gebeurd) {
    while (!gebeurd()) {
      klop();
      wxMilliSleep(1);
    }
  }

  static wxString tijd() {
    wxString laatste;
    for (wxWindow const* kind : voortgang()->GetChildren()) {
      if (dynamic_cast<wxStaticText const*>(kind) != nullptr) {
        laatste = kind->GetLabel();
      }
    }
    return laatste;
  }

  // The labels of a run over three files.
  VensterToezicht toezicht() {
    return {venster, "Encoding progress", "Completion of encoding progress", 3,
            *vakje(ID_INCL_HEADER)};
  }
};

TEST_F(ToezichtProef, TheClockRunsAndTheValueStaysWhileAFileIsEncoded) {
  begin();
  VensterToezicht zicht = toezicht();
  zicht.meldGedaan(1);
  zicht.meldGedaan(2);
  for (int keer = 0; keer < 2; ++keer) {
    wxString const eerder = tijd();
    klopTot([&eerder] { return tijd() != eerder; });
  }
  EXPECT_EQ(voortgang()->GetValue(), 1);
  EXPECT_EQ(voortgang()->GetRange(), 3);
  EXPECT_EQ(voortgang()->GetMessage(), "Completion of encoding progress");
}

TEST_F(ToezichtProef, TheDialogIsPaintedWhileAFileIsEncoded) {
  begin();
  VensterToezicht const zicht = toezicht();
  bool isGetekend = false;
  voortgang()->Bind(wxEVT_PAINT, [&isGetekend](wxPaintEvent& event) {
    isGetekend = true;
    event.Skip();
  });
  klopTot([&isGetekend] { return isGetekend; });
}

// 128 KiB, which the field loads in two parts.
TEST_F(ToezichtProef, TheTextFieldBeatsWhileALongTextLoads) {
  class Teller : public Hartslag {
   public:
    void bijKlop() override { ++keren; }
    int keren = 0;
  };
  begin();
  wxMemoryOutputStream tekst;
  std::string const regel = std::string(63, 'x') + "\n";
  for (int nummer = 0; nummer < 2048; ++nummer) {
    tekst.Write(regel.data(), regel.size());
  }
  Teller teller;
  venster->kopieerNaarTekstVeld(tekst);
  EXPECT_EQ(teller.keren, 2);
}

TEST_F(ToezichtProef, NothingListensBehindTheRun) {
  begin();
  { VensterToezicht const zicht = toezicht(); }
  klop();
  EXPECT_EQ(voortgang(), nullptr);
}

}  // namespace
