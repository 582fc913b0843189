// Loading of audio files: only their headers are read here. Whoever needs samples opens the files
// again by path.
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/spinctrl.h>
#include <wx/statusbr.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include <array>

#include "audio/codec/logTekst.h"
#include "audio/codec/sndBestand.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/sleepDoel.h"
#include "audio/uitvoer/wavKeuring.h"
#include "externals/desktop/sleepDoor.h"

namespace {

void meldAfgewezen(wxFileName const& bestand) {
  wxLogError(
      veiligFormaat(bestand.GetFullName() +
                    _(" cannot be loaded because it isn't a WAV PCM/IMA ADPCM S16 8,16,32 kHz "
                      "format audio file")));
}

// With the low 32 bits of the count, as an unsigned number. The text's conversion is that of a
// long, which has no more bits than that on some systems, and a sign.
wxString framesRegel(sf_count_t aantal) {
  wxString regel = _("frames     : %ld");
  regel.Replace("%ld", wxString::Format("%u", static_cast<unsigned int>(aantal)));
  return regel;
}

}  // namespace

void HoofdVenster::wavOpenHandler(wxCommandEvent& /*event*/) {
  Bezigheid const nu(bezig);
  // The dialog offers MP3 files, which are turned away afterwards.
  wxFileDialog dialoog(this, _("Open an Audio file"), wavDirectory, wxEmptyString,
                       "WAV Files (*.wav)|*.wav|MP3 Files (*mp3)|*.mp3",
                       wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_MULTIPLE | wxFD_CHANGE_DIR);
  if (dialoog.ShowModal() != wxID_OK) {
    return;
  }
  wxArrayString paden;
  dialoog.GetPaths(paden);
  laadGekozen(paden);
}

void HoofdVenster::laadGekozen(wxArrayString paden) {
  if (!paden.empty()) {
    // The dialog's own directory is the one that it shows. A typed path need not lie there, and a
    // file chosen from the recent ones has none there.
    wavDirectory = wxFileName(paden[0]).GetPath();
  }
  openWavFiles(paden);
}

// The text field takes drops itself, even though nothing can be typed there.
void HoofdVenster::neemSleepbestanden() {
  auto const neem = [this](wxArrayString const& paden) { return laadGesleept(paden); };
  for (wxWindow* const doel : std::array<wxWindow*, 3>{this, tekstVeld, statusBalk}) {
    doel->SetDropTarget(new SleepDoel(neem));
  }
  for (wxWindow* const veld :
       std::array<wxWindow*, 4>{klasseVeld, maxRateVeld, qualitySpin, complexitySpin}) {
    geefBestandenDoor(*veld);
  }
}

bool HoofdVenster::laadGesleept(wxArrayString const& paden) {
  if (bezig.isBezig() || paden.empty()) {
    return false;
  }
  // Whoever drops them waits until this has returned, and a question may come.
  CallAfter([this, paden] {
    Bezigheid const nu(bezig);
    laadGekozen(paden);
    // As the dialog does: the first save begins here.
    wxSetWorkingDirectory(wavDirectory);
  });
  return true;
}

void HoofdVenster::oudBestandLadenHandler(wxCommandEvent& event) {
  auto const index = static_cast<std::size_t>(event.GetId() - wxID_FILE1);
  if (index >= bestandGeschiedenis.GetCount()) {
    return;
  }
  Bezigheid const nu(bezig);
  wxArrayString paden;
  paden.Add(bestandGeschiedenis.GetHistoryFile(index));
  openWavFiles(paden);
}

void HoofdVenster::openWavFiles(wxArrayString& paden) {
  // bestandGeladen stays as it is: after a load without one usable file the window still counts as
  // loaded if it was, with an empty list.
  audioBoom->DeleteAllItems();
  wavBestanden.Clear();
  audioBoom->AddRoot(_("Audio Files"));
  std::size_t i = 0;
  while (i < paden.size()) {
    wxString const pad = paden[i];
    wxFileName const bestand(pad);
    SndBestand const wav = SndBestand::lees(bestand);
    SF_INFO const info = wav.info();
    if (!isBruikbaar(info)) {
      meldAfgewezen(bestand);
      paden.Remove(pad);
      continue;
    }
    wav.meldGebrek();
    BestandKnoop const knoop = toonInBoom(bestand, info);
    if (!neemBandOver(i, info.samplerate)) {
      bestandGeladen = false;
      return;
    }
    toonFormaat(knoop, info);
    wavBestanden.Add(pad);
    bestandGeschiedenis.AddFileToHistory(pad);
    bestandGeladen = true;
    ++i;
  }
  if (bestandGeladen) {
    geefResultaatOp();
    statusBalk->SetStatusText(_("Audio files loaded"), 0);
  }
}

HoofdVenster::BestandKnoop HoofdVenster::toonInBoom(wxFileName const& bestand,
                                                    SF_INFO const& info) const {
  wxString const naam = bestand.GetFullName();
  wxTreeItemId const knoop = audioBoom->AppendItem(audioBoom->GetRootItem(), naam);
  wxTreeItemId const frames = audioBoom->AppendItem(knoop, _("frames:"));
  wxTreeItemId const samplerate = audioBoom->AppendItem(knoop, _("samplerate"));
  wxTreeItemId const kanalen = audioBoom->AppendItem(knoop, _("channels:"));
  wxTreeItemId const formaat = audioBoom->AppendItem(knoop, _("format:"));
  // This node never gets a value.
  audioBoom->AppendItem(knoop, _("sections:"));
  wxTreeItemId const seekable = audioBoom->AppendItem(knoop, _("seekable:"));
  audioBoom->SetItemText(knoop, naam);
  audioBoom->SetItemText(frames, framesRegel(info.frames));
  audioBoom->SetItemText(samplerate, wxString::Format(_("samplerate : %d"), info.samplerate));
  audioBoom->SetItemText(kanalen, wxString::Format(_("channels   : %d"), info.channels));
  return {formaat, seekable};
}

void HoofdVenster::toonFormaat(BestandKnoop const& knoop, SF_INFO const& info) const {
  audioBoom->SetItemText(knoop.formaat, isAdpcm(info) ? _("format     : WAV 4 Bit IMA ADPCM")
                                                      : _("format     : WAV S16 PCM"));
  // The line is called seekable and shows the channels.
  audioBoom->SetItemText(knoop.seekable, wxString::Format(_("seekable   : %d"), info.channels));
}

bool HoofdVenster::neemBandOver(std::size_t index, int samplerate) {
  if (index == 0) {
    instellingen->speexFormat = bandVoorFrequentie(samplerate);
    formaatKeuze->SetSelection(instellingen->speexFormat);
  }
  BandOordeel const oordeel = keurBand(samplerate, instellingen->speexFormat);
  if (oordeel == BandOordeel::wijktAf) {
    wxMessageBox(
        _("Cannot convert multiple files with different sampling frequencies.\nPlease convert your "
          "audio files to identical sampling frequencies."),
        _("Multiple sampling frequencies not supported"), wxCLOSE | wxICON_ERROR, this);
  }
  return oordeel == BandOordeel::past;
}
