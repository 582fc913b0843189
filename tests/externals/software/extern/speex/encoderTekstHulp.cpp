#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

#include <algorithm>
#include <numeric>

#include "tests/audio/codec/codecHulp.h"

std::string bestandRegels(std::string const& bestand, std::string const& rate,
                          std::string const& frames, std::string const& duur) {
  return "\n/* Encoded on Linux (64 bit)\t\t*/\n" + momentRegel + "/* WAV file : " + bestand +
         "\t\t*/\n"
         "/* WAV information :   \t\t*/\n"
         "/* Sampling frequency         : " +
         rate +
         " Hz\t\t*/\n"
         "/* Original size              : " +
         frames +
         " frames\t\t*/\n"
         "/* Original duration          : " +
         duur + " s\t\t*/\n";
}

std::string InstelRegels::tekst() const {
  return "/* Full Scale gain adapted to : " + dac +
         " bits\t\t*/\n\n"
         "/* Speex information :    \t\t*/\n"
         "/* Speex framesize                 : " +
         frame +
         " bytes\t\t*/\n"
         "/* Speex Format                    : " +
         band +
         " \t\t*/\n"
         "/* Speex Bitrate                   : " +
         soort +
         " \t\t*/\n"
         "/* Speex Max Bitrate               : " +
         max +
         " bytes \t\t*/\n"
         "/* Speex AGC                       : " +
         agc +
         " \t\t*/\n"
         "/* Speex Denoise                   : " +
         denoise +
         " \t\t*/\n"
         "/* Speex Voice Activated Detection : " +
         vad +
         " \t\t*/\n"
         "/* Speex Quality                   : " +
         kwaliteit +
         "  \t\t*/\n"
         "/* Speex Complexity                : " +
         complexiteit + "  \t\t*/\n\n";
}

std::string omvangRegels(std::string const& totaal, std::string const& verhouding,
                         std::string const& grootste) {
  return "/* Encoded array size              : " + totaal +
         " bytes\t\t*/\n"
         "/* Encoded size/Original size      : " +
         verhouding +
         " %\t\t*/\n"
         "/* Max bytes/encoded frame         : " +
         grootste + " bytes\t\t*/\n\n";
}

std::string omvangRegels(Frames const& frames, std::size_t wavFrames) {
  std::size_t const totaal =
      std::accumulate(frames.begin(), frames.end(), std::size_t{0},
                      [](std::size_t som, Bytes const& frame) { return som + frame.size() + 1; });
  auto const kleiner = [](Bytes const& a, Bytes const& b) { return a.size() < b.size(); };
  auto const grootste = std::max_element(frames.begin(), frames.end(), kleiner);
  return omvangRegels(std::to_string(totaal),
                      std::to_string(std::min<std::size_t>(100, totaal * 100 / wavFrames)),
                      std::to_string(grootste->size()));
}

std::string headerRegel(std::string const& b0, std::string const& b1, std::string const& b2,
                        std::string const& b3) {
  return "\t(signed char)" + b0 + ",(signed char)" + b1 + ",(signed char)" + b2 + ",(signed char)" +
         b3 + ",\n";
}

std::string toonInC(std::string const& bestand, InstelRegels const& regels,
                    std::string const& omvang, std::string const& header, Frames const& frames) {
  return bestand + regels.tekst() + omvang + "const signed char toon[] = \n{\n" + header +
         frameRegels(frames) + slotRegels("toon.wav");
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
