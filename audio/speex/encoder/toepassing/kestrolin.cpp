#include "audio/speex/encoder/toepassing/kestrolin.h"

#include <wx/sizer.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "externals/desktop/configGetal.h"
#include "externals/desktop/geluidSpeler.h"
#include "externals/desktop/pictogram.h"

namespace {

constexpr char const* speexPad = "/Gebruikersinstellingen/Speex";

// Hands each setting to `werk`, with its key, in the order of the file. The one list of them: what
// is read at the start is written at the end.
template <typename Werk>
void bezoekInstellingen(KestrolinConfig& record, Werk const& werk) {
  werk("speexFormat", record.speexFormat);
  werk("speexQuality", record.speexQuality);
  werk("speexComplexity", record.speexComplexity);
  werk("speexBitRateChoice", record.speexBitRateChoice);
  werk("speexBitRate", record.speexBitRate);
  werk("speexOutputLanguage", record.speexOutputLanguage);
  werk("speexVAC", record.speexVAC);
  werk("speexDenoise", record.speexDenoise);
  werk("speexAGC", record.speexAGC);
  werk("IncludeHeader", record.IncludeHeader);
  werk("dacNumberOfBits", record.dacNumberOfBits);
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

Kestrolin::Kestrolin() : DesktopApp("Kestrolin") {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  // The record begins with the defaults.
  bezoekInstellingen(instellingen, [config](char const* sleutel, auto& veld) {
    zet(veld, leesGetal(*config, sleutel, static_cast<int>(veld)));
  });
}

Kestrolin::~Kestrolin() {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  bezoekInstellingen(instellingen, [config](char const* sleutel, auto const& veld) {
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
