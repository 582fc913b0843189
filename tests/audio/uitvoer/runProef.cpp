#include "tests/audio/uitvoer/runProef.h"

#include <wx/mstream.h>

#include <filesystem>

#include "tests/audio/codec/codecHulp.h"

RunProef::RunProef() {
  std::filesystem::create_directory(map.pad("tmp"));
}

void RunProef::wav(std::string const& naam, std::vector<std::int16_t> const& samples,
                   WavSoort const& soort) {
  maakWav(map.pad(naam), samples, soort);
}

void RunProef::bestand(std::string const& naam, std::string const& inhoud) {
  maakBestand(map.pad(naam), inhoud);
}

void RunProef::laad(std::vector<std::string> const& namen) {
  wavBestanden.Clear();
  for (std::string const& naam : namen) {
    wavBestanden.Add(wxTekst(map.pad(naam)));
  }
}

std::string RunProef::speex() {
  SpeexMaker maker;
  return tekstVan(maker);
}

std::string RunProef::inbed() {
  WAVMaker maker;
  return tekstVan(maker);
}

std::string RunProef::tekstVan(FragmentMaker& maker) {
  return draai(maker, std::nullopt);
}

std::string RunProef::tekstTot(std::size_t nummer, FragmentMaker& maker) {
  return draai(maker, wavBestanden[nummer - 1]);
}

std::string RunProef::draai(FragmentMaker& maker, std::optional<wxString> const& einde) {
  wxMemoryOutputStream uit;
  ProefToezicht toezicht(metHeader);
  EXPECT_EQ(voerRunUit({wavBestanden, instellingen, wxTekst(klasse)}, maker, uit, toezicht), einde);
  nietHeel = toezicht.nietHeel;
  gedaan = toezicht.gedaan;
  return zonderMomenten(::tekstVan(uit));
}
