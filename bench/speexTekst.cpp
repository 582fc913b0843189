#include "bench/speexTekst.h"

#include <speex/speex.h>
#include <wx/filename.h>
#include <wx/mstream.h>
#include <wx/sstream.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <vector>

#include "audio/codec/audioConfig.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/wavFormaat.h"
#include "audio/uitvoer/speexMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "bench/geluid.h"
#include "bench/meting.h"
#include "externals/software/extern/speex/speexDesktop.h"

namespace {

constexpr int herhalingen = 15;
constexpr int seconden = 120;
constexpr int framesPerSeconde = 50;
constexpr int frames = seconden * framesPerSeconde;
constexpr KestrolinConfig eersteStart;

struct Band {
  SpeexBandFormaat formaat;
  char const* naam;
  // The frequency in a header that the decoder can read back.
  char const* frequentie;
};

constexpr std::array<Band, 3> banden{{{SpeexNarrowband, "8 kHz", "0x40,(signed char)0x1f"},
                                      {SpeexWideband, "16 kHz", "0x80,(signed char)0x3e"},
                                      {SpeexUltraWideband, "32 kHz", "0x00,(signed char)0x7d"}}};

bool encodeer(Band const& band, std::string const& wav, wxOutputStream& uit) {
  KestrolinConfig instellingen = eersteInstellingen(UitvoerTaalC, sampleBits);
  instellingen.speexFormat = band.formaat;
  SpeexMaker maker;
  maker.begin(instellingen, wxString(), 1);
  return maker.maak(wxFileName(wav), true, uit) == Gemaakt::heel;
}

int maakTekst(Band const& band, std::string const& wav) {
  wxMemoryOutputStream uit;
  return encodeer(band, wav, uit) && uit.GetSize() > 0 ? 0 : 1;
}

class LosseBits {
 public:
  LosseBits() { speex_bits_init(&bits); }
  ~LosseBits() { speex_bits_destroy(&bits); }
  LosseBits(LosseBits const&) = delete;
  LosseBits& operator=(LosseBits const&) = delete;
  LosseBits(LosseBits&&) = delete;
  LosseBits& operator=(LosseBits&&) = delete;

  SpeexBits* geef() { return &bits; }

 private:
  SpeexBits bits{};
};

struct EncoderEinde {
  void operator()(void* toestand) const { speex_encoder_destroy(toestand); }
};

// Encodes frames that lie ready in memory, and keeps nothing of them.
int draaiLus(Band const& band, std::vector<short> const& samples) {
  std::unique_ptr<void, EncoderEinde> const houder(speex_encoder_init(
      band.formaat == SpeexNarrowband ? &speex_nb_mode : speex_lib_get_mode(band.formaat)));
  void* const encoder = houder.get();
  auto waarde = static_cast<int>(eersteStart.speexQuality);
  speex_encoder_ctl(encoder, SPEEX_SET_QUALITY, &waarde);
  waarde = static_cast<int>(eersteStart.speexComplexity);
  speex_encoder_ctl(encoder, SPEEX_SET_COMPLEXITY, &waarde);
  waarde = 1;
  speex_encoder_ctl(encoder, SPEEX_SET_VAD, &waarde);
  LosseBits houderVanBits;
  SpeexBits* const bits = houderVanBits.geef();
  auto const n = SpeexBasis::frameSize[static_cast<std::size_t>(band.formaat)];
  std::vector<float> blok(n);
  std::array<char, SpeexBasis::maxFrameBytes> uit{};
  int totaal = 0;
  for (auto frame = samples.begin(); frame != samples.end(); frame += n) {
    std::copy_n(frame, n, blok.begin());
    speex_bits_reset(bits);
    speex_encode(encoder, blok.data(), bits);
    totaal += speex_bits_write(bits, uit.data(), static_cast<int>(uit.size()));
  }
  return totaal > 0 ? 0 : 1;
}

// The generated text with the true number of frames in its header, so that every frame that the
// decoder writes is one that it decoded.
std::string metWareTelling(Band const& band, std::string const& wav) {
  static_assert(frames == 0x1770);
  wxStringOutputStream uit;
  if (!encodeer(band, wav, uit)) {
    return {};
  }
  std::string tekst = uit.GetString().ToStdString();
  std::string const begin = "\t(signed char)0x";
  std::size_t const van = tekst.find(begin);
  std::size_t const tot = tekst.find('\n', van);
  return tekst.replace(
      van, tot - van,
      std::string("\t(signed char)") + band.frequentie + ",(signed char)0x70,(signed char)0x17,");
}

int decodeer(Band const& band, std::string const& tekst, std::string const& doel) {
  SpeexDesktopDecoder decoder(band.formaat, nullptr);
  unsigned long long fragmenten = 0;
  return decoder.decode(wxFileName(tekst), wxFileName(doel), fragmenten, wavPcm16);
}

// What is measured of a band, ready in files and in memory.
struct Materiaal {
  Materiaal(Band const& van, std::string const& map)
      : band(&van), wav(map + "/speex.wav"), tekst(map + "/speex.c"), terug(map + "/terug.wav") {
    auto const rate = SpeexBasis::standaardSampFreqs[static_cast<std::size_t>(van.formaat)];
    maakRuis(wav, rate, seconden);
    samples.resize(static_cast<std::size_t>(seconden) * rate);
    SndBestand::lees(wxFileName(wav))
        .leesItems(samples.data(), static_cast<sf_count_t>(samples.size()));
    std::ofstream(tekst) << metWareTelling(van, wav);
  }

  Band const* band;
  std::string wav;
  std::string tekst;
  std::string terug;
  std::vector<short> samples;
};

bool meldBand(Band const& band, double verhouding, double snelheid) {
  constexpr double doelLus = 1.03;
  constexpr double doelSnelheid = 100;
  std::string const naam = band.naam;
  bool const licht =
      meld(verhouding <= doelLus, "Speex text at " + naam + ", cost against libspeex alone",
           verhouding, "<= 1.03");
  bool const snel =
      meld(snelheid >= doelSnelheid, "decoding Speex frames at " + naam + ", times real time",
           snelheid, ">= 100");
  return licht && snel;
}

}  // namespace

bool meetSpeex(std::string const& map) {
  std::vector<Materiaal> materiaal;
  Werken werken;
  for (Band const& band : banden) {
    std::string const eigen = map + "/" + std::to_string(band.formaat);
    std::filesystem::create_directory(eigen);
    materiaal.emplace_back(band, eigen);
  }
  for (Materiaal const& van : materiaal) {
    werken.emplace_back([&van] { return maakTekst(*van.band, van.wav); });
    werken.emplace_back([&van] { return draaiLus(*van.band, van.samples); });
    werken.emplace_back([&van] { return decodeer(*van.band, van.tekst, van.terug); });
  }
  Tijden const gemeten = meetHierOmBeurten(herhalingen, werken);
  bool const heel = std::all_of(materiaal.begin(), materiaal.end(), [](Materiaal const& van) {
    return SndBestand::lees(wxFileName(van.terug)).info().frames ==
           static_cast<sf_count_t>(van.samples.size());
  });
  if (gemeten.empty() || !heel) {
    std::cerr << "bench: the Speex text could not be measured\n";
    return false;
  }
  bool goed = true;
  auto tijd = gemeten.begin();
  for (Materiaal const& van : materiaal) {
    double const decoder = *std::min_element(tijd[2].begin(), tijd[2].end());
    goed = meldBand(*van.band, middelsteVerhouding(tijd[0], tijd[1]), seconden / decoder) && goed;
    tijd += 3;
  }
  return goed;
}
