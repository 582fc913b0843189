#include "bench/speexTekst.h"

#include <speex/speex.h>
#include <wx/filename.h>
#include <wx/mstream.h>

#include <algorithm>
#include <array>
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

constexpr int herhalingen = 5;
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

std::string encodeer(Band const& band, std::string const& wav) {
  KestrolinConfig instellingen = eersteInstellingen(UitvoerTaalC, sampleBits);
  instellingen.speexFormat = band.formaat;
  SpeexMaker maker;
  wxMemoryOutputStream uit;
  maker.begin(instellingen, wxString(), 1);
  if (maker.maak(wxFileName(wav), true, uit) != Gemaakt::heel) {
    return {};
  }
  std::string tekst(uit.GetSize(), '\0');
  uit.CopyTo(tekst.data(), tekst.size());
  return tekst;
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
std::string metWareTelling(Band const& band, std::string tekst) {
  static_assert(frames == 0x1770);
  if (tekst.empty()) {
    return tekst;
  }
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

bool meetBand(Band const& band, std::string const& map) {
  std::string const wav = map + "/speex.wav";
  std::string const tekst = map + "/speex.c";
  std::string const terug = map + "/terug.wav";
  int const rate = SpeexBasis::standaardSampFreqs[static_cast<std::size_t>(band.formaat)];
  maakRuis(wav, rate, seconden);
  std::vector<short> samples(static_cast<std::size_t>(seconden) * static_cast<std::size_t>(rate));
  SndBestand::lees(wxFileName(wav))
      .leesItems(samples.data(), static_cast<sf_count_t>(samples.size()));
  std::ofstream(tekst) << metWareTelling(band, encodeer(band, wav));

  std::vector<Verbruik> const gemeten =
      meetOmBeurten(herhalingen, {[&] { return encodeer(band, wav).empty() ? 1 : 0; },
                                  [&] { return draaiLus(band, samples); },
                                  [&] { return decodeer(band, tekst, terug); }});
  sf_count_t const samplesTerug = SndBestand::lees(wxFileName(terug)).info().frames;
  if (!alleGeslaagd(gemeten) || samplesTerug != static_cast<sf_count_t>(samples.size())) {
    std::cerr << "bench: the Speex text of " << band.naam << " could not be measured\n";
    return false;
  }

  constexpr double doelLus = 1.03;
  constexpr double doelSnelheid = 100;
  double const verhouding = gemeten[0].seconden / gemeten[1].seconden;
  double const snelheid = seconden / gemeten[2].seconden;
  bool const licht =
      meld(verhouding <= doelLus,
           std::string("Speex text at ") + band.naam + ", cost against libspeex alone", verhouding,
           "<= 1.03");
  bool const snel = meld(snelheid >= doelSnelheid,
                         std::string("decoding Speex frames at ") + band.naam + ", times real time",
                         snelheid, ">= 100");
  return licht && snel;
}

}  // namespace

bool meetSpeex(std::string const& map) {
  // All of them, also behind one that misses.
  return std::count_if(banden.begin(), banden.end(), [&](Band const& band) {
           return meetBand(band, map);
         }) == static_cast<std::ptrdiff_t>(banden.size());
}
