// The encoding runs: from the loaded files to one text in the output stream and the text field.
#include <wx/checkbox.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/txtstrm.h>

#include <utility>

#include "audio/codec/logTekst.h"
#include "audio/codec/tijdelijkBestand.h"
#include "audio/codec/uitvoerBestand.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/coderingsRun.h"
#include "audio/speex/encoder/toepassing/speexConfig.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "externals/software/extern/speex/speexDesktop.h"
#include "numeriek/lopendGemiddelde.h"
#include "numeriek/percentage.h"

namespace {

constexpr long long sampleBits = 16;

}  // namespace

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
  Percentage verhouding;
  LopendGemiddelde gemiddelde(wavBestanden.size());
  CoderingsRun run;
  run.encoder = "Speex";
  run.typen = {"// extern const signed char ", "// static const signed char "};
  run.bereidVoor = [this] { maakSpeexEncoder(); };
  run.codeer = [&](wxFileName const& wav, bool metHeader) {
    if (speexEncoder->encode(wav, uitvoerStroom, metHeader, verhouding) !=
        SpeexDesktopEncoder::gelukt) {
      meldCoderenMislukt(wav);
      return false;
    }
    gemiddelde.voegToe(verhouding.geefWaarde());
    return true;
  };
  // Cut to a whole percentage, as the ratio of each file is.
  run.berichtStaart = [&] {
    return wxString::Format(_("\nwas on average encoded to %d%% of the original size"),
                            static_cast<int>(gemiddelde.geefGemiddelde()));
  };
  run.titel = "Speex encoding succeeded";
  run.status = _("Audio encoded in Speex embedded format");
  if (voerRunUit(run)) {
    speexEncoder.reset();
  }
}

void HoofdVenster::encodeADPCM(wxCommandEvent& /*event*/) {
  CoderingsRun run;
  run.encoder = "ADPCM";
  run.berichtStaart = [] {
    return wxString::Format(veiligFormaat(_("\nwas successfully encoded to ADPCM.")));
  };
  run.titel = "ADPCM encoding succeeded";
  run.status = _("Audio encoded in ADPCM embedded format");
  voerConverterRunUit<ADPCMEncoderOpties>(adpcmConverter, run);
}

void HoofdVenster::encodePCM(wxCommandEvent& /*event*/) {
  CoderingsRun run;
  run.encoder = "PCM";
  run.berichtStaart = [] {
    return wxString::Format(veiligFormaat(_("\nwas successfully encoded to PCM.")));
  };
  run.titel = "PCM encoding succeeded";
  run.status = _("Audio encoded in PCM embedded format");
  voerConverterRunUit<PCMEncoderOpties>(pcmConverter, run);
}

template <typename Opties>
Opties HoofdVenster::maakOpties() const {
  auto const taal = static_cast<decltype(Opties::taal)>(instellingen->speexOutputLanguage);
  return instellingen->speexOutputLanguage == UitvoerTaalC
             ? Opties(taal, geefBitShift())
             : Opties(taal, klasseNaam, geefBitShift());
}

// Of the converter nothing is made anew: what it remembers of earlier runs counts in this one.
template <typename Opties, typename Converter>
void HoofdVenster::voerConverterRunUit(Converter& converter, CoderingsRun run) {
  run.typen = {"// extern const unsigned char ", "// static const unsigned char "};
  run.bereidVoor = [&] { converter.zetOpties(maakOpties<Opties>()); };
  run.codeer = [&](wxFileName const& wav, bool metHeader) {
    converter.codeerBestand(wav, metHeader, uitvoerStroom);
    return true;
  };
  voerRunUit(run);
}

// Each run has an encoder of its own: the first frame of a run knows nothing of the run before.
void HoofdVenster::maakSpeexEncoder() {
  if (speexEncoder) {
    mislukteEncoders.push_back(std::move(speexEncoder));
  }
  SpeexEncodeConfig const opties =
      maakSpeexConfig(*instellingen, static_cast<unsigned int>(geefBitShift()));
  speexEncoder = std::make_unique<SpeexDesktopEncoder>(
      opties, instellingen->speexOutputLanguage == UitvoerTaalC ? SpeexEncoderOpties()
                                                                : SpeexEncoderOpties(klasseNaam));
}

void HoofdVenster::meldCoderenMislukt(wxFileName const& wav) {
  wxLogError(veiligFormaat(_("Could not encode ") + wav.GetFullName()));
  statusBalk->SetStatusText(_("Encoder error. Please check your settings"), 0);
}

long long HoofdVenster::geefDacBits() const {
  // A width that the configuration file made up counts as the full width of the samples.
  auto const index = static_cast<std::size_t>(instellingen->dacNumberOfBits);
  return index < DacAantalBits.size() ? DacAantalBits[index] : sampleBits;
}

unsigned long long HoofdVenster::geefBitShift() const {
  return static_cast<unsigned long long>(sampleBits - geefDacBits());
}

bool HoofdVenster::voerRunUit(CoderingsRun const& run) {
  tekstVeld->Clear();
  auto const aantal = static_cast<int>(wavBestanden.size());
  wxProgressDialog voortgang(_("Encoding progress"), _("Completion of encoding progress"), aantal,
                             this, wxPD_APP_MODAL | wxPD_AUTO_HIDE | wxPD_ELAPSED_TIME);
  // Moving the position back would leave the end of a longer former text behind.
  uitvoerStroom.GetOutputStreamBuffer()->ResetBuffer();
  uitvoerStroom.GetOutputStreamBuffer()->Truncate();

  run.bereidVoor();

  wxTextOutputStream tekst(uitvoerStroom);
  wxString const kopRegel =
      wxString::Format("/* %s encoding output of %d audio files \t\t*/\n\n", run.encoder, aantal);
  tekst.WriteString(
      runHoofd(kopRegel, instellingen->speexOutputLanguage, run.typen, klasseNaam, wavBestanden));
  for (int nummer = 1; nummer <= aantal; ++nummer) {
    tekst.WriteString(
        wxString::Format("/******* Start encoding file number %d \t\t*******/\n", nummer));
    wxFileName const wav(wavBestanden[static_cast<std::size_t>(nummer) - 1]);
    if (!run.codeer(wav, inclHeaderVakje->GetValue())) {
      // An earlier result stays marked as one, although its text has made place for this one's.
      return false;
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
  return true;
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
