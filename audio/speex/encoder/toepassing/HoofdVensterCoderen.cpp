// The encoding runs: from the loaded files to one text in the output stream and the text field.
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/radiobox.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>

#include "audio/codec/logTekst.h"
#include "audio/codec/tijdelijkBestand.h"
#include "audio/codec/uitvoerBestand.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "audio/speex/encoder/toepassing/vensterToezicht.h"
#include "audio/uitvoer/encoderSoort.h"

void HoofdVenster::encodeHandler(wxCommandEvent& event) {
  switch (encoderTypeKeuze->GetSelection()) {
    case EncoderSpeex:
      encodeSpeex(event);
      break;
    case EncoderADPCM:
      encodeADPCM(event);
      break;
    case EncoderPCM:
      encodePCM(event);
      break;
    default:
      break;
  }
}

void HoofdVenster::encodeSpeex(wxCommandEvent& /*event*/) {
  auto const maker = speexMakers.emplace(speexMakers.end());
  // Cut to a whole percentage, as the ratio of each file is.
  auto const staart = [maker] {
    return wxString::Format(_("\nwas on average encoded to %d%% of the original size"),
                            maker->geefGemiddelde());
  };
  if (codeer(*maker, "Speex encoding succeeded", _("Audio encoded in Speex embedded format"),
             staart)) {
    speexMakers.erase(maker);
  }
}

void HoofdVenster::encodeADPCM(wxCommandEvent& /*event*/) {
  ADPCMMaker maker(adpcmConverter);
  codeer(maker, "ADPCM encoding succeeded", _("Audio encoded in ADPCM embedded format"),
         [] { return wxString::Format(veiligFormaat(_("\nwas successfully encoded to ADPCM."))); });
}

void HoofdVenster::encodePCM(wxCommandEvent& /*event*/) {
  PCMMaker maker(pcmConverter);
  codeer(maker, "PCM encoding succeeded", _("Audio encoded in PCM embedded format"),
         [] { return wxString::Format(veiligFormaat(_("\nwas successfully encoded to PCM."))); });
}

bool HoofdVenster::codeer(FragmentMaker& maker, wxString const& titel, wxString const& status,
                          std::function<wxString()> const& berichtStaart) {
  Bezigheid nu(bezig);
  tekstVeld->Clear();
  VensterToezicht toezicht(this, _("Encoding progress"), _("Completion of encoding progress"),
                           wavBestanden.size(), *inclHeaderVakje);
  nu.beginRun();
  // Moving the position back would leave the end of a longer former text behind.
  uitvoerStroom.GetOutputStreamBuffer()->ResetBuffer();
  uitvoerStroom.GetOutputStreamBuffer()->Truncate();

  std::optional<wxString> const mislukt =
      voerRunUit({wavBestanden, *instellingen, klasseNaam}, maker, uitvoerStroom, toezicht);
  if (mislukt) {
    // An earlier result stays marked as one, although its text has made place for this one's.
    meldCoderenMislukt(wxFileName(*mislukt));
    return false;
  }

  kopieerNaarTekstVeld(uitvoerStroom);
  wxMessageBox(_("Audio data in\n") + wavDirectory + berichtStaart(), titel,
               wxOK | wxICON_INFORMATION, this);
  statusBalk->SetStatusText(status, 0);
  gecodeerd = true;
  opgeslagen = false;
  return true;
}

void HoofdVenster::meldCoderenMislukt(wxFileName const& wav) {
  wxLogError(veiligFormaat(_("Could not encode ") + wav.GetFullName()));
  statusBalk->SetStatusText(_("Encoder error. Please check your settings"), 0);
}

void HoofdVenster::kopieerNaarTekstVeld(wxMemoryOutputStream const& stroom) const {
  wxString const pad = maakTijdelijkBestand(speexBestand.GetName());
  if (pad.empty()) {
    // The toolkit has logged why. The text is safe in memory and can be saved from there.
    return;
  }
  UitvoerBestand bestand(pad, wxS_IWUSR);
  if (!bestand.isOpen()) {
    return;
  }
  bestand.schrijf(stroom);
  tekstVeld->LoadFile(pad, wxTEXT_TYPE_ANY);
  bestand.sluit();
}
