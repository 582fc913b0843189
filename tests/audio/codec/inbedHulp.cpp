#include "tests/audio/codec/inbedHulp.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>

#include "audio/codec/wavInbedding.h"

namespace {

struct Sluiter {
  void operator()(SNDFILE* handvat) const { sf_close(handvat); }
};
using Handvat = std::unique_ptr<SNDFILE, Sluiter>;

// Eight on a line, and the next line begun behind the eighth.
std::string inbedRijen(Bytes const& bytes) {
  std::string rijen = verwachteRijen(bytes);
  if (bytes.size() % 8 == 0) {
    return rijen + "\t";
  }
  rijen.pop_back();
  return rijen;
}

std::string arrayKop(VerwachtBlok const& blok) {
  if (blok.taal == 0) {
    return "const unsigned char " + blok.naam + "[] = \n{\n";
  }
  return blok.taal == 1 ? "const unsigned char " + blok.klasse + "::" + blok.naam + "[] = \n{\n"
                        : "";
}

}  // namespace

SndInhoud leesSnd(std::string const& pad) {
  SndInhoud inhoud{};
  Handvat const bestand(sf_open(pad.c_str(), SFM_READ, &inhoud.info));
  if (!bestand) {
    ADD_FAILURE() << pad << ": " << sf_strerror(nullptr);
    return inhoud;
  }
  sf_count_t const aantal = inhoud.info.frames * inhoud.info.channels;
  std::vector<short> waarden(static_cast<std::size_t>(aantal));
  EXPECT_EQ(sf_read_short(bestand.get(), waarden.data(), aantal), aantal);
  inhoud.waarden.assign(waarden.begin(), waarden.end());
  return inhoud;
}

void schrijfSnd(std::string const& pad, std::vector<int> const& waarden, WavSoort const& soort,
                int formaat) {
  SF_INFO info{};
  info.samplerate = soort.rate;
  info.channels = soort.kanalen;
  info.format = formaat;
  Handvat const bestand(sf_open(pad.c_str(), SFM_WRITE, &info));
  ASSERT_TRUE(bestand) << pad << ": " << sf_strerror(nullptr);
  std::vector<short> smal(waarden.size());
  std::transform(waarden.begin(), waarden.end(), smal.begin(),
                 [](int waarde) { return static_cast<short>(waarde); });
  auto const aantal = static_cast<sf_count_t>(smal.size());
  ASSERT_EQ(sf_write_short(bestand.get(), smal.data(), aantal), aantal);
}

std::vector<int> geschaald(std::vector<int> waarden, int bits) {
  double const deler = std::exp2(16 - bits);
  for (int& waarde : waarden) {
    waarde = static_cast<int>(std::floor(waarde / deler));
  }
  return waarden;
}

std::string verwachteInbedding(VerwachtBlok const& blok, Bytes const& beeld) {
  std::string tekst = "\n/* Embedded on " KESTROLIN_SYSTEEM "\t\t*/\n" + momentRegel;
  tekst += "/* WAV file : " + blok.bestand + "\t\t*/\n";
  tekst += "/* WAV information :   \t\t*/\n";
  tekst += "/* WAV Format                 : " + blok.formaat + "\t*/\n";
  tekst += "/* Sampling frequency         : " + std::to_string(blok.rate) + " Hz\t\t*/\n";
  tekst += "/* Size                       : " + std::to_string(blok.frames) + " bytes\t\t*/\n";
  tekst +=
      "/* Duration                   : " + verwachteDuur(blok.frames, blok.rate) + " s\t\t*/\n";
  tekst += "/* Full Scale gain adapted to : " + std::to_string(blok.bits) + " bits\t\t*/\n\n";
  tekst += arrayKop(blok) + inbedRijen(beeld) + "};\n\n";
  return tekst + "/* end of WAV file         : " + blok.bestand + "         */\n";
}

InbedProef::InbedProef() {
  std::filesystem::create_directory(map.pad("tmp"));
}

std::string InbedProef::inbed(std::string const& pad, int bits, int taal,
                              std::string const& klasse) {
  wxMemoryOutputStream uit;
  schrijfInbedding(bestandsnaam(pad), {taal, wxTekst(klasse), bits}, uit);
  return zonderMoment(tekstVan(uit));
}

std::vector<std::string> InbedProef::namen() const {
  std::vector<std::string> gevonden;
  for (auto const& een : std::filesystem::directory_iterator(map.pad("tmp"))) {
    gevonden.push_back(een.path().filename().u8string());
  }
  std::sort(gevonden.begin(), gevonden.end());
  return gevonden;
}

Bytes InbedProef::beeld() const {
  std::vector<std::string> const gevonden = namen();
  if (gevonden.size() != 1) {
    ADD_FAILURE() << gevonden.size() << " temporary files";
    return {};
  }
  return leesBytes(map.pad("tmp/" + gevonden[0]));
}

Bytes InbedProef::sndBeeld(std::vector<int> const& waarden, WavSoort const& soort,
                           int formaat) const {
  std::string const pad = map.pad("verwacht.wav");
  schrijfSnd(pad, waarden, soort, formaat);
  return leesBytes(pad);
}
