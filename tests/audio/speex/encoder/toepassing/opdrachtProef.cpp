#include "tests/audio/speex/encoder/toepassing/opdrachtProef.h"

#include <wx/button.h>

#include <filesystem>
#include <iterator>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/codec/inbedHulp.h"

namespace {

constexpr char const* momentWaarde = "SOURCE_DATE_EPOCH=1767225599";
constexpr char const* momentTekst = "/* Date : 2025-12-31 : 23:59:59\t\t*/\n";

// The text with momentRegel in the place of each line that is the moment above.
std::string zonderVastMoment(std::string tekst) {
  std::string const moment = momentTekst;
  for (std::size_t plaats = tekst.find(moment); plaats != std::string::npos;
       plaats = tekst.find(moment, plaats)) {
    tekst.replace(plaats, moment.size(), momentRegel);
  }
  return tekst;
}

std::size_t telMomenten(std::string const& tekst) {
  std::size_t aantal = 0;
  for (std::size_t plaats = tekst.find(momentRegel); plaats != std::string::npos;
       plaats = tekst.find(momentRegel, plaats + 1)) {
    ++aantal;
  }
  return aantal;
}

}  // namespace

Woorden taalWoorden(int taal) {
  return taal == 0 ? Woorden{"--language", "c"} : Woorden{"--language", "c++", "--class", "Geluid"};
}

OpdrachtProef::OpdrachtProef() {
  std::filesystem::create_directory(map.pad("werk"));
}

void OpdrachtProef::maakOpnamen(int rate) {
  constexpr std::size_t aantal = 700;
  std::string const naam = "mijn geluiden " + std::to_string(rate);
  std::string const ander = "klank één " + std::to_string(rate);
  submap(naam);
  submap(ander);
  schrijfSnd(map.pad(naam + "/alarm.wav"), golf(aantal), {rate}, wavAdpcm);
  std::vector<wxString> const paden{wav(naam + "/bel2.wav", proefSamples(aantal), {rate, 2}),
                                    wav(naam + "/bel.wav", proefSamples(aantal), {rate}),
                                    wav(ander + "/zoem.wav", proefSamples(3), {rate}),
                                    wav(ander + "/Zoem.wav", proefSamples(1), {rate}),
                                    wxTekst(map.pad(naam + "/alarm.wav"))};
  ASSERT_EQ(laad(paden).size(), paden.size());
  opnamen = {"../" + naam + "/bel.wav", "../" + ander + "/./zoem.wav",
             "./../werk/.././" + naam + "//alarm.wav", map.pad(naam + "/bel2.wav"),
             "../" + ander + "/Zoem.wav"};
}

std::string OpdrachtProef::vanVenster() {
  codeer();
  bewaar(doel);
  std::string tekst = leesTekst(doel.utf8_string());
  std::filesystem::remove(doel.utf8_string());
  return tekst;
}

std::string OpdrachtProef::ingebed() {
  antwoorden.opBestandsVraag(doel);
  klik(wxID_SAVEAS);
  std::string tekst = leesTekst(doel.utf8_string());
  std::filesystem::remove(doel.utf8_string());
  return tekst;
}

std::string OpdrachtProef::vanOpdracht(Woorden const& opties, Woorden const& paden) {
  ProgrammaVraag vraag{{KESTROLIN_CLI, "encode", "-o", "uit.c"}, map.pad("werk"), {momentWaarde}};
  std::copy(opties.begin(), opties.end(), std::back_inserter(vraag.woorden));
  std::copy(paden.begin(), paden.end(), std::back_inserter(vraag.woorden));
  ProgrammaEinde const einde = draai(vraag);
  EXPECT_EQ(einde.status, 0);
  EXPECT_EQ(einde.fout, "");
  EXPECT_EQ(einde.uit, "");
  return leesTekst(map.pad("werk/uit.c"));
}

void OpdrachtProef::verwachtGelijk(std::string const& venster, std::string const& opdracht,
                                   std::size_t aantal) {
  std::string const gevonden = zonderVastMoment(opdracht);
  EXPECT_TRUE(zelfdeTekst(gevonden, zonderMomenten(venster)));
  EXPECT_EQ(telMomenten(gevonden), aantal);
}
