#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

#include <algorithm>
#include <array>

#include "tests/audio/codec/codecHulp.h"

namespace {

// In hundredths of a second, with the half going up.
std::string duur(std::size_t aantal, int rate) {
  std::size_t const honderdsten = (aantal * 200 / static_cast<std::size_t>(rate) + 1) / 2;
  std::string const rest = std::to_string(honderdsten % 100);
  return std::to_string(honderdsten / 100) + (rest.size() < 2 ? ".0" : ".") + rest;
}

std::string janee(bool aan) {
  return aan ? "true" : "false";
}

std::string omvangVan(Frames const& frames, std::size_t aantal) {
  std::size_t totaal = 0;
  std::size_t grootste = 0;
  for (Bytes const& frame : frames) {
    totaal += frame.size() + 1;
    grootste = std::max(grootste, frame.size());
  }
  return omvangRegels(totaal, aantal == 0 ? 0 : std::min<std::size_t>(100, totaal * 100 / aantal),
                      grootste);
}

// The first lines of a run, up to the first fragment.
std::string runKop(SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
  std::string tekst = "/* Speex encoding output of " + std::to_string(fragmenten.size()) +
                      " audio files \t\t*/\n"
                      "\n"
                      "/* Put these declarations in a header file :*/\n";
  tekst += doel.taal == 1 ? "// class " + doel.klasse + "\n//{\n\t//private:\n" : "";
  for (SpeexFragment const& een : fragmenten) {
    tekst += doel.taal == 0   ? "// extern const signed char " + een.naam + "[];\n"
             : doel.taal == 1 ? "// static const signed char " + een.naam + "[];\n"
                              : "";
  }
  return tekst + (doel.taal == 1 ? "//};\n" : "") + "\n\n";
}

std::string startRegel(std::size_t nummer) {
  return "/******* Start encoding file number " + std::to_string(nummer) + " \t\t*******/\n";
}

}  // namespace

Instelling eersteInstelling(int band) {
  Instelling instelling;
  instelling.band = band;
  instelling.maxBitrate = 5000;
  instelling.vad = true;
  instelling.denoise = true;
  instelling.agc = true;
  return instelling;
}

SpeexFragment spraakFragment(std::string const& naam) {
  return {naam, spraak(4000, 8000)};
}

// Noise without a pause: every frame takes the 38 bytes of 15200 bits a second.
SpeexFragmenten drieFragmenten() {
  return {{"bel", golf(1600)}, {"tik", golf(161)}, {"zoem", golf(201)}};
}

std::vector<Frames> framesVan(SpeexFragmenten const& fragmenten, Instelling const& instelling) {
  LosseEncoder encoder(instelling);
  std::vector<Frames> frames;
  for (SpeexFragment const& een : fragmenten) {
    frames.push_back(encoder.bestand(een.samples));
  }
  return frames;
}

std::string instelRegels(Instelling const& instelling) {
  constexpr std::array<char const*, 3> banden{"Narrowband", "Wideband", "Ultra Wideband"};
  constexpr std::array<char const*, 3> soorten{"Fixed Bitrate", "Variable Bitrate",
                                               "Averaged Bitrate"};
  auto const soort = static_cast<std::size_t>(instelling.soort);
  return "/* Full Scale gain adapted to : " + std::to_string(16 - instelling.gainBits) +
         " bits\t\t*/\n\n"
         "/* Speex information :    \t\t*/\n"
         "/* Speex framesize                 : " +
         std::to_string(instelling.frame()) +
         " bytes\t\t*/\n"
         "/* Speex Format                    : " +
         banden.at(static_cast<std::size_t>(instelling.band)) +
         " \t\t*/\n"
         "/* Speex Bitrate                   : " +
         (soort < soorten.size() ? soorten[soort] : "") +
         " \t\t*/\n"
         "/* Speex Max Bitrate               : " +
         std::to_string(instelling.maxBitrate) +
         " bytes \t\t*/\n"
         "/* Speex AGC                       : " +
         janee(instelling.agc) +
         " \t\t*/\n"
         "/* Speex Denoise                   : " +
         janee(instelling.denoise) +
         " \t\t*/\n"
         "/* Speex Voice Activated Detection : " +
         janee(instelling.vad) +
         " \t\t*/\n"
         "/* Speex Quality                   : " +
         std::to_string(instelling.kwaliteit) +
         "  \t\t*/\n"
         "/* Speex Complexity                : " +
         std::to_string(instelling.complexiteit) + "  \t\t*/\n\n";
}

