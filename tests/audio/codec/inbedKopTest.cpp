// The lines on a source that is not as the window would load it: the file may be another one by
// now.
#include "tests/audio/codec/inbedHulp.h"

// The library's own function, and ours in its place, by the names that the linker gives them.
extern "C" SNDFILE* echtOpen(char const* pad, int modus, SF_INFO* info) asm("__real_sf_open");
extern "C" SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) asm("__wrap_sf_open");

namespace {

// What every file that is read tells of its frames, 0 for the truth.
sf_count_t& gelogenFrames() {
  static sf_count_t frames = 0;
  return frames;
}

}  // namespace

SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) {
  SNDFILE* const bestand = echtOpen(pad, modus, info);
  if (modus == SFM_READ && gelogenFrames() != 0) {
    info->frames = gelogenFrames();
  }
  return bestand;
}

namespace {

class InbedKop : public InbedProef {
 protected:
  ~InbedKop() override { gelogenFrames() = 0; }

  // Embeds three samples of 16 bits in a file of this format, which is not that of a plain WAV
  // file.
  void verwachtAlsAdpcm(int formaat) const {
    schrijfSnd(toon, {4096, -4096, 16}, {}, formaat);
    ASSERT_EQ(leesSnd(toon).info.format, formaat);
    VerwachtBlok blok;
    blok.formaat = "WAV 4 Bit IMA ADPCM";
    blok.frames = 3;
    blok.bits = 12;
    EXPECT_TRUE(zelfdeTekst(inbed(toon, 12),
                            verwachteInbedding(blok, sndBeeld({256, -256, 1}, {}, formaat))));
  }

  // The line on the size where the library tells this number of frames.
  std::string omvangBij(sf_count_t frames) const {
    schrijfWav(toon, {1});
    gelogenFrames() = frames;
    std::string const tekst = inbed(toon);
    std::size_t const begin = tekst.find("/* Size");
    return tekst.substr(begin, tekst.find('\n', begin) - begin);
  }
};

TEST_F(InbedKop, alleenHetFormaatWoordZelfIsPcmNietDatMetHetHoogsteByteEerst) {
  verwachtAlsAdpcm(wavPcm16 | SF_ENDIAN_BIG);
}

TEST_F(InbedKop, alleenHetFormaatWoordZelfIsPcmNietDatMetEenUitgebreideKop) {
  verwachtAlsAdpcm(SF_FORMAT_WAVEX | SF_FORMAT_PCM_16);
}

// No file of so many frames is made here. A count below zero has no samples to go over, and its low
// 32 bits are a number like any other.
TEST_F(InbedKop, omvangHeeftDeLaagste32BitsVanHetAantalFramesZonderTeken) {
  EXPECT_EQ(omvangBij(-1), "/* Size                       : 4294967295 bytes\t\t*/");
  EXPECT_EQ(omvangBij(7 - (sf_count_t{1} << 40)), "/* Size                       : 7 bytes\t\t*/");
}

}  // namespace
