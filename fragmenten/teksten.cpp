// Makes the texts of the example for the target out of the sample fragments, by the makers of
// the window and as it would save them for a DAC of 12 bits, in C:
//
//     fragmentTeksten FRAGMENTS FOLDER
//
// leaves pcm.c, adpcm.c, wav.c, speex8.c, speex16.c and speex32.c in FOLDER, which is made where it
// is not there. They bear the date of the first release, so that each build makes the same ones. An
// array has the name of the file it came from, so the fragments are copied there under a name that
// ends in their encoder. Ends with status 1 and a line about it where a file fails.
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/mstream.h>
#include <wx/utils.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "audio/codec/audioConfig.h"
#include "audio/codec/sndBestand.h"
#include "audio/codec/tekstMoment.h"
#include "audio/codec/wavFormaat.h"
#include "audio/uitvoer/speexMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"

namespace {

namespace fs = std::filesystem;

constexpr int dacBits = 12;
// 2026-11-21 12:00:00 UTC.
constexpr std::time_t moment = 1795262400;

struct Geluid {
  SF_INFO info{};
  std::vector<short> samples;
};

void eis(bool voorwaarde, std::string const& wat) {
  if (!voorwaarde) {
    std::cerr << "fragmentTeksten: " << wat << '\n';
    std::exit(EXIT_FAILURE);
  }
}

wxFileName wxPad(fs::path const& pad) {
  return {wxString::FromUTF8(pad.u8string())};
}

Geluid lees(fs::path const& pad) {
  SndBestand wav = SndBestand::lees(wxPad(pad));
  eis(wav.isOpen(), "cannot read " + pad.u8string());
  Geluid geluid{wav.info(), {}};
  geluid.samples.resize(static_cast<std::size_t>(geluid.info.frames));
  wav.leesItems(geluid.samples.data(), geluid.info.frames);
  return geluid;
}

void schrijf(fs::path const& pad, Geluid const& geluid, int formaat) {
  SF_INFO const& info = geluid.info;
  SndBestand wav = SndBestand::schrijf(wxPad(pad), info.samplerate, info.channels, formaat);
  auto const aantal = static_cast<sf_count_t>(geluid.samples.size());
  eis(wav.schrijfItems(geluid.samples.data(), aantal) == aantal, "cannot write " + pad.u8string());
}

// What the ADPCM encoder takes of a sample is its low byte, so the whole range is brought into it.
Geluid zacht(Geluid geluid) {
  constexpr int deler = 256;
  std::transform(geluid.samples.begin(), geluid.samples.end(), geluid.samples.begin(),
                 [](short sample) { return static_cast<short>(sample / deler); });
  return geluid;
}

class Teksten {
 public:
  Teksten(fs::path bron, fs::path doel) : fragmenten(std::move(bron)), map(std::move(doel)) {}

  void pcm() const {
    PCMMaker maker;
    maak(maker, eersteInstellingen(UitvoerTaalC, dacBits), "pcm.c",
         {kopie("ready", "_pcm", lees(bron("ready")), wavPcm16),
          kopie("chime", "_pcm", lees(bron("chime")), wavPcm16)});
  }

  void adpcm() const {
    ADPCMMaker maker;
    // The fragments are soft already.
    maak(maker, eersteInstellingen(UitvoerTaalC, sampleBits), "adpcm.c",
         {kopie("ready", "_adpcm", zacht(lees(bron("ready"))), wavPcm16),
          kopie("warning", "_adpcm", zacht(lees(bron("warning"))), wavPcm16)});
  }

  void wav() const {
    WAVMaker maker;
    maak(maker, eersteInstellingen(UitvoerTaalC, dacBits), "wav.c",
         {kopie("chime", "_wav", lees(bron("chime")), wavPcm16),
          kopie("alarm", "_wav", lees(bron("alarm")), wavAdpcm)});
  }

  void speex(SpeexBandFormaat band, std::vector<char const*> const& namen,
             std::string const& bestand) const {
    KestrolinConfig instellingen = eersteInstellingen(UitvoerTaalC, dacBits);
    instellingen.speexFormat = band;
    std::vector<wxFileName> wavs(namen.size());
    std::transform(namen.begin(), namen.end(), wavs.begin(), [this](char const* naam) {
      return kopie(naam, "_speex", lees(bron(naam)), wavPcm16);
    });
    SpeexMaker maker;
    maak(maker, instellingen, bestand, wavs);
  }

 private:
  fs::path bron(std::string const& naam) const { return fragmenten / (naam + ".wav"); }

  wxFileName kopie(std::string const& naam, std::string const& achtervoegsel, Geluid const& geluid,
                   int formaat) const {
    fs::path const pad = map / (naam + achtervoegsel + ".wav");
    schrijf(pad, geluid, formaat);
    return wxPad(pad);
  }

  void maak(FragmentMaker& maker, KestrolinConfig const& instellingen, std::string const& bestand,
            std::vector<wxFileName> const& wavs) const {
    wxMemoryOutputStream tekst;
    maker.begin(instellingen, wxString(), wavs.size());
    for (wxFileName const& wav : wavs) {
      eis(maker.maak(wav, true, tekst) == Gemaakt::heel,
          "cannot encode " + wav.GetFullPath().utf8_string());
    }
    bewaar(bestand, tekst);
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
  wxSetEnv("TMPDIR", wxString::FromUTF8(fs::absolute(beelden).u8string()));
  legTekstMomentVast(moment);
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
