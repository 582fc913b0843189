#include "bench/lezer.h"

#include <wx/filename.h>
#include <wx/mstream.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "audio/uitvoer/speexMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "audio/weergave/tekstLezer.h"
#include "bench/geluid.h"
#include "bench/meting.h"
#include "externals/software/extern/speex/frameLezer.h"
#include "externals/software/extern/speex/speexDesktop.h"

namespace {

constexpr int seconden = 120;
constexpr int framesPerSeconde = 50;
constexpr int frames = seconden * framesPerSeconde;
constexpr std::size_t headerBytes = 4;
constexpr int rondes = 7;
constexpr int lezingen = 40;

struct Band {
  SpeexBandFormaat formaat;
  char const* naam;
};

constexpr std::array<Band, 3> banden{
    {{SpeexNarrowband, "8 kHz"}, {SpeexWideband, "16 kHz"}, {SpeexUltraWideband, "32 kHz"}}};

std::string maakTekst(SpeexBandFormaat formaat, std::string const& wav) {
  maakRuis(wav, SpeexBasis::standaardSampFreqs[static_cast<std::size_t>(formaat)], seconden);
  KestrolinConfig instellingen = eersteInstellingen(UitvoerTaalC, sampleBits);
  instellingen.speexFormat = formaat;
  SpeexMaker maker;
  wxMemoryOutputStream uit;
  maker.begin(instellingen, wxString(), 1);
  maker.maak(wxFileName(wav), true, uit);
  std::string tekst(uit.GetSize(), '\0');
  uit.CopyTo(tekst.data(), tekst.size());
  return tekst;
}

// libspeex as playback uses it.
class KaleDecoder : public SpeexDecoder {
 public:
  explicit KaleDecoder(SpeexBandFormaat band) : SpeexDecoder(band), blok(frameSize) {}

  // The number of frames.
  int decodeer(ArrayBytes const& array) {
    int aantal = 0;
    for (std::size_t plaats = headerBytes; plaats < array.size(); ++aantal) {
      std::size_t const maat = array[plaats];
      auto const* const frame =
          static_cast<char const*>(static_cast<void const*>(array.data() + plaats + 1));
      speex_bits_read_from(&bits, frame, static_cast<int>(maat));
      speex_decode_int(decoderState.get(), &bits, blok.data());
      plaats += 1 + maat;
    }
    return aantal;
  }

 private:
  std::vector<short> blok;
};

// Reads the frames as playback does; how many bytes they have.
std::size_t leesVoorAfspelen(std::string const& bestand) {
  wxFileInputStream invoer(bestand);
  LeesBlok blok(invoer);
  FrameLezer tekst(blok);
  while (tekst.zoekBegin() == '/') {
    tekst.slaRegelOver();
  }
  unsigned long veld = 0;
  SpeexDesktopDecoder::leesHeader(tekst, veld);
  SpeexDesktopDecoder::leesHeader(tekst, veld);
  FrameLezer::Frame frame{};
  std::size_t bytes = 0;
  for (int i = 0; i < frames; ++i) {
    bytes += static_cast<std::size_t>(tekst.leesFrame(frame));
  }
  return bytes;
}

// One reading is too short for the clock of a process.
int herhaal(std::function<bool()> const& lees) {
  for (int i = 0; i < lezingen; ++i) {
    if (!lees()) {
      return 1;
    }
  }
  return 0;
}

bool meetBand(Band const& band, std::string const& map) {
  std::string const bestand = map + "/lezer.c";
  std::string const tekst = maakTekst(band.formaat, map + "/lezer.wav");
  std::ofstream(bestand) << tekst;
  GelezenTekst const gelezen = ontleedTekst(tekst);
  if (gelezen.arrays.size() != 1) {
    std::cerr << "bench: the Speex text of " << band.naam << " cannot be read back\n";
    return false;
  }
  ArrayBytes const& array = gelezen.arrays.front().bytes;

  std::size_t const bytesVanFrames = array.size() - headerBytes - frames;
  std::vector<Verbruik> const gemeten = meetOmBeurten(
      rondes, {[&] { return KaleDecoder(band.formaat).decodeer(array) == frames ? 0 : 1; },
               [&] { return herhaal([&] { return leesVoorAfspelen(bestand) == bytesVanFrames; }); },
               [&] { return herhaal([&] { return ontleedTekst(tekst).arrays.size() == 1; }); }});
  if (!alleGeslaagd(gemeten)) {
    std::cerr << "bench: the Speex text of " << band.naam << " is not read whole\n";
    return false;
  }

  constexpr double doel = 20;
  auto const meldLezer = [&](char const* lezer, Verbruik const& lezen) {
    double const verhouding = gemeten[0].seconden * lezingen / lezen.seconden;
    return meld(
        verhouding >= doel,
        std::string("Speex text read ") + lezer + " at " + band.naam + ", times libspeex's rate",
        verhouding, ">= 20");
  };
  bool const speelt = meldLezer("for playback", gemeten[1]);
  bool const leest = meldLezer("by list", gemeten[2]);
  return speelt && leest;
}

}  // namespace

bool meetLezers(std::string const& map) {
  // All of them, also behind one that misses.
  return std::count_if(banden.begin(), banden.end(), [&](Band const& band) {
           return meetBand(band, map);
         }) == static_cast<std::ptrdiff_t>(banden.size());
}
