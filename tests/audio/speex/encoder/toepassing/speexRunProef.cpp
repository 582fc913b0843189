#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

#include <wx/button.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <array>
#include <sstream>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

std::string const kopVanBel =
    "/* Speex encoding output of 1 audio files \t\t*/\n"
    "\n"
    "/* Put these declarations in a header file :*/\n"
    "// extern const signed char bel[];\n"
    "\n"
    "\n";

std::string const kopVanDrie =
    "/* Speex encoding output of 3 audio files \t\t*/\n"
    "\n"
    "/* Put these declarations in a header file :*/\n"
    "// extern const signed char bel[];\n"
    "// extern const signed char tik[];\n"
    "// extern const signed char zoem[];\n"
    "\n"
    "\n";

namespace {

constexpr unsigned int eersteBitrate = 5000;

std::string woord(bool aan) {
  return aan ? "true" : "false";
}

// Only an edited configuration holds a number so large; it shows with its sign bit for a sign.
std::string getal(unsigned int waarde) {
  return std::to_string(static_cast<int>(waarde));
}

std::string instelTekst(Instelling const& instelling) {
  constexpr std::array<char const*, 3> banden{"Narrowband", "Wideband", "Ultra Wideband"};
  constexpr std::array<char const*, 3> soorten{"Fixed Bitrate", "Variable Bitrate",
                                               "Averaged Bitrate"};
  auto const soort = static_cast<std::size_t>(instelling.soort);
  InstelRegels regels;
  regels.dac = getal(16 - instelling.gainBits);
  regels.frame = std::to_string(instelling.frame());
  regels.band = banden[static_cast<std::size_t>(instelling.band)];
  regels.soort = soort < soorten.size() ? soorten[soort] : "";
  regels.max = std::to_string(instelling.maxBitrate);
  regels.agc = woord(instelling.agc);
  regels.denoise = woord(instelling.denoise);
  regels.vad = woord(instelling.vad);
  regels.kwaliteit = getal(instelling.kwaliteit);
  regels.complexiteit = getal(instelling.complexiteit);
  return regels.tekst();
}

std::string headerTekst(Instelling const& instelling, std::size_t samples) {
  // 8000, 16000 and 32000, low byte first.
  constexpr std::array<std::array<char const*, 2>, 3> rates{
      {{"0x40", "0x1f"}, {"0x80", "0x3e"}, {"0x0", "0x7d"}}};
  auto const& rate = rates[static_cast<std::size_t>(instelling.band)];
  auto const byte = [samples](std::size_t plaats) {
    std::ostringstream uit;
    uit << std::hex << "0x" << int{laagEerst(samples, 2)[plaats]};
    return uit.str();
  };
  return uitlegRegel + headerRegel(rate[0], rate[1], byte(0), byte(1));
}

// The text of one fragment, with momentRegel in it.
std::string fragmentTekst(SpeexFragment const& fragment, Frames const& frames,
                          SpeexDoel const& doel) {
  std::size_t const samples = fragment.samples.size();
  std::string const naam = fragment.naam + ".wav";
  return bestandRegels(naam, std::to_string(doel.instelling.rate()), std::to_string(samples),
                       fragment.duur) +
         instelTekst(doel.instelling) + omvangRegels(frames, samples) + "const signed char " +
         doel.arrayVoor + fragment.naam + "[] = \n{\n" +
         (doel.metHeader ? headerTekst(doel.instelling, samples) : "") + frameRegels(frames) +
         slotRegels(naam);
}

// A text in which "MOMENT" stands for dates and times, in UTF-8.
std::string metMomentRegel(wxString tekst) {
  tekst.Replace("/* Date : MOMENT\t\t*/\n", wxTekst(momentRegel));
  return tekst.utf8_string();
}

}  // namespace

Instelling eersteInstelling(int band) {
  Instelling instelling;
  instelling.band = band;
  instelling.maxBitrate = eersteBitrate;
  instelling.vad = true;
  instelling.denoise = true;
  instelling.agc = true;
  return instelling;
}

SpeexFragment spraakFragment(std::string const& naam) {
  return {naam, spraak(4000, 8000), "0.50"};
}

// Noise without a pause: every frame takes the 38 bytes of 15200 bits a second.
SpeexFragmenten drieFragmenten() {
  return {{"bel", golf(1600), "0.20"}, {"tik", golf(161), "0.02"}, {"zoem", golf(201), "0.03"}};
}

std::vector<Frames> framesVan(SpeexFragmenten const& fragmenten, Instelling const& instelling) {
  LosseEncoder encoder(instelling);
  std::vector<Frames> frames;
  for (SpeexFragment const& een : fragmenten) {
    frames.push_back(encoder.bestand(een.samples));
  }
  return frames;
}

std::string blokken(SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
  std::vector<Frames> const frames = framesVan(fragmenten, doel.instelling);
  std::ostringstream uit;
  for (std::size_t i = 0; i < fragmenten.size(); ++i) {
    uit << "/******* Start encoding file number " << i + 1 << " \t\t*******/\n"
        << fragmentTekst(fragmenten[i], frames[i], doel) << "/******* Stop encoding file number "
        << i + 1 << " \t\t*******/\n\n";
  }
  return uit.str();
}

void SpeexRunProef::laadFragmenten(SpeexFragmenten const& fragmenten, int rate) {
  std::vector<wxString> paden;
  for (SpeexFragment const& een : fragmenten) {
    paden.push_back(wav(een.naam + ".wav", {een.samples.begin(), een.samples.end()}, {rate}));
  }
  std::reverse(paden.begin(), paden.end());
  ASSERT_EQ(laad(paden).size(), fragmenten.size());
}

std::string SpeexRunProef::codeerTekst() {
  return metMomentRegel(codeer());
}

void SpeexRunProef::codeerZonderMelding() {
  stuur(knop(ID_CODEER), wxEVT_BUTTON);
}

std::string SpeexRunProef::bewaarTekst(wxString const& naam) {
  antwoorden.opBestandsVraag(pad(naam));
  stuur(knop(wxID_SAVE), wxEVT_BUTTON);
  return metMomentRegel(zonderMoment(inhoud(pad(naam))));
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

void SpeexRunProef::verwachtBel(SpeexFragment const& bel, Instelling const& instelling) {
  EXPECT_TRUE(zelfdeTekst(codeerTekst(), kopVanBel + blokken({bel}, {instelling, "", true})));
}
