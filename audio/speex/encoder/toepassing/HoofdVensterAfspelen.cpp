// Playback: of the loaded files, and of the encoded result as firmware would decode it.
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/radiobox.h>
#include <wx/sound.h>
#include <wx/statusbr.h>
#include <wx/treectrl.h>

#include <memory>
#include <utility>

#include "audio/codec/logTekst.h"
#include "audio/codec/uitvoerBestand.h"
#include "audio/codec/wavFormaat.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "audio/speex/encoder/toepassing/wavGrens.h"
#include "audio/uitvoer/encoderSoort.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "externals/software/extern/speex/speexDesktop.h"

namespace {

// What the status bar tells of a playback by a converter that counts nothing.
constexpr int geenTelling = 0;

// The sound of a loaded file, or null. One that cannot be played is passed over without a word, the
// toolkit's own included. What took the place of a file is not opened: the toolkit would wait for a
// named pipe, and ask for as much memory as a directory tells it has.
std::unique_ptr<wxSound> openBron(wxFileName const& wav) {
  if (wav.Exists() && !wav.FileExists()) {
    return nullptr;
  }
  wxLogNull const stil;
  auto geluid = std::make_unique<wxSound>(wav.GetFullPath(), false);
  bool const isGoed = geluid->IsOk() && eindigtInBestand(wav.GetFullPath());
  return isGoed ? std::move(geluid) : nullptr;
}

}  // namespace

void HoofdVenster::playMusicHandler(wxCommandEvent& /*event*/) {
  if (wavBestanden.empty()) {
    return;
  }
  Bezigheid const nu(bezig);
  wxTreeItemIdValue plaats = nullptr;
  wxTreeItemId knoop = audioBoom->GetFirstChild(audioBoom->GetRootItem(), plaats);
  for (wxString const& pad : wavBestanden) {
    wxFileName const wav(pad);
    std::unique_ptr<wxSound> const geluid = openBron(wav);
    if (!geluid) {
      continue;
    }
    // The search goes on where the last one ended. The files of a load stand in the tree in the
    // order of the dialog and are played in the order of their paths, so that it can run out; what
    // is left is played all the same.
    while (knoop.IsOk() && audioBoom->GetItemText(knoop) != wav.GetFullName()) {
      knoop = audioBoom->GetNextSibling(knoop);
    }
    speelBron(*geluid, knoop);
  }
}

// Plays to the end, with the file's line in bold where there is one.
void HoofdVenster::speelBron(wxSound const& geluid, wxTreeItemId const& knoop) {
  if (knoop.IsOk()) {
    audioBoom->EnsureVisible(knoop);
    audioBoom->SetItemBold(knoop, true);
    // Nothing else is painted until the sound has ended.
    audioBoom->Update();
  }
  geluid.Play(wxSOUND_SYNC);
  if (knoop.IsOk()) {
    audioBoom->SetItemBold(knoop, false);
  }
}

void HoofdVenster::playEncodedHandler(wxCommandEvent& event) {
  Bezigheid const nu(bezig);
  // The encoder that is chosen now decodes the text, whichever made it.
  switch (encoderTypeKeuze->GetSelection()) {
    case EncoderSpeex:
      playEncodedSpeex(event);
      break;
    case EncoderADPCM:
      playEncodedADPCM(event);
      break;
    case EncoderPCM:
      playEncodedPCM(event);
      break;
    default:
      break;
  }
}

void HoofdVenster::playEncodedSpeex(wxCommandEvent& /*event*/) {
  auto const decoder = std::make_unique<SpeexDesktopDecoder>(speexBandVan(*instellingen), this);
  speelResultaat("speexTmpBestand", [&decoder](wxFileName const& tekst, wxFileName const& wav) {
    unsigned long long aantal = 0;
    decoder->decode(tekst, wav, aantal, wavPcm16);
    return static_cast<int>(aantal);
  });
}

// The two converters below read binary images and are handed text. The first bytes of any text, "/*
// " and so on, count as the image's header. For ADPCM they ask for more memory than there is, and
// std::bad_alloc ends the program with its settings saved; for PCM they make a WAV file of some 2.7
// GB, which the toolkit turns away. Both stay.

void HoofdVenster::playEncodedADPCM(wxCommandEvent& /*event*/) {
  speelResultaat("adpcmTmpBestand", [this](wxFileName const& tekst, wxFileName const& wav) {
    adpcmConverter.decodeerBestand(tekst, wav);
    return geenTelling;
  });
}

void HoofdVenster::playEncodedPCM(wxCommandEvent& /*event*/) {
  speelResultaat("pcmTmpBestand", [this](wxFileName const& tekst, wxFileName const& wav) {
    pcmConverter.decodeerBestand(tekst, wav);
    return geenTelling;
  });
}

void HoofdVenster::speelResultaat(
    wxString const& voorvoegsel,
    std::function<int(wxFileName const& tekst, wxFileName const& wav)> const& decodeer) {
  wxFileName const tekst(wxFileName::CreateTempFileName(voorvoegsel));
  wxFileName const wav(wxFileName::CreateTempFileName("wavTmpBestand"));
  UitvoerBestand tekstBestand(tekst.GetFullPath(), wxS_IWUSR);
  UitvoerBestand(wav.GetFullPath(), wxS_IWUSR).sluit();
  // What could not be created has been logged by the toolkit, and makes no sound.
  tekstBestand.schrijf(uitvoerStroom);
  int const aantal = decodeer(tekst, wav);
  wxSound const geluid(wav.GetFullPath(), false);
  if (geluid.IsOk()) {
    // Whatever was decoded, the text speaks of Speex.
    statusBalk->SetStatusText(
        wxString::Format(_("Decoded %d audio fragments from Speex data are now playing."), aantal),
        0);
    geluid.Play(wxSOUND_ASYNC);
    // The sound has only just begun. It goes on after this handler and its wxSound.
    statusBalk->SetStatusText(_("Finished playing decoded audio fragments."), 0);
  } else {
    wxLogError(veiligFormaat(_("Could not decode and play encoded audio fragments.")));
    statusBalk->SetStatusText(_("Error playing decoded audio fragments."), 0);
  }
  tekstBestand.sluit();
}
