#include "audio/speex/encoder/toepassing/kestrolin.h"

#include <wx/sizer.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"

namespace {

constexpr char const* speexPad = "/Gebruikersinstellingen/Speex";

// Whole numbers outside the range of the field keep their low bits; text gives the default.
template <typename Getal>
Getal leesGetal(wxConfigBase const& config, char const* sleutel, int standaard) {
  return static_cast<Getal>(config.ReadLong(sleutel, standaard));
}

// A flag is stored as a number, of which the low byte counts.
bool leesVlag(wxConfigBase const& config, char const* sleutel) {
  return leesGetal<unsigned char>(config, sleutel, 1) != 0;
}

KestrolinConfig leesInstellingen(wxFileConfig& config) {
  constexpr int kwaliteit = 8;
  constexpr int complexiteit = 3;
  constexpr int bitrate = 5000;
  constexpr int taalCPP = 1;
  constexpr int dac16Bits = 3;

  config.SetPath(speexPad);
  KestrolinConfig in{};
  in.speexFormat = leesGetal<int>(config, "speexFormat", 0);
  in.speexQuality = leesGetal<unsigned int>(config, "speexQuality", kwaliteit);
  in.speexComplexity = leesGetal<unsigned int>(config, "speexComplexity", complexiteit);
  in.speexBitRateChoice = leesGetal<int>(config, "speexBitRateChoice", 0);
  in.speexBitRate = leesGetal<unsigned int>(config, "speexBitRate", bitrate);
  in.speexOutputLanguage = leesGetal<int>(config, "speexOutputLanguage", taalCPP);
  in.speexVAC = leesVlag(config, "speexVAC");
  in.speexDenoise = leesVlag(config, "speexDenoise");
  in.speexAGC = leesVlag(config, "speexAGC");
  in.IncludeHeader = leesVlag(config, "IncludeHeader");
  in.dacNumberOfBits = leesGetal<int>(config, "dacNumberOfBits", dac16Bits);
  return in;
}

}  // namespace

Kestrolin::Kestrolin()
    : DesktopApp("Kestrolin"), instellingen(leesInstellingen(*geefAppConfig())) {}

Kestrolin::~Kestrolin() {
  wxFileConfig* const config = geefAppConfig();
  config->SetPath(speexPad);
  config->Write("speexFormat", instellingen.speexFormat);
  config->Write("speexQuality", static_cast<long>(instellingen.speexQuality));
  config->Write("speexComplexity", static_cast<long>(instellingen.speexComplexity));
  config->Write("speexBitRateChoice", instellingen.speexBitRateChoice);
  config->Write("speexBitRate", static_cast<long>(instellingen.speexBitRate));
  config->Write("speexOutputLanguage", instellingen.speexOutputLanguage);
  config->Write("speexVAC", instellingen.speexVAC);
  config->Write("speexDenoise", instellingen.speexDenoise);
  config->Write("speexAGC", instellingen.speexAGC);
  config->Write("IncludeHeader", instellingen.IncludeHeader);
  config->Write("dacNumberOfBits", instellingen.dacNumberOfBits);
}

bool Kestrolin::OnInit() {
  // The window's layout joins wxEXPAND with alignments. The toolkit draws that as wanted, but its
  // checks would put a box on the screen for each such item.
  wxSizerFlags::DisableConsistencyChecks();

  // The window sets a title of its own at once.
  venster = new HoofdVenster(nullptr, wxID_ANY, _("Kestrolin for embedded applications"),
                             wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE);
  SetTopWindow(venster);
  zetHoofdVenster(venster);
  venster->Show(true);
  return true;
}
