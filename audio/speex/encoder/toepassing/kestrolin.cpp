#include "audio/speex/encoder/toepassing/kestrolin.h"

#include <wx/sizer.h>

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
  constexpr KestrolinConfig eersteStart;
  werk("speexFormat", record.speexFormat, eersteStart.speexFormat);
  werk("speexQuality", record.speexQuality, eersteStart.speexQuality);
  werk("speexComplexity", record.speexComplexity, eersteStart.speexComplexity);
  werk("speexBitRateChoice", record.speexBitRateChoice, eersteStart.speexBitRateChoice);
  werk("speexBitRate", record.speexBitRate, eersteStart.speexBitRate);
  werk("speexOutputLanguage", record.speexOutputLanguage, eersteStart.speexOutputLanguage);
  werk("speexVAC", record.speexVAC, eersteStart.speexVAC);
  werk("speexDenoise", record.speexDenoise, eersteStart.speexDenoise);
  werk("speexAGC", record.speexAGC, eersteStart.speexAGC);
  werk("IncludeHeader", record.IncludeHeader, eersteStart.IncludeHeader);
  werk("dacNumberOfBits", record.dacNumberOfBits, eersteStart.dacNumberOfBits);
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

Kestrolin::Kestrolin() : DesktopApp("Kestrolin"), instellingen() {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  bezoekInstellingen(instellingen, [config](char const* sleutel, auto& veld, auto standaard) {
    zet(veld, leesGetal(*config, sleutel, static_cast<int>(standaard)));
  });
}

Kestrolin::~Kestrolin() {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  bezoekInstellingen(instellingen, [config](char const* sleutel, auto const& veld,
                                            auto /*standaard*/) { config->Write(sleutel, veld); });
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
