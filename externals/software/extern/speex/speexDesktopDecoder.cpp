#include "externals/software/extern/speex/speexDesktopDecoder.h"

#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/txtstrm.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <limits>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "audio/codec/sndBestand.h"
#include "externals/software/extern/speex/frameLezer.h"

namespace {

constexpr int hexadecimaal = 16;
// The most that a header field of two bytes can tell.
constexpr unsigned long maxVeld = 0xFFFF;
constexpr unsigned long long maxSamples = 1ULL << 28U;

// Nothing where there is no memory left for the holder of the file. A file that cannot be written
// comes back closed, and takes the samples without a word.
std::optional<SndBestand> openUitvoer(wxFileName const& uitvoer, int samplerate,
                                      unsigned int sfFormaat) {
  try {
    return SndBestand::schrijf(uitvoer, samplerate, 1, static_cast<int>(sfFormaat));
  } catch (std::bad_alloc const&) {
    return std::nullopt;
  }
}

void meldNietHeel(wxFileName const& wav) {
  wxLogError(_("Could not write the whole of %s"), wav.GetFullPath());
}

// A NUL among the characters reads like the end of the text; the stream below knows the difference.
bool isTenEinde(wxTextInputStream const& tekst) {
  return !tekst.GetInputStream().IsOk();
}

// Goes to behind the next "x". False where the text ends first.
bool zoekX(wxTextInputStream& tekst) {
  while (tekst.GetChar() != 'x') {
    if (isTenEinde(tekst)) {
      return false;
    }
  }
  return true;
}

}  // namespace

// The WAV file, and the block of the frame that was decoded last: a frame that gives no samples
// leaves it as it is, and it is written again.
struct SpeexDesktopDecoder::Uitvoer {
  std::optional<SndBestand> wav;
  std::vector<short> blok;
  unsigned long long geschreven = 0;

  // The sizes in a WAV header have 32 bits. This many samples fit at any width.
  bool isVol() const { return geschreven + blok.size() > maxSamples; }
  void schrijf() {
    wav->schrijfItems(blok.data(), static_cast<sf_count_t>(blok.size()));
    geschreven += blok.size();
  }
  // Closes the file, and looks whether all of it is there: what fails as the header is completed,
  // or later still, shows nowhere else.
  void sluit(wxFileName const& naam) {
    // One that the library could not open has no frames, and may be a WAV file all the same.
    bool const heleKop = wav->isOpen() && wav->voltooiKop();
    wav.reset();
    bool const heel =
        heleKop && SndBestand::lees(naam).info().frames >= static_cast<sf_count_t>(geschreven);
    // Without a name there was no place for it, as the toolkit has told.
    if (!heel && naam.IsOk()) {
      meldNietHeel(naam);
    }
  }
};

SpeexDesktopDecoder::SpeexDesktopDecoder(SpeexBandFormaat band, wxWindow* venster)
    : SpeexDecoder(band), ouder(venster) {}

int SpeexDesktopDecoder::decode(wxFileName const& invoer, wxFileName const& uitvoer,
                                unsigned long long& aantalFragmenten, unsigned int sfFormaat) {
  wxFileInputStream bestand(invoer.GetFullPath());
  std::optional<SndBestand> wav = openUitvoer(uitvoer, geefSampFreq(), sfFormaat);
  if (!wav) {
    meldNietHeel(uitvoer);
    return pastNiet;
  }
  Uitvoer uit{std::move(wav), std::vector<short>(frameSize)};
  aantalFragmenten = 0;
  if (!bestand.IsOk()) {
    return gelukt;
  }
  LeesBlok blok(bestand);
  FrameLezer tekst(blok);
  int const uitslag = leesFragmenten(tekst, uit, aantalFragmenten);
  uit.sluit(uitvoer);
  return uitslag;
}

int SpeexDesktopDecoder::leesFragmenten(FrameLezer& tekst, Uitvoer& uit,
                                        unsigned long long& aantalFragmenten) {
  for (wxChar teken = tekst.zoekBegin(); teken != 0; teken = tekst.zoekBegin()) {
    if (teken == '/') {
      // A comment, of either kind. What it holds, a "{" too, is no array.
      tekst.slaRegelOver();
    } else if (!leesFragment(tekst, uit, aantalFragmenten)) {
      return pastNiet;
    }
  }
  return gelukt;
}

void SpeexDesktopDecoder::leesHeader(wxTextInputStream& tekst, unsigned long& waarde) {
  if (!zoekX(tekst)) {
    return;
  }
  wxString const laag = tekst.ReadWord();
  if (!zoekX(tekst)) {
    return;
  }
  wxString const hoog = tekst.ReadWord();
  // Of 64 bits, whatever a long has.
  wxULongLong_t getal = waarde;
  (hoog + laag).ToULongLong(&getal, hexadecimaal);
  waarde = static_cast<unsigned long>(
      std::min<wxULongLong_t>(getal, std::numeric_limits<unsigned long>::max()));
}

unsigned char SpeexDesktopDecoder::leesHexWaarde(wxTextInputStream& tekst) {
  wxChar teken = tekst.GetChar();
  while (teken != 'x' && teken != 0) {
    teken = tekst.GetChar();
  }
  wxULongLong_t waarde = 0;
  return tekst.ReadWord().ToULongLong(&waarde, hexadecimaal) ? static_cast<unsigned char>(waarde)
                                                             : 0;
}

// Reads one array from behind its "{". False for one of another frequency.
bool SpeexDesktopDecoder::leesFragment(FrameLezer& tekst, Uitvoer& uit,
                                       unsigned long long& aantalFragmenten) {
  unsigned long frequentie = 0;
  unsigned long frames = 0;
  leesHeader(tekst, frequentie);
  leesHeader(tekst, frames);
  if (frequentie != geefSampFreq()) {
    return false;
  }
  ++aantalFragmenten;
  wxString regel = _("Fragment %d: sampling frequency %ld Hz, number of frames %ld");
  // A long has 32 bits on some systems.
  regel.Replace("%ld", "%" wxLongLongFmtSpec "d");
  wxLogMessage(regel, static_cast<int>(aantalFragmenten), static_cast<wxLongLong_t>(frequentie),
               static_cast<wxLongLong_t>(frames));
  for (unsigned long frame = 0; frame < frames; ++frame) {
    // A count above what two bytes hold comes from an edited text. It goes on while there is text,
    // but would fill the disk with the last block behind it.
    if ((frame >= maxVeld && isTenEinde(tekst)) || uit.isVol()) {
      break;
    }
    // Past the end of the array it is mostly an empty one.
    speex_bits_read_from(&bits, frameBuffer.data(), tekst.leesFrame(frameBuffer));
    speex_decode_int(decoderState.get(), &bits, uit.blok.data());
    uit.schrijf();
  }
  return true;
}
