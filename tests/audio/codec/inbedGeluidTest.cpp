// The sound in the array: the samples at every width, of one channel and of several, of both
// formats, and the array as compilers take it.
#include <algorithm>
#include <filesystem>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/wavLezer.h"
#include "tests/steun/wxMain.h"

namespace {

// Values on both sides of the steps of every width.
std::vector<int> const grenzen{0,    1,    -1,   15,    16,    -16,   -17,    63,     64,   -64,
                               -65,  255,  256,  -255,  -256,  -257,  4095,   4096,   7777, -7777,
                               1024, 1023, 8191, -8192, 16384, 32767, -32767, -32768, 171,  -171};

class InbedSchaal : public InbedProef {
 protected:
  // The image of `waarden` at this width, taken apart by the definition of the format.
  std::vector<int> naSchalen(std::vector<int> const& waarden, int bits) {
    schrijfWav(toon, waarden, {16000});
    std::filesystem::remove_all(map.pad("tmp"));
    std::filesystem::create_directory(map.pad("tmp"));
    inbed(toon, bits);
    std::optional<GelezenWav> const wav = ontleedWav(beeld());
    if (!wav) {
      ADD_FAILURE() << "the image is no WAV file";
      return {};
    }
    EXPECT_EQ(wav->soort.rate, 16000);
    EXPECT_EQ(wav->soort.kanalen, 1);
    EXPECT_EQ(wav->soort.formaatCode, 1);
    return wav->waarden;
  }
};

TEST_F(InbedSchaal, opAchtBitsBlijftMin1Min1Wordt255Nul256EenEnMin32768Min128) {
  EXPECT_EQ(naSchalen({-1, 255, 256, -32768, 32767, -256, -257}, 8),
            (std::vector<int>{-1, 0, 1, -128, 127, -1, -2}));
}

TEST_F(InbedSchaal, opTienBits) {
  EXPECT_EQ(naSchalen({-1, 63, 64, -64, -65, -32768, 32767}, 10),
            (std::vector<int>{-1, 0, 1, -1, -2, -512, 511}));
}

TEST_F(InbedSchaal, opTwaalfBits) {
  EXPECT_EQ(naSchalen({-1, 15, 16, -16, -17, -32768, 32767}, 12),
            (std::vector<int>{-1, 0, 1, -1, -2, -2048, 2047}));
}

TEST_F(InbedSchaal, opZestienBitsGaanDeSamplesOngewijzigdOver) {
  EXPECT_EQ(naSchalen(grenzen, 16), grenzen);
  EXPECT_EQ(naSchalen(golf(5000), 16), golf(5000));
}

TEST_F(InbedSchaal, elkeBreedteGeeftDeVloerVanHetQuotient) {
  for (int bits = 1; bits <= 16; ++bits) {
    EXPECT_EQ(naSchalen(grenzen, bits), geschaald(grenzen, bits)) << bits;
    EXPECT_EQ(naSchalen(golf(5000), bits), geschaald(golf(5000), bits)) << bits;
  }
}

// The text with the image that libsndfile makes of the scaled samples.
class InbedHeelBlok : public InbedProef {
 protected:
  void verwacht(VerwachtBlok blok, std::vector<int> const& waarden, WavSoort const& soort,
                int formaat) const {
    blok.rate = soort.rate;
    EXPECT_TRUE(zelfdeTekst(
        inbed(toon, blok.bits),
        verwachteInbedding(blok, sndBeeld(geschaald(waarden, blok.bits), soort, formaat))));
  }
  // `frames` frames of the source, of which the first `over` values go over.
  void verwachtKanalen(int kanalen, std::size_t frames, std::ptrdiff_t over) const {
    std::vector<int> const waarden = golf(frames * static_cast<std::size_t>(kanalen));
    WavSoort const soort{32000, kanalen};
    schrijfWav(toon, waarden, soort);
    VerwachtBlok blok;
    blok.frames = static_cast<int>(frames);
    blok.bits = 12;
    verwacht(blok, {waarden.begin(), waarden.begin() + over}, soort, wavPcm16);
  }
};

TEST_F(InbedHeelBlok, stereoMetEenEvenAantalFramesGaatVoorDeHelftOver) {
  verwachtKanalen(2, 6, 6);
}

TEST_F(InbedHeelBlok, stereoMetEenOnevenAantalFramesLaatHetHalveFrameWeg) {
  verwachtKanalen(2, 7, 6);
}

TEST_F(InbedHeelBlok, stereoVanEenFrameHoudtNietsOver) {
  verwachtKanalen(2, 1, 0);
}

TEST_F(InbedHeelBlok, drieKanalenGaanVoorEenDerdeOverInHeleFrames) {
  verwachtKanalen(3, 6, 6);
  verwachtKanalen(3, 8, 6);
}

TEST_F(InbedHeelBlok, lijstVoorDeSamplesMaaktEenAndereHeaderDanDieVanDeBron) {
  schrijfWav(toon, {1000, -1000});
  std::string wav = leesTekst(toon);
  // A chunk of four bytes before the samples, and the size of the whole 12 bytes up.
  wav.insert(36, std::string("LIST\x04\x00\x00\x00INFO", 12));
  wav[4] = static_cast<char>(wav[4] + 12);
  maakBestand(toon, wav);
  VerwachtBlok blok;
  blok.frames = 2;
  verwacht(blok, {1000, -1000}, {}, wavPcm16);
  EXPECT_EQ(beeld().size() + 12, wav.size());
}

// What libsndfile hears in the ADPCM source, scaled, goes back through libsndfile's encoder.
class InbedAdpcm : public InbedHeelBlok {
 protected:
  void verwachtAdpcm(std::size_t samples, WavSoort const& soort, VerwachtBlok blok) const {
    schrijfSnd(toon, golf(samples), soort, wavAdpcm);
    SndInhoud const bron = leesSnd(toon);
    ASSERT_EQ(bron.info.format, wavAdpcm);
    ASSERT_EQ(bron.info.frames, blok.frames);
    blok.formaat = "WAV 4 Bit IMA ADPCM";
    std::vector<int> half(bron.waarden);
    int const over = blok.frames / soort.kanalen * soort.kanalen;
    half.resize(static_cast<std::size_t>(over));
    verwacht(blok, half, soort, wavAdpcm);
  }
};

TEST_F(InbedAdpcm, wordtGedecodeerdGeschaaldEnOpnieuwGecodeerdOpElkeBreedte) {
  for (int const bits : {8, 10, 12, 16}) {
    VerwachtBlok blok;
    blok.bits = bits;
    // Whole blocks of 505 frames each.
    blok.frames = 3030;
    verwachtAdpcm(3000, {}, blok);
  }
}

TEST_F(InbedAdpcm, andereFrequentieEnAndereBlokken) {
  VerwachtBlok blok;
  blok.bits = 12;
  // Blocks of 1017 frames at 16000 Hz.
  blok.frames = 2034;
  verwachtAdpcm(2000, {16000}, blok);
}

TEST_F(InbedAdpcm, stereoGaatVoorDeHelftOver) {
  VerwachtBlok blok;
  blok.bits = 10;
  blok.frames = 1010;
  verwachtAdpcm(2000, {8000, 2}, blok);
}

TEST_F(InbedAdpcm, leegBestandGeeftLegeAdpcm) {
  verwachtAdpcm(0, {}, {});
}

// A small program writes the array to a file, which libsndfile opens.
class InbedCompileer : public InbedProef {
 protected:
  void maak(std::string const& naam, std::string const& inhoud) const {
    maakBestand(map.pad(naam), inhoud);
  }
  // Compiles `hoofd` with warnings as errors, and returns what libsndfile reads in the array.
  SndInhoud gebouwd(std::string const& compiler, std::string const& hoofd) const {
    EXPECT_TRUE(luktIn(map.pad(), compiler + " -Wall -Wextra -Wpedantic -Werror " + hoofd +
                                      " -o proef && ./proef > uit.wav"));
    EXPECT_EQ(leesBytes(map.pad("uit.wav")), beeld());
    return leesSnd(map.pad("uit.wav"));
  }
  SndInhoud inC(int bits) const {
    maak("array.h", "extern const unsigned char toon[];\n");
    maak("array.c", "#include \"array.h\"\n" + inbed(toon, bits) +
                        "const unsigned long lengte = sizeof toon;\n");
    maak("hoofd.c",
         "#include <stdio.h>\n#include \"array.h\"\nextern const unsigned long lengte;\n"
         "int main(void) { return fwrite(toon, 1, lengte, stdout) == lengte ? 0 : 1; }\n");
    return gebouwd("gcc -std=c99", "array.c hoofd.c");
  }
  SndInhoud inCpp(int bits) const {
    maak("hoofd.cpp",
         "#include <cstdio>\nclass Klank {\n public:\n  static const unsigned char toon[];\n};\n" +
             inbed(toon, bits, 1, "Klank") +
             "int main() {\n  return std::fwrite(Klank::toon, 1, sizeof Klank::toon, stdout) ==\n"
             "                 sizeof Klank::toon ? 0 : 1;\n}\n");
    return gebouwd("g++ -std=c++17", "hoofd.cpp");
  }
  static void verwacht(SndInhoud const& gevonden, std::vector<int> const& waarden,
                       WavSoort const& soort, int formaat) {
    EXPECT_EQ(gevonden.info.samplerate, soort.rate);
    EXPECT_EQ(gevonden.info.channels, soort.kanalen);
    EXPECT_EQ(gevonden.info.format, formaat);
    EXPECT_EQ(gevonden.waarden, waarden);
  }
};

TEST_F(InbedCompileer, stereoArrayIsEenStereoBeeld) {
  std::vector<int> const waarden = golf(22);
  schrijfWav(toon, waarden, {8000, 2});
  verwacht(inC(12), geschaald({waarden.begin(), waarden.begin() + 10}, 12), {8000, 2}, wavPcm16);
}

TEST_F(InbedCompileer, adpcmArrayIsEenAdpcmBeeldDatKlinktZoalsLibsndfileHetMaakt) {
  schrijfSnd(toon, golf(900), {}, wavAdpcm);
  std::string const zelf = map.pad("zelf.wav");
  schrijfSnd(zelf, geschaald(leesSnd(toon).waarden, 12), {}, wavAdpcm);
  verwacht(inCpp(12), leesSnd(zelf).waarden, {}, wavAdpcm);
}

}  // namespace
