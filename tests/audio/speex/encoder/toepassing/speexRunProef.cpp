#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

#include <wx/button.h>
#include <wx/msgdlg.h>

#include <algorithm>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"

void SpeexRunProef::laadFragmenten(SpeexFragmenten const& fragmenten, int rate) {
  std::vector<wxString> paden;
  for (SpeexFragment const& een : fragmenten) {
    paden.push_back(wav(een.naam + ".wav", {een.samples.begin(), een.samples.end()}, {rate}));
  }
  std::reverse(paden.begin(), paden.end());
  ASSERT_EQ(laad(paden).size(), fragmenten.size());
}

void SpeexRunProef::codeerZonderMelding() {
  stuur(knop(ID_CODEER), wxEVT_BUTTON);
}

std::string SpeexRunProef::bewaarTekst(wxString const& naam) {
  antwoorden.opBestandsVraag(pad(naam));
  stuur(knop(wxID_SAVE), wxEVT_BUTTON);
  return zonderMomenten(inhoud(pad(naam)).utf8_string());
}

void SpeexRunProef::verwachtMelding(std::size_t procent) const {
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  Bericht const& bericht = antwoorden.berichten[0];
  EXPECT_EQ(bericht.titel, "Speex encoding succeeded");
  EXPECT_EQ(bericht.tekst.utf8_string(), "Audio data in\n" + map.pad("thuis") +
                                             "\nwas on average encoded to " +
                                             std::to_string(procent) + "% of the original size");
  EXPECT_EQ(bericht.stijl, wxOK | wxICON_INFORMATION);
  EXPECT_EQ(bericht.ouder, venster);
}

void SpeexRunProef::verwachtRun(SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
  codeer();
  EXPECT_TRUE(zelfdeTekst(zonderMomenten(tekst().utf8_string()), runTekst(fragmenten, doel)));
}
