#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"

#include <wx/filename.h>

void InbedVensterProef::inbed(wxString const& doel) {
  antwoorden.opBestandsVraag(doel);
  klik(wxID_SAVEAS);
}

void InbedVensterProef::inbedOver(wxString const& doel, int antwoord,
                                  std::function<void()> tijdens) {
  antwoorden.opBestandsVraag(doel);
  antwoorden.opBericht(antwoord, std::move(tijdens));
  klik(wxID_SAVEAS);
}

BestandsVraag InbedVensterProef::vraag() {
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVEAS);
  return antwoorden.bestandsVragen.back();
}

std::string InbedVensterProef::verwachteTekst(std::string const& declaraties,
                                              std::vector<VerwachtBestand> const& bestanden,
                                              int taal, int bits) const {
  std::string tekst =
      "/* Embedded output of " + std::to_string(bestanden.size()) + " WAV Files\t\t*/\n\n";
  tekst += kopRegel + declaraties + "\n\n";
  int nummer = 0;
  for (VerwachtBestand const& een : bestanden) {
    std::string const telling = std::to_string(++nummer);
    std::string const wav = map.pad("verwacht.wav");
    schrijfSnd(wav, een.samples, {});
    VerwachtBlok blok;
    blok.taal = taal;
    blok.klasse = "Geluid";
    blok.naam = een.naam;
    blok.bestand = een.naam + ".wav";
    blok.frames = static_cast<int>(een.samples.size());
    blok.bits = bits;
    tekst += "/******* Start embedding file number " + telling + " \t\t*******/\n";
    tekst += verwachteInbedding(blok, leesBytes(wav));
    tekst += "/******* Stop embedding file number " + telling + " \t\t*******/\n\n";
  }
  return tekst;
}

void InbedVensterProef::beginMetBel() {
  begin();
  laad({wav("bel.wav")});
}

std::string InbedVensterProef::verwachteBel(int bits, std::vector<int> const& samples) const {
  return verwachteTekst("// extern const unsigned char bel[];\n", {{"bel", samples}}, 0, bits);
}

std::string InbedVensterProef::zonderMomenten(wxString const& tekst) {
  wxString zonder = zonderMoment(tekst);
  zonder.Replace("/* Date : MOMENT\t\t*/\n", momentRegel);
  return zonder.utf8_string();
}

std::string InbedVensterProef::gelezen(wxString const& pad) {
  EXPECT_TRUE(wxFileName::FileExists(pad)) << pad.utf8_str();
  return zonderMomenten(inhoud(pad));
}
