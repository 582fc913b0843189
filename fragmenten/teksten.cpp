// Makes the texts of the example for the target out of the sample fragments, by the same classes as
// the window and as it would save them for a DAC of 12 bits, in C:
//
//     fragmentTeksten FRAGMENTS FOLDER
//
// leaves pcm.c, adpcm.c, wav.c, speex8.c, speex16.c and speex32.c in FOLDER, which is made where it
// is not there. An array has the name of the file it came from, so the fragments are copied there
// under a name that ends in their encoder. Ends with status 1 and a line about it where a file
// fails.
#include <sndfile.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/mstream.h>
#include <wx/utils.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/wavInbedding.h"
#include "externals/software/extern/speex/speexDesktopEncoder.h"
#include "numeriek/percentage.h"

namespace {

namespace fs = std::filesystem;

constexpr int dacBits = 12;
constexpr int volleBits = 16;
constexpr int wavPcm = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int wavIma = SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM;

struct Geluid {
  SF_INFO info{};
  std::vector<short> samples;
};

using Handvat = std::unique_ptr<SNDFILE, int (*)(SNDFILE*)>;

void eis(bool voorwaarde, std::string const& wat) {
  if (!voorwaarde) {
    std::cerr << "fragmentTeksten: " << wat << '\n';
    std::exit(EXIT_FAILURE);
  }
}

Geluid lees(fs::path const& pad) {
  Geluid geluid;
  Handvat const wav(sf_open(pad.c_str(), SFM_READ, &geluid.info), sf_close);
  eis(wav != nullptr, "cannot read " + pad.string());
  geluid.samples.resize(static_cast<std::size_t>(geluid.info.frames));
  sf_read_short(wav.get(), geluid.samples.data(), geluid.info.frames);
  return geluid;
}

void schrijf(fs::path const& pad, Geluid const& geluid, int formaat) {
  SF_INFO info = geluid.info;
  info.format = formaat;
  Handvat const wav(sf_open(pad.c_str(), SFM_WRITE, &info), sf_close);
  auto const aantal = static_cast<sf_count_t>(geluid.samples.size());
  eis(wav != nullptr && sf_write_short(wav.get(), geluid.samples.data(), aantal) == aantal,
      "cannot write " + pad.string());
}

// What the ADPCM encoder takes of a sample is its low byte, so the whole range is brought into it.
Geluid zacht(Geluid geluid) {
  constexpr int deler = 256;
  std::transform(geluid.samples.begin(), geluid.samples.end(), geluid.samples.begin(),
                 [](short sample) { return static_cast<short>(sample / deler); });
  return geluid;
}

wxFileName wxPad(fs::path const& pad) {
  return {wxString::FromUTF8(pad.string())};
}

class Teksten {
 public:
  Teksten(fs::path bron, fs::path doel) : fragmenten(std::move(bron)), map(std::move(doel)) {}

  void pcm() const {
    PCMDesktopConverter converter(PCMEncoderOpties(PCMTaalC, volleBits - dacBits));
    wxMemoryOutputStream tekst;
    for (char const* naam : {"ready", "chime"}) {
      converter.codeerBestand(kopie(naam, "_pcm", lees(bron(naam)), wavPcm), true, tekst);
    }
    bewaar("pcm.c", tekst);
  }

  void adpcm() const {
    ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
    wxMemoryOutputStream tekst;
    for (char const* naam : {"ready", "warning"}) {
      converter.codeerBestand(kopie(naam, "_adpcm", zacht(lees(bron(naam))), wavPcm), true, tekst);
    }
    bewaar("adpcm.c", tekst);
  }

  void wav() const {
    InbedOpties const opties{UitvoerTaalC, "", dacBits};
    wxMemoryOutputStream tekst;
    schrijfInbedding(kopie("chime", "_wav", lees(bron("chime")), wavPcm), opties, tekst);
    schrijfInbedding(kopie("alarm", "_wav", lees(bron("alarm")), wavIma), opties, tekst);
    bewaar("wav.c", tekst);
  }

  void speex(SpeexBandFormaat band, std::vector<char const*> const& namen,
             std::string const& bestand) const {
    // The settings of a first start.
    SpeexDesktopEncoder encoder(SpeexEncodeConfig(band, 8, 3, SpeexFixedBitrate, 5000,
                                                  volleBits - dacBits, true, true, true),
                                SpeexEncoderOpties());
    wxMemoryOutputStream tekst;
    for (char const* naam : namen) {
      Percentage verhouding;
      eis(encoder.encode(kopie(naam, "_speex", lees(bron(naam)), wavPcm), tekst, true,
                         verhouding) == SpeexDesktopEncoder::gelukt,
          std::string("cannot encode ") + naam);
    }
    bewaar(bestand, tekst);
  }

 private:
  fs::path bron(std::string const& naam) const { return fragmenten / (naam + ".wav"); }

  wxFileName kopie(std::string const& naam, std::string const& achtervoegsel, Geluid const& geluid,
                   int formaat) const {
    fs::path const pad = map / (naam + achtervoegsel + ".wav");
    schrijf(pad, geluid, formaat);
    return wxPad(pad);
  }

  void bewaar(std::string const& naam, wxMemoryOutputStream const& tekst) const {
    wxFileOutputStream bestand(wxPad(map / naam).GetFullPath());
    wxMemoryInputStream lezer(tekst);
    eis(bestand.IsOk() && bestand.Write(lezer).IsOk(), "cannot write " + naam);
  }

  fs::path fragmenten;
  fs::path map;
};

}  // namespace

int main(int aantal, char** woorden) {
  if (aantal != 3) {
    std::cerr << "usage: fragmentTeksten FRAGMENTS FOLDER\n";
    return 2;
  }
  wxInitializer const toolkit;
  // The embedding leaves the images behind that it makes, so it gets a temporary folder to go.
  fs::path const beelden = fs::path(woorden[2]) / "beelden";
  fs::create_directories(beelden);
  wxSetEnv("TMPDIR", wxString::FromUTF8(fs::absolute(beelden).string()));
  Teksten const teksten(woorden[1], woorden[2]);
  teksten.pcm();
  teksten.adpcm();
  teksten.wav();
  teksten.speex(SpeexNarrowband, {"ready", "warning"}, "speex8.c");
  teksten.speex(SpeexWideband, {"chime"}, "speex16.c");
  teksten.speex(SpeexUltraWideband, {"alarm"}, "speex32.c");
  fs::remove_all(beelden);
  return 0;
}