std::string omvangRegels(std::size_t totaal, std::size_t procent, std::size_t grootste) {
  return "/* Encoded array size              : " + std::to_string(totaal) +
         " bytes\t\t*/\n"
         "/* Encoded size/Original size      : " +
         std::to_string(procent) +
         " %\t\t*/\n"
         "/* Max bytes/encoded frame         : " +
         std::to_string(grootste) + " bytes\t\t*/\n\n";
}

std::string kopRegels(std::string const& bestand, std::size_t aantal, Instelling const& instelling,
                      Frames const& frames) {
  return "\n/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n" + momentRegel +
         "/* WAV file : " + bestand +
         "\t\t*/\n"
         "/* WAV information :   \t\t*/\n"
         "/* Sampling frequency         : " +
         std::to_string(instelling.rate()) +
         " Hz\t\t*/\n"
         "/* Original size              : " +
         std::to_string(aantal) +
         " frames\t\t*/\n"
         "/* Original duration          : " +
         duur(aantal, instelling.rate()) + " s\t\t*/\n" + instelRegels(instelling) +
         omvangVan(frames, aantal);
}

std::string fragmentTekst(std::string const& naam, std::size_t aantal, Frames const& frames,
                          SpeexDoel const& doel) {
  std::string const bestand = naam + ".wav";
  return kopRegels(bestand, aantal, doel.instelling, frames) + "const signed char " +
         (doel.taal == 0 ? "" : doel.klasse + "::") + naam + "[] = \n{\n" +
         (doel.metHeader
              ? uitlegRegel + headerRegel(doel.instelling.rate(), static_cast<unsigned int>(aantal))
              : "") +
         frameRegels(frames) + slotRegels(bestand);
}

std::string runTekst(SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
  std::vector<Frames> const frames = framesVan(fragmenten, doel.instelling);
  std::string tekst = runKop(fragmenten, doel);
  for (std::size_t i = 0; i < fragmenten.size(); ++i) {
    tekst += startRegel(i + 1) +
             fragmentTekst(fragmenten[i].naam, fragmenten[i].samples.size(), frames[i], doel) +
             "/******* Stop encoding file number " + std::to_string(i + 1) + " \t\t*******/\n\n";
  }
  return tekst;
}

std::string runTot(std::size_t nummer, SpeexFragmenten const& fragmenten, SpeexDoel const& doel) {
  std::string const tekst = runTekst(fragmenten, doel);
  return tekst.substr(0, tekst.find(startRegel(nummer))) + startRegel(nummer);
}

std::string EncoderProef::wav(std::string const& naam, std::vector<int> const& waarden, int rate,
                              int kanalen) {
  schrijfWav(map.pad(naam), waarden, {rate, kanalen, 16, 1});
  return map.pad(naam);
}

std::string EncoderProef::inC(Instelling const& instelling, std::string const& pad,
                              bool metHeader) {
  Codering const uitslag = codeer(instelling, pad, metHeader);
  EXPECT_EQ(uitslag.resultaat, 0);
  return zonderMoment(uitslag.tekst);
}

std::string EncoderProef::verwachtToon(Instelling const& instelling,
                                       std::vector<int> const& samples, bool metHeader) {
  std::string const pad = wav("toon.wav", samples, instelling.rate());
  std::string tekst = inC(instelling, pad, metHeader);
  Frames const frames = LosseEncoder(instelling).bestand(samples);
  EXPECT_TRUE(zelfdeTekst(
      tekst, fragmentTekst("toon", samples.size(), frames, {instelling, 0, metHeader})));
  return tekst;
}
