// What the ADPCM converter does where memory runs out: std::bad_alloc passes through, nothing is
// lost on the way, and the converter goes on when there is memory again.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <new>

#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/krapGeheugen.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wxMain.h"

namespace {

std::ptrdiff_t openBestanden() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

class AdpcmGeheugen : public testing::Test {
 protected:
  AdpcmGeheugen() { schrijfWav(toon, samples); }

  // The two forms of decoding, which both ask for this much.
  void verwachtTeGroot(std::string const& bron, unsigned long long grootte) {
    std::ptrdiff_t const voor = openBestanden();
    maakBestand(doel, "was hier");
    KrapGeheugen const ruim(0);
    EXPECT_THROW(static_cast<void>(converter.decodeerBestand(bestandsnaam(bron))), std::bad_alloc);
    EXPECT_EQ(KrapGeheugen::grootste(), grootte);
    EXPECT_THROW(converter.decodeerBestand(bestandsnaam(bron), bestandsnaam(doel)), std::bad_alloc);
    EXPECT_EQ(openBestanden(), voor);
    EXPECT_EQ(leesTekst(doel), "was hier");
  }

  // Lets each allocation of `doe` of at least `vanaf` bytes fail in turn, and runs `daarna` after
  // each time.
  template <typename Doen, typename Daarna>
  void elkeAllocatie(Doen doe, Daarna daarna, std::size_t vanaf = 0) {
    std::ptrdiff_t const voor = openBestanden();
    bool gelukt = false;
    int mislukt = 0;
    for (int nummer = 1; !gelukt; ++nummer) {
      try {
        KrapGeheugen const krap(nummer, vanaf);
        doe();
        // Past its last allocation.
        gelukt = !KrapGeheugen::isGebleken();
        EXPECT_TRUE(gelukt) << "allocation " << nummer << " failed and nobody heard of it";
      } catch (std::bad_alloc const&) {
        ++mislukt;
      }
      EXPECT_EQ(openBestanden(), voor) << nummer;
      daarna();
    }
    EXPECT_GE(mislukt, 3);
  }

  // A failure leaves the coder where it stood or behind the whole file, never in between.
  void verwachtStandOpEenGrens() {
    Bytes const gevonden = codesVan(*adpcmPakket(converter, toon));
    AdpcmStand blijft = stand;
    Bytes const opnieuw = modelBytes(blijft, samples, 1);
    AdpcmStand verder = blijft;
    Bytes const vervolg = modelBytes(verder, samples, 1);
    EXPECT_TRUE(gevonden == opnieuw || gevonden == vervolg);
    stand = gevonden == opnieuw ? blijft : verder;
  }

  std::vector<int> const samples = golf(1001);
  TijdelijkeMap map;
  std::string toon = map.pad("toon.wav");
  std::string doel = map.pad("uit.wav");
  std::string beeld = map.pad("beeld.bin");
  ADPCMDesktopConverter converter{ADPCMEncoderOpties(ADPCMTaalC, 0)};
  AdpcmStand stand;
};

TEST_F(AdpcmGeheugen, beeldVanEenEchteOpnameVraagtHetOnmogelijkeEnIsBadAlloc) {
  adpcmBeeld(converter, toon, true, beeld);
  // 500 bytes of code, and 8000 Hz in the bytes above them.
  verwachtTeGroot(beeld, 8000ULL * 4294967296ULL + 500);
}

TEST_F(AdpcmGeheugen, predictorTeltOokMeeInDeGrootte) {
  maakBestand(beeld, std::string("\x09\x00\x00\x00\x00\x00\xFF\xFF\x00", 9));
  verwachtTeGroot(beeld, 0xFFFF000000000009ULL);
}

TEST_F(AdpcmGeheugen, gegenereerdeTekstInPlaatsVanEenBeeldIsBadAlloc) {
  maakBestand(beeld, "/* ADPCM encoding output */\n" + adpcmTekst({ADPCMTaalC, 0}, toon, true));
  verwachtTeGroot(beeld, 5567381818440690223ULL);
}

TEST_F(AdpcmGeheugen, pakketMakenZonderGeheugen) {
  elkeAllocatie([this] { adpcmPakket(converter, toon); }, [this] { verwachtStandOpEenGrens(); });
}

// The blocks that grow with the file. Where there is none left for the text of a single number the
// toolkit ends the program: it gets that out of a buffer in the buffer's destructor.
TEST_F(AdpcmGeheugen, tekstMakenZonderGeheugen) {
  constexpr std::size_t groteBlokken = 500;
  elkeAllocatie(
      [this] {
        wxMemoryOutputStream uit;
        converter.codeerBestand(bestandsnaam(toon), true, uit);
      },
      [this] { verwachtStandOpEenGrens(); }, groteBlokken);
}

TEST_F(AdpcmGeheugen, beeldMakenZonderGeheugen) {
  elkeAllocatie([this] { converter.codeerBestand(bestandsnaam(toon), true, bestandsnaam(beeld)); },
                [this] { verwachtStandOpEenGrens(); });
}

// An image of a size of its own, that of a whole with its header.
class AdpcmGeheugenDecodeer : public AdpcmGeheugen {
 protected:
  AdpcmGeheugenDecodeer() {
    Bytes bytes = laagEerst(20, 9);
    bytes.insert(bytes.end(), codes.begin(), codes.end());
    maakBestand(beeld, std::string(bytes.begin(), bytes.end()));
    codes.resize(20, 0);
  }

  void verwachtGoedeDecoder() {
    std::unique_ptr<VelmoraPCMPakket> const pcm(converter.decodeerBestand(bestandsnaam(beeld)));
    AdpcmStand begin;
    EXPECT_EQ(std::vector<int>(pcm->geefData(), pcm->geefData() + pcm->geefAantalSamples()),
              modelSamples(begin, codes));
  }

 private:
  Bytes codes{0xF7, 0x82, 0x77, 0x19, 0x3C, 0xA1, 0x44, 0x0F, 0x90, 0x5B, 0x11};
};

TEST_F(AdpcmGeheugenDecodeer, naarEenPakketZonderGeheugen) {
  elkeAllocatie(
      [this] {
        std::unique_ptr<VelmoraPCMPakket> const pcm(converter.decodeerBestand(bestandsnaam(beeld)));
      },
      [this] { verwachtGoedeDecoder(); });
}

TEST_F(AdpcmGeheugenDecodeer, naarEenWavZonderGeheugen) {
  elkeAllocatie([this] { converter.decodeerBestand(bestandsnaam(beeld), bestandsnaam(doel)); },
                [this] { verwachtGoedeDecoder(); });
}

}  // namespace
