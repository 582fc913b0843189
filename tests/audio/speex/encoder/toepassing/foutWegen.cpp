#include "tests/audio/speex/encoder/toepassing/foutWegen.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/regex.h>
#include <wx/spinctrl.h>

#include <ostream>

#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/codec/inbedHulp.h"

namespace {

// What stands in a file that a road appends to.
constexpr char const* eerder = "/* kept */\nint kept;\n";
// The settings of before, of which one is changed until the end.
constexpr char const* eerdereInstellingen =
    "[Gebruikersinstellingen/Speex]\nspeexQuality=4\nspeexComplexity=2\n";

constexpr char const* instellingenBestand = "thuis/.Kestrolin";

// The samples of a Speex frame: the smallest block that sound takes.
constexpr std::size_t bytesVanFrame = 320;

}  // namespace

std::vector<Weg> const wegen = {
    {"Load", &FoutWegen::voorLaden, &FoutWegen::doeLaden, &FoutWegen::naLaden},
    {"EncodeSpeex", &FoutWegen::voorSpeex, &FoutWegen::doeCoderen, &FoutWegen::naCoderen},
    {"EncodeAdpcm", &FoutWegen::voorAdpcm, &FoutWegen::doeCoderen, &FoutWegen::naCoderen},
    {"EncodePcm", &FoutWegen::voorPcm, &FoutWegen::doeCoderen, &FoutWegen::naCoderen},
    {"Save", &FoutWegen::voorBewaren, &FoutWegen::doeBewaren, &FoutWegen::naBewaren},
    {"Append", &FoutWegen::voorBewaren, &FoutWegen::doeAanvullen, &FoutWegen::naBewaren,
     FoutWegen::vol},
    {"Embed", &FoutWegen::voorInbedden, &FoutWegen::doeInbedden, &FoutWegen::naBewaren},
    {"EmbedBehind", &FoutWegen::voorInbedden, &FoutWegen::doeBijInbedden, &FoutWegen::naBewaren,
     FoutWegen::vol},
    {"PlaySources", &FoutWegen::voorSpelen, &FoutWegen::doeSpelen, &FoutWegen::naSpelen, "", "",
     true},
    {"PlaySpeex", &FoutWegen::voorResultaat, &FoutWegen::doeResultaat, &FoutWegen::naSpelen},
    {"PlayAdpcm", &FoutWegen::voorAdpcmResultaat, &FoutWegen::doeResultaat, &FoutWegen::naSpelen},
    {"Quit", &FoutWegen::voorStoppen, &FoutWegen::doeStoppen, &FoutWegen::naStoppen, "",
     instellingenBestand, false, bytesVanFrame},
};

void PrintTo(Weg const& weg, std::ostream* uit) {
  *uit << weg.naam;
}

void FoutWegen::maakBestanden() {
  wav("bel.wav", proefSamples(1200));
  schrijfSnd(map.pad("zoem.wav"), golf(700), {}, wavAdpcm);
  // Embedded it is more than what one write takes.
  wav("lang.wav", proefSamples(8000));
  wav("kort.wav", proefSamples(200));
  bestand("buur.txt", "a neighbour\n");
  bestand(vol, eerder);
  bestand(instellingenBestand, eerdereInstellingen);
}

Bestanden FoutWegen::bestaande() const {
  Bestanden alle;
  for (char const* const naam :
       {"bel.wav", "zoem.wav", "lang.wav", "kort.wav", "buur.txt", vol, instellingenBestand}) {
    alle[naam] = leesTekst(map.pad(naam));
  }
  return alle;
}

std::string FoutWegen::inhoudVan(std::string const& naam) const {
  return zonderMoment(wxTekst(leesTekst(map.pad(naam)))).utf8_string();
}

// -- loading

void FoutWegen::laadTwee() {
  laad({pad("bel.wav"), pad("zoem.wav")});
}

void FoutWegen::voorLaden() {
  begin();
}

void FoutWegen::doeLaden() {
  geladen = laad({pad("bel.wav"), pad("zoem.wav"), pad("kort.wav")});
}

Uitkomst FoutWegen::naLaden() {
  Uitkomst delen{status().utf8_string()};
  for (wxString const& een : geladen) {
    delen.push_back(een.utf8_string());
  }
  for (wxString const& regel : boomRegels()) {
    delen.push_back(regel.utf8_string());
  }
  return delen;
}

// -- encoding

void FoutWegen::voorSpeex() {
  beginSpeex();
  laadTwee();
}

void FoutWegen::voorAdpcm() {
  beginAdpcm();
  laadTwee();
}

void FoutWegen::voorPcm() {
  begin();
  laadTwee();
}

void FoutWegen::doeCoderen() {
  codeer();
}

// The field shows what was put into memory, by way of a file: where the one is whole, so is the
// other.
Uitkomst FoutWegen::naCoderen() {
  return {status().utf8_string(), zonderMoment(tekst()).utf8_string()};
}

// -- saving and embedding

void FoutWegen::voorBewaren() {
  voorPcm();
  codeer();
}

void FoutWegen::doeBewaren() {
  doel = nieuw;
  bewaar(pad(nieuw));
}

void FoutWegen::doeAanvullen() {
  doel = vol;
  bewaarOver(pad(vol), wxID_YES);
}

void FoutWegen::voorInbedden() {
  begin();
  laad({pad("lang.wav"), pad("zoem.wav")});
}

void FoutWegen::doeInbedden() {
  doel = nieuw;
  antwoorden.opBestandsVraag(pad(nieuw));
  klik(wxID_SAVEAS);
}

void FoutWegen::doeBijInbedden() {
  doel = vol;
  antwoorden.opBestandsVraag(pad(vol));
  antwoorden.opBericht(wxID_YES);
  klik(wxID_SAVEAS);
}

Uitkomst FoutWegen::naBewaren() {
  return {status().utf8_string(), inhoudVan(doel), zonderMoment(tekst()).utf8_string()};
}

// -- playing

void FoutWegen::voorSpelen() {
  begin();
  neemOp();
  laad({pad("bel.wav"), pad("kort.wav")});
  gehoord.clear();
}

void FoutWegen::doeSpelen() {
  klik(ID_SPEEL_BRON);
}

void FoutWegen::voorResultaat() {
  beginSpeex();
  neemOp();
  laad({pad("kort.wav")});
  codeer();
  gehoord.clear();
}

void FoutWegen::voorAdpcmResultaat() {
  beginAdpcm();
  neemOp();
  laad({pad("kort.wav")});
  codeer();
  gehoord.clear();
}

void FoutWegen::doeResultaat() {
  klik(ID_SPEEL_RESULTAAT);
}

Uitkomst FoutWegen::naSpelen() {
  Uitkomst delen;
  for (Gehoord const& een : gehoord) {
    delen.emplace_back(een.bytes.begin(), een.bytes.end());
  }
  delen.push_back(status().utf8_string());
  return delen;
}

// -- the end

void FoutWegen::voorStoppen() {
  start(eerdereInstellingen);
  zet(spin(ID_COMPLEXITY), 7);
}

void FoutWegen::doeStoppen() {
  stop();
}

Uitkomst FoutWegen::naStoppen() {
  static wxRegEx const moment("(Start|Stop)(Datum|Tijd)=[^\n]*");
  wxString tekst = wxTekst(leesTekst(map.pad(instellingenBestand)));
  moment.ReplaceAll(&tekst, "\\1\\2");
  return {tekst.utf8_string()};
}
