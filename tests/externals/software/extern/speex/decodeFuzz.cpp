// Throws any text at the decoder. The first byte picks the band, the rest is the text. Whatever it
// holds, the decoding ends, with a WAV file that opens and holds whole frames.
#include <sndfile.h>
#include <wx/debug.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "tests/steun/fuzzDoel.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

void eis(bool voorwaarde, char const* wat) {
  if (!voorwaarde) {
    std::cerr << "decodeFuzz: " << wat << '\n';
    std::abort();
  }
}

void breekAf(wxString const& bestand, int regel, wxString const& /*functie*/,
             wxString const& voorwaarde, wxString const& bericht) {
  std::cerr << bestand.utf8_str() << ':' << regel << ": " << voorwaarde.utf8_str() << ' '
            << bericht.utf8_str() << '\n';
  std::abort();
}

// Takes what is logged, so that its text is still made, and drops it.
class StilLog : public wxLog {
 protected:
  void DoLogRecord(wxLogLevel /*niveau*/, wxString const& /*tekst*/,
                   wxLogRecordInfo const& /*info*/) override {}
};

// The toolkit and the folder of the two files, for the length of the process.
class Omgeving {
 public:
  Omgeving() : vorig(wxLog::SetActiveTarget(&log)) {
    eis(toolkit.IsOk(), "the toolkit does not start");
    wxSetAssertHandler(breekAf);
  }
  ~Omgeving() { static_cast<void>(wxLog::SetActiveTarget(nullptr)); }
  Omgeving(Omgeving const&) = delete;
  Omgeving& operator=(Omgeving const&) = delete;
  Omgeving(Omgeving&&) = delete;
  Omgeving& operator=(Omgeving&&) = delete;

  wxString pad(char const* naam) const { return wxString::FromUTF8(map.pad(naam).c_str()); }

  TijdelijkeMap map;

 private:
  wxInitializer toolkit;
  StilLog log;
  std::unique_ptr<wxLog> vorig;
};

void keurWav(std::string const& pad, SpeexDesktopDecoder const& decoder, SpeexBandFormaat band) {
  SF_INFO info{};
  std::unique_ptr<SNDFILE, int (*)(SNDFILE*)> const wav(sf_open(pad.c_str(), SFM_READ, &info),
                                                        sf_close);
  eis(wav != nullptr, "the WAV file does not open");
  eis(info.channels == 1, "the WAV file is not mono");
  eis(info.samplerate == decoder.geefSampFreq(), "the WAV file has another rate");
  eis(info.frames % decoder.geefFrameSize(band) == 0, "the WAV file ends within a frame");
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t aantal) {
  static Omgeving const omgeving;
  if (aantal == 0) {
    return 0;
  }
  constexpr int banden = 3;
  auto const band = static_cast<SpeexBandFormaat>(bytes[0] % banden);
  maakBestand(omgeving.map.pad("tekst.c"), std::string(bytes + 1, bytes + aantal));

  SpeexDesktopDecoder decoder(band, nullptr);
  unsigned long long fragmenten = 0;
  int const uitslag =
      decoder.decode(wxFileName(omgeving.pad("tekst.c")), wxFileName(omgeving.pad("uit.wav")),
                     fragmenten, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  eis(uitslag == SpeexDesktopDecoder::gelukt || uitslag == SpeexDesktopDecoder::pastNiet,
      "the decoder returns something else");
  keurWav(omgeving.map.pad("uit.wav"), decoder, band);
  return 0;
}
