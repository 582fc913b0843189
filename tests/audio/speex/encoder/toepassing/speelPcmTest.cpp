// The PCM converter reads binary images and is handed text, of which the first four bytes count as
// a number of samples: some 1.3 thousand million. The linker leads the window's call through here
// (see CMakeLists.txt): the converter gets the same text with a small number in front.
#include <wx/button.h>
#include <wx/filename.h>
#include <wx/radiobox.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <system_error>

#include "audio/codec/pcmDesktopConverter.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"
#include "tests/steun/geluidPaden.h"

extern "C" {
void vangDecodeer(
    PCMDesktopConverter const* zelf, wxFileName const& bron,
    wxFileName const&
        doel) asm("__wrap__ZNK19PCMDesktopConverter15decodeerBestandERK10wxFileNameS2_");
void echtDecodeer(
    PCMDesktopConverter const* zelf, wxFileName const& bron,
    wxFileName const&
        doel) asm("__real__ZNK19PCMDesktopConverter15decodeerBestandERK10wxFileNameS2_");
}

namespace {

// What the window handed over, and what then happens with it.
struct Overgave {
  std::string bron;
  std::string doel;
  std::string tekst;
  std::string inhoudDoel;
  // How often the process had each of them open.
  std::ptrdiff_t bronOpen;
  std::ptrdiff_t doelOpen;
};
using Vervolg = std::function<void(PCMDesktopConverter const& zelf, Overgave const& overgave)>;

std::vector<Overgave>& overgaven() {
  static std::vector<Overgave> alle;
  return alle;
}

Vervolg& vervolg() {
  static Vervolg wat;
  return wat;
}

std::ptrdiff_t keerOpen(std::string const& pad) {
  std::filesystem::directory_iterator const handvatten("/proc/self/fd");
  return std::count_if(begin(handvatten), end(handvatten), [&pad](auto const& handvat) {
    std::error_code geenMeer;
    return std::filesystem::read_symlink(handvat.path(), geenMeer) == pad;
  });
}

}  // namespace

void vangDecodeer(PCMDesktopConverter const* zelf, wxFileName const& bron, wxFileName const& doel) {
  std::string const bronPad = bron.GetFullPath().utf8_string();
  std::string const doelPad = doel.GetFullPath().utf8_string();
  overgaven().push_back({bronPad, doelPad, leesTekst(bronPad), leesTekst(doelPad),
                         keerOpen(bronPad), keerOpen(doelPad)});
  vervolg()(*zelf, overgaven().back());
}

namespace {

class SpeelPcmProef : public SpeelProef {
 protected:
  void SetUp() override {
    overgaven().clear();
    vervolg() = [this](PCMDesktopConverter const& zelf, Overgave const& overgave) {
      Bytes const telling = laagEerst(aantal, 4);
      std::string kort = overgave.tekst;
      kort.replace(0, telling.size(), std::string(telling.begin(), telling.end()));
      maakBestand(map.pad("kort.bin"), kort);
      echtDecodeer(&zelf, bestandsnaam(map.pad("kort.bin")), bestandsnaam(overgave.doel));
    };
  }

  void begin(EncoderSoort soort) {
    WerkProef::begin();
    neemOp();
    kies(radio(ID_ENCODER_TYPE), soort);
    laadFragmenten({korteBel()});
    codeer();
    ASSERT_TRUE(nietsGelogd(log()));
  }

  // The first samples that the text holds as an image, behind its head of six bytes.
  std::vector<int> samplesVan(std::string const& tekst) const {
    std::vector<int> samples;
    for (std::size_t i = 0; i < aantal; ++i) {
      auto const laag = static_cast<unsigned char>(tekst.at(6 + 2 * i));
      auto const hoog = static_cast<unsigned char>(tekst.at(7 + 2 * i));
      samples.push_back(static_cast<std::int16_t>(laag + 256 * hoog));
    }
    return samples;
  }

  std::size_t const aantal = 300;
};

// "CM" as a number of 16 bits, low byte first.
constexpr int rateVanPcm = 0x4D43;
static_assert(rateVanPcm == 19779);
// "pe", of "/* Speex".
constexpr int rateVanSpeex = 0x6570;

TEST_F(SpeelPcmProef, TheConverterReadsTheGeneratedTextAndThePlayCountsNoneAndSpeaksOfSpeex) {
  begin(EncoderPCM);
  ASSERT_TRUE(tekst().StartsWith("/* PCM encoding output of 1 audio files"));
  verwachtResultaat("pcmTmpBestand", 0, rateVanPcm, samplesVan(tekst().utf8_string()));
  ASSERT_EQ(overgaven().size(), 1U);
  EXPECT_EQ(overgaven()[0].bron, tijdelijk("pcmTmpBestand"));
  EXPECT_EQ(overgaven()[0].doel, tijdelijk("wavTmpBestand"));
  // All of it was on disk when the converter came.
  EXPECT_EQ(overgaven()[0].tekst, tekst().utf8_string());
  EXPECT_EQ(overgaven()[0].inhoudDoel, "");
  EXPECT_EQ(overgaven()[0].bronOpen, 1);
  EXPECT_EQ(overgaven()[0].doelOpen, 0);
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(SpeelPcmProef, TheMenuItemPlaysTheSame) {
  begin(EncoderPCM);
  kiesMenu(ID_SPEEL_RESULTAAT);
  verwachtGespeeld(0, rateVanPcm, samplesVan(tekst().utf8_string()));
}

TEST_F(SpeelPcmProef, PlayedTwiceItLeavesFourNewFiles) {
  begin(EncoderPCM);
  std::size_t const voordien = tijdelijke().size();
  klik(ID_SPEEL_RESULTAAT);
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(tijdelijke().size(), voordien + 4);
  EXPECT_EQ(tijdelijke("pcmTmpBestand").size(), 2U);
  EXPECT_EQ(tijdelijke("wavTmpBestand").size(), 2U);
}

TEST_F(SpeelPcmProef, TheResultStaysAndStillCountsAsNotSaved) {
  begin(EncoderPCM);
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(isGeladen());
  antwoorden.opBericht(wxID_NO);
  klik(wxID_EXIT);
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
}

TEST_F(SpeelPcmProef, ChosenAfterASpeexRunItReadsThatText) {
  begin(EncoderSpeex);
  kies(radio(ID_ENCODER_TYPE), EncoderPCM);
  ASSERT_FALSE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  stuur(knop(ID_SPEEL_RESULTAAT), wxEVT_BUTTON);
  verwachtGespeeld(0, rateVanSpeex, samplesVan(tekst().utf8_string()));
  EXPECT_TRUE(tekst().StartsWith("/* Speex"));
  EXPECT_EQ(overgaven().at(0).tekst, tekst().utf8_string());
}

TEST_F(SpeelPcmProef, AConverterThatWritesNothingFailsThePlayAndBothFilesStay) {
  begin(EncoderPCM);
  vervolg() = [](PCMDesktopConverter const&, Overgave const&) {};
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_TRUE(gehoord.empty());
  EXPECT_EQ(status(), "Error playing decoded audio fragments.");
  EXPECT_EQ(fouten().back(), "Could not decode and play encoded audio fragments.");
  EXPECT_EQ(leesTekst(tijdelijk("pcmTmpBestand")), tekst().utf8_string());
  EXPECT_EQ(leesTekst(tijdelijk("wavTmpBestand")), "");
  EXPECT_EQ(neemGeluidPaden(), std::vector<wxString>{wxTekst(tijdelijk("wavTmpBestand"))});
  EXPECT_TRUE(isGecodeerd());
}

}  // namespace
