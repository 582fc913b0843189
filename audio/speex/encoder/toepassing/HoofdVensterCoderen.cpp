// The encoding runs: from the loaded files to one text in the output stream and the text field.
#include <wx/checkbox.h>
#include <wx/file.h>
#include <wx/intl.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/txtstrm.h>

#include "audio/codec/logTekst.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/coderingsRun.h"
#include "audio/speex/encoder/toepassing/stroomKopie.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"

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

// The Speex and ADPCM runs come with their encoders.
void HoofdVenster::encodeSpeex(wxCommandEvent& /*event*/) {}
void HoofdVenster::encodeADPCM(wxCommandEvent& /*event*/) {}

void HoofdVenster::encodePCM(wxCommandEvent& /*event*/) {
  int const taal = instellingen->speexOutputLanguage;
  pcmConverter.zetOpties(taal == UitvoerTaalC ? PCMEncoderOpties(PCMTaalC, geefBitShift())
                                              : PCMEncoderOpties(static_cast<PCMEncoderTaal>(taal),
                                                                 klasseNaam, geefBitShift()));
  voerRunUit(
      {wxString::Format("/* PCM encoding output of %d audio files \t\t*/\n\n",
                        static_cast<int>(wavBestanden.size())),
       {"// extern const unsigned char ", "// static const unsigned char "},
       [this](wxFileName const& wav, bool metHeader) {
         pcmConverter.codeerBestand(wav, metHeader, uitvoerStroom);
         return true;
       },
       [] { return wxString::Format(veiligFormaat(_("\nwas successfully encoded to PCM."))); },
       "PCM encoding succeeded",
       _("Audio encoded in PCM embedded format")});
}

unsigned long long HoofdVenster::geefBitShift() const {
  constexpr long long sampleBits = 16;
  // A width that the configuration file made up counts as the full width of the samples.
  auto const index = static_cast<std::size_t>(instellingen->dacNumberOfBits);
  long long const dacBits = index < DacAantalBits.size() ? DacAantalBits[index] : sampleBits;
  return static_cast<unsigned long long>(sampleBits - dacBits);
}

void HoofdVenster::voerRunUit(CoderingsRun const& run) {
  tekstVeld->Clear();
  auto const aantal = static_cast<int>(wavBestanden.size());
  wxProgressDialog voortgang(_("Encoding progress"), _("Completion of encoding progress"), aantal,
                             this, wxPD_APP_MODAL | wxPD_AUTO_HIDE | wxPD_ELAPSED_TIME);
  // Moving the position back would leave the end of a longer former text behind.
  uitvoerStroom.GetOutputStreamBuffer()->ResetBuffer();
  uitvoerStroom.GetOutputStreamBuffer()->Truncate();

  wxTextOutputStream tekst(uitvoerStroom);
  tekst.WriteString(runHoofd(run.kopRegel, instellingen->speexOutputLanguage, run.typen, klasseNaam,
                             wavBestanden));
  for (int nummer = 1; nummer <= aantal; ++nummer) {
    tekst.WriteString(
        wxString::Format("/******* Start encoding file number %d \t\t*******/\n", nummer));
    wxFileName const wav(wavBestanden[static_cast<std::size_t>(nummer) - 1]);
    if (!run.codeer(wav, inclHeaderVakje->GetValue())) {
      return;
    }
    tekst.WriteString(
        wxString::Format("/******* Stop encoding file number %d \t\t*******/\n\n", nummer));
    // One behind: the bar never reaches its end, so that it stays until the user has seen the
    // message.
    voortgang.Update(nummer - 1, wxEmptyString);
  }

  kopieerNaarTekstVeld(uitvoerStroom);
  wxMessageBox(_("Audio data in\n") + wavDirectory + run.berichtStaart(), run.titel,
               wxOK | wxICON_INFORMATION, this);
  statusBalk->SetStatusText(run.status, 0);
  gecodeerd = true;
  opgeslagen = false;
}

void HoofdVenster::kopieerNaarTekstVeld(wxMemoryOutputStream const& stroom) const {
  wxString const pad = wxFileName::CreateTempFileName(speexBestand.GetName());
  wxFile bestand;
  if (pad.empty() || !bestand.Create(pad, true, wxS_IWUSR)) {
    // The toolkit has logged why. The text is safe in memory and can be saved from there.
    return;
  }
  kopieer(stroom, bestand);
  tekstVeld->LoadFile(pad, wxTEXT_TYPE_ANY);
  bestand.Close();
}
