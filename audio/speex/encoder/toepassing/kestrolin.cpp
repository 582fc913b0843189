#include "audio/speex/encoder/toepassing/kestrolin.h"

#include <wx/sizer.h>

#include "audio/codec/uitvoerTaal.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "externals/desktop/configGetal.h"
#include "externals/desktop/geluidSpeler.h"
#include "externals/desktop/pictogram.h"

namespace {

constexpr char const* speexPad = "/Gebruikersinstellingen/Speex";

// Hands each setting to `werk`, with its key and its default, in the order of the file. The one
// list of them: what is read at the start is written at the end.
template <typename Werk>
void bezoekInstellingen(KestrolinConfig& record, Werk const& werk) {
  werk("speexFormat", record.speexFormat, 0);
  werk("speexQuality", record.speexQuality, 8);
  werk("speexComplexity", record.speexComplexity, 3);
  werk("speexBitRateChoice", record.speexBitRateChoice, 0);
  werk("speexBitRate", record.speexBitRate, 5000);
  werk("speexOutputLanguage", record.speexOutputLanguage, UitvoerTaalCPP);
  werk("speexVAC", record.speexVAC, 1);
  werk("speexDenoise", record.speexDenoise, 1);
  werk("speexAGC", record.speexAGC, 1);
  werk("IncludeHeader", record.IncludeHeader, 1);
  werk("dacNumberOfBits", record.dacNumberOfBits, 3);
}

// A flag is stored as a number, of which the low byte counts.
void zet(bool& veld, int getal) {
  veld = static_cast<unsigned char>(getal) != 0;
}
void zet(int& veld, int getal) {
  veld = getal;
}
void zet(unsigned int& veld, int getal) {
  veld = static_cast<unsigned int>(getal);
}

}  // namespace

Kestrolin::Kestrolin() : DesktopApp("Kestrolin"), instellingen{} {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  bezoekInstellingen(instellingen, [config](char const* sleutel, auto& veld, int standaard) {
    zet(veld, leesGetal(*config, sleutel, standaard));
  });
}

Kestrolin::~Kestrolin() {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  bezoekInstellingen(instellingen, [config](char const* sleutel, auto const& veld, int) {
    config->Write(sleutel, veld);
  });
}

bool Kestrolin::OnInit() {
  // The window's layout joins wxEXPAND with alignments. The toolkit draws that as wanted, but its
  // checks would put a box on the screen for each such item.
  wxSizerFlags::DisableConsistencyChecks();
  plaatsGeluidSpeler();

  // The window sets a title of its own at once.
  venster = new HoofdVenster(nullptr, wxID_ANY, _("Kestrolin for embedded applications"),
                             wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE);
  SetTopWindow(venster);
  zetHoofdVenster(venster);
  venster->SetIcons(leesPictogrammen(GetAppName().Lower()));
  venster->Show(true);
  return true;
}
