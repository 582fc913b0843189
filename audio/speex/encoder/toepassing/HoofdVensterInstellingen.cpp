// The settings of the main window: what each control does to them, and which controls are usable
// when.
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

#include <algorithm>
#include <array>
#include <iterator>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bedieningsRegels.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/keuze.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "audio/uitvoer/encoderSoort.h"

// The update handlers run in every idle cycle, so they must stay cheap. They enable the windows
// themselves and leave the event alone.

void HoofdVenster::bestandGeladenHandler(wxUpdateUIEvent& /*event*/) {
  // The setting decides about the class, not the radio box: a declined Python choice never counts.
  bool const klasseOntbreekt =
      uitvoerTaalRij(instellingen->speexOutputLanguage).vraagtKlasse && klasseVeld->IsEmpty();
  Bediening const mag = bepaalBediening({bestandGeladen, gecodeerd, klasseOntbreekt});
  wxWindow* const hadFocus = FindFocus();
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
  geefFocusDoor(hadFocus);
}

// A control that can no longer be used leaves the keyboard without a place: typed keys go nowhere.
void HoofdVenster::geefFocusDoor(wxWindow const* hadFocus) {
  if (hadFocus == nullptr || hadFocus->IsThisEnabled() || hadFocus->GetParent() != paneel) {
    return;
  }
  // What a user wants next: to save what was encoded, to encode what was loaded or changed, or else
  // to open files.
  std::array<wxButton*, 3> const volgende{speexSaveKnop, encodeKnop, wavOpenKnop};
  (*std::find_if(volgende.begin(), std::prev(volgende.end()), [](wxButton const* knop) {
    return knop->IsThisEnabled();
  }))->SetFocus();
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
  UitvoerTaalRij const* const taal = zoekUitvoerTaal(langImplKeuze->GetSelection());
  if (taal == nullptr) {
    return;
  }
  klasseLabel->Enable(taal->vraagtKlasse);
  klasseVeld->Enable(taal->vraagtKlasse);
}

void HoofdVenster::geefResultaatOp() {
  gecodeerd = false;
}

void HoofdVenster::formaatHandler(wxCommandEvent& /*event*/) {
  instellingen->speexFormat = formaatKeuze->GetSelection();
  geefResultaatOp();
}

void HoofdVenster::bitRateTypeHandler(wxCommandEvent& /*event*/) {
  instellingen->speexBitRateChoice = bitRateTypeKeuze->GetSelection();
  geefResultaatOp();
}

void HoofdVenster::qualityHandler(wxSpinEvent& /*event*/) {
  instellingen->speexQuality = static_cast<unsigned int>(qualitySpin->GetValue());
  geefResultaatOp();
}

void HoofdVenster::complexityHandler(wxSpinEvent& /*event*/) {
  instellingen->speexComplexity = static_cast<unsigned int>(complexitySpin->GetValue());
  geefResultaatOp();
}

void HoofdVenster::vadHandler(wxCommandEvent& /*event*/) {
  instellingen->speexVAC = vadVakje->GetValue();
  geefResultaatOp();
}

void HoofdVenster::agcHandler(wxCommandEvent& /*event*/) {
  instellingen->speexAGC = agcVakje->GetValue();
  geefResultaatOp();
}

void HoofdVenster::denoiseHandler(wxCommandEvent& /*event*/) {
  instellingen->speexDenoise = denoiseVakje->GetValue();
  geefResultaatOp();
}

void HoofdVenster::perpenhHandler(wxCommandEvent& /*event*/) {
  // Empty on purpose: the enhancement belongs to the decoder. The box reaches neither the settings
  // nor the encoder, so that it does not invalidate a result either.
}

void HoofdVenster::dacTypeHandler(wxCommandEvent& /*event*/) {
  instellingen->dacNumberOfBits = dacTypeKeuze->GetSelection();
  geefResultaatOp();
}

void HoofdVenster::encoderTypeHandler(wxCommandEvent& /*event*/) {
  // The kind of encoder is no setting: who needs it asks the radio box.
  geefResultaatOp();
}

void HoofdVenster::klasseIngaveHandler(wxCommandEvent& /*event*/) {
  klasseNaam = klasseVeld->GetValue();
  geefResultaatOp();
}

void HoofdVenster::maxRateHandler(wxCommandEvent& /*event*/) {
  unsigned long waarde = 0;
  if (maxRateVeld->GetValue().ToULong(&waarde)) {
    instellingen->speexBitRate = static_cast<unsigned int>(waarde);
  } else {
    wxLogError("(maxRateHandler) kon getal niet omzetten.");
  }
  geefResultaatOp();
}

void HoofdVenster::inclHeaderHandler(wxCommandEvent& /*event*/) {
  Bezigheid const nu(bezig);
  bool const zonder =
      !inclHeaderVakje->GetValue() &&
      wxMessageBox(
          _("It is not recommended to remove header information from the encoded output "
            "stream.\nYou will have a hard time using the audio data without knowledge of length "
            "and sampling frequency.\nDo you really want to do this?"),
          _("Header info absence"), wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION) == wxYES;
  instellingen->IncludeHeader = !zonder;
  inclHeaderVakje->SetValue(!zonder);
  geefResultaatOp();
}

void HoofdVenster::langImplHandler(wxCommandEvent& /*event*/) {
  Bezigheid const nu(bezig);
  UitvoerTaalRij const* const taal = zoekUitvoerTaal(langImplKeuze->GetSelection());
  if (taal != nullptr && heeftArrays(*taal)) {
    instellingen->speexOutputLanguage = taal->nummer;
  } else if (taal != nullptr) {
    wxMessageBox(_("Unfortunately, at present Python encoding has not been implemented yet."),
                 _("Python encoding not available"), wxOK | wxICON_ERROR, this);
    kies(langImplKeuze, instellingen->speexOutputLanguage);
  }
  // Also after a declined Python: the result is given up although no setting changed.
  geefResultaatOp();
}
