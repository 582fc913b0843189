// The settings of the main window: what each control does to them, which controls are usable when,
// and the question at the end.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/log.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <array>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bedieningsRegels.h"
#include "audio/speex/encoder/toepassing/keuze.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"

// The update handlers run in every idle cycle, so they must stay cheap. They enable the windows
// themselves and leave the event alone.

void HoofdVenster::bestandGeladenHandler(wxUpdateUIEvent& /*event*/) {
  // The setting decides about the class, not the radio box: a declined Python choice never counts.
  bool const klasseOntbreekt =
      taalHeeftKlasse(instellingen->speexOutputLanguage) && klasseVeld->IsEmpty();
  Bediening const mag = bepaalBediening({bestandGeladen, gecodeerd, klasseOntbreekt});
  playMusicKnop->Enable(mag.bron);
  audioBoom->Enable(mag.bron);
  menuBalk->FindItem(ID_SPEEL_BRON)->Enable(mag.bron);
  wavSaveKnop->Enable(mag.inbedden);
  menuBalk->FindItem(ID_CODEER)->Enable(mag.coderen);
  encodeKnop->Enable(mag.coderen);
  menuBalk->FindItem(wxID_SAVE)->Enable(mag.resultaat);
  menuBalk->FindItem(ID_SPEEL_RESULTAAT)->Enable(mag.resultaat);
  speexSaveKnop->Enable(mag.resultaat);
  playEncodedKnop->Enable(mag.resultaat);
}

void HoofdVenster::encoderKeuzeHandler(wxUpdateUIEvent& /*event*/) {
  bool const speex = encoderTypeKeuze->GetSelection() == EncoderSpeex;
  std::array<wxWindow*, 12> const speexVensters{
      formaatKeuze, bitRateTypeKeuze, qualitySpin, complexitySpin, vadVakje,        agcVakje,
      denoiseVakje, perpenhVakje,     maxRateVeld, qualityLabel,   complexityLabel, maxRateLabel};
  for (wxWindow* const venster : speexVensters) {
    venster->Enable(speex);
  }
}

void HoofdVenster::headerInfoHandler(wxUpdateUIEvent& /*event*/) {
  int const taal = langImplKeuze->GetSelection();
  if (taal != UitvoerTaalC && !taalHeeftKlasse(taal)) {
    return;
  }
  klasseLabel->Enable(taalHeeftKlasse(taal));
  klasseVeld->Enable(taalHeeftKlasse(taal));
}

void HoofdVenster::formaatHandler(wxCommandEvent& /*event*/) {
  instellingen->speexFormat = formaatKeuze->GetSelection();
  gecodeerd = false;
}

void HoofdVenster::bitRateTypeHandler(wxCommandEvent& /*event*/) {
  instellingen->speexBitRateChoice = bitRateTypeKeuze->GetSelection();
  gecodeerd = false;
}

void HoofdVenster::qualityHandler(wxSpinEvent& /*event*/) {
  instellingen->speexQuality = static_cast<unsigned int>(qualitySpin->GetValue());
  gecodeerd = false;
}

void HoofdVenster::complexityHandler(wxSpinEvent& /*event*/) {
  instellingen->speexComplexity = static_cast<unsigned int>(complexitySpin->GetValue());
  gecodeerd = false;
}

void HoofdVenster::vadHandler(wxCommandEvent& /*event*/) {
  instellingen->speexVAC = vadVakje->GetValue();
  gecodeerd = false;
}

void HoofdVenster::agcHandler(wxCommandEvent& /*event*/) {
  instellingen->speexAGC = agcVakje->GetValue();
  gecodeerd = false;
}

void HoofdVenster::denoiseHandler(wxCommandEvent& /*event*/) {
  instellingen->speexDenoise = denoiseVakje->GetValue();
  gecodeerd = false;
}

void HoofdVenster::perpenhHandler(wxCommandEvent& /*event*/) {
  // Empty on purpose: the enhancement belongs to the decoder. The box reaches neither the settings
  // nor the encoder, so that it does not invalidate a result either.
}

void HoofdVenster::dacTypeHandler(wxCommandEvent& /*event*/) {
  instellingen->dacNumberOfBits = dacTypeKeuze->GetSelection();
  gecodeerd = false;
}

void HoofdVenster::encoderTypeHandler(wxCommandEvent& /*event*/) {
  // The kind of encoder is no setting: who needs it asks the radio box.
  gecodeerd = false;
}

void HoofdVenster::klasseIngaveHandler(wxCommandEvent& /*event*/) {
  klasseNaam = klasseVeld->GetValue();
  gecodeerd = false;
}

void HoofdVenster::maxRateHandler(wxCommandEvent& /*event*/) {
  unsigned long waarde = 0;
  if (maxRateVeld->GetValue().ToULong(&waarde)) {
    instellingen->speexBitRate = static_cast<unsigned int>(waarde);
  } else {
    wxLogError("(maxRateHandler) kon getal niet omzetten.");
  }
  gecodeerd = false;
}

void HoofdVenster::inclHeaderHandler(wxCommandEvent& /*event*/) {
  bool const zonder =
      !inclHeaderVakje->GetValue() &&
      wxMessageBox(
          _("It is not recommended to remove header information from the encoded output "
            "stream.\nYou will have a hard time using the audio data without knowledge of length "
            "and sampling frequency.\nDo you really want to do this?"),
          _("Header info absence"), wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION) == wxYES;
  instellingen->IncludeHeader = !zonder;
  inclHeaderVakje->SetValue(!zonder);
  gecodeerd = false;
}

void HoofdVenster::langImplHandler(wxCommandEvent& /*event*/) {
  int const taal = langImplKeuze->GetSelection();
  if (taal == UitvoerTaalC || taal == UitvoerTaalCPP) {
    instellingen->speexOutputLanguage = taal;
  } else if (taal == UitvoerTaalPython) {
    wxMessageBox(_("Unfortunately, at present Python encoding has not been implemented yet."),
                 _("Python encoding not available"), wxOK | wxICON_ERROR, this);
    kies(langImplKeuze, instellingen->speexOutputLanguage);
  }
  // Also after a declined Python: the result is given up although no setting changed.
  gecodeerd = false;
}

void HoofdVenster::onQuit(wxCommandEvent& event) {
  if (gecodeerd && !opgeslagen) {
    int const antwoord = wxMessageBox(
        _("Your encoded file wasn't saved.\nWould you like to save it?"),
        _("Encoded audio is not stored yet"), wxYES_NO | wxCANCEL | wxICON_QUESTION, this);
    if (antwoord == wxYES) {
      // A save dialog that the user cancels does not keep the program from ending.
      speexSaveHandler(event);
    } else if (antwoord != wxNO) {
      return;
    }
  }
  Close(true);
}
