// The real application, driven up to the moment that is measured.
//
//   echtVenster          shows the window, and ends
//   echtVenster WAV...   loads these files, has them encoded to PCM in C, 16 bits with header,
//                        tells the figures from the click on Encode to the message of success, and
//                        ends
#include <wx/button.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <iostream>

#include "audio/codec/uitvoerTaal.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "audio/uitvoer/encoderSoort.h"
#include "bench/meting.h"
#include "bench/venster/gemetenVenster.h"

namespace {

// A control of that kind, since the ids 1 to 3 are shared between kinds. All lie on the window's
// panel. Ends the program where there is none.
template <typename Soort>
Soort& zoek(wxWindow const& venster, int id) {
  for (wxWindow const* const paneel : venster.GetChildren()) {
    for (wxWindow* const kind : paneel->GetChildren()) {
      auto* const gevonden = dynamic_cast<Soort*>(kind);
      if (gevonden != nullptr && kind->GetId() == id) {
        return *gevonden;
      }
    }
  }
  std::cerr << "echtVenster: no control " << id << "\n";
  eindig(1);
}

void verstuur(wxWindow& bron, wxEventType soort, int waarde) {
  wxCommandEvent event(soort, bron.GetId());
  event.SetEventObject(&bron);
  event.SetInt(waarde);
  bron.ProcessWindowEvent(event);
}

void kies(wxWindow& venster, int id, int rij) {
  auto& keuze = zoek<wxRadioBox>(venster, id);
  keuze.SetSelection(rij);
  verstuur(keuze, wxEVT_RADIOBOX, rij);
}

// Any modal dialog ends the program; only the message of success is what was waited for.
class Bericht : public wxModalDialogHook {
 public:
  explicit Bericht(HoofdVenster& van) : venster(van) { Register(); }

  void begin() { start = processorTijd(); }

 protected:
  int Enter(wxDialog* dialoog) override {
    auto const* const bericht = dynamic_cast<wxMessageDialog*>(dialoog);
    if (bericht == nullptr || !bericht->GetMessage().Contains("successfully encoded to PCM")) {
      std::cerr << "echtVenster: another dialog came up\n";
      eindig(1);
    }
    meldEnEindig(start, zoek<wxTextCtrl>(venster, ID_TEKST));
  }

 private:
  HoofdVenster& venster;
  double start = 0;
};

[[noreturn]] void codeer(HoofdVenster& venster, wxArrayString paden) {
  Bericht bericht(venster);
  venster.openWavFiles(paden);
  kies(venster, ID_ENCODER_TYPE, EncoderPCM);
  kies(venster, ID_LANG_IMPL, UitvoerTaalC);
  // What loading and choosing left to be drawn is none of Encode's.
  wxYield();
  bericht.begin();
  verstuur(zoek<wxButton>(venster, ID_CODEER), wxEVT_BUTTON, 0);
  std::cerr << "echtVenster: no message came\n";
  eindig(1);
}

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(Kestrolin);

int main(int aantal, char** woorden) {
  wxArrayString paden;
  std::for_each(woorden + 1, woorden + aantal, [&](char const* pad) { paden.Add(pad); });
  aantal = 1;
  wxDISABLE_DEBUG_SUPPORT();
  if (!wxEntryStart(aantal, woorden) || !wxTheApp->CallOnInit()) {
    return 1;
  }
  auto& venster = *dynamic_cast<HoofdVenster*>(wxTheApp->GetTopWindow());
  return draaiTotGetoond(venster, [&] {
    if (paden.empty()) {
      eindig(0);
    }
    codeer(venster, paden);
  });
}
