#include "audio/speex/encoder/toepassing/HoofdVenster.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/font.h>
#include <wx/imagxpm.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include <algorithm>
#include <vector>

#include "audio/codec/hartslag.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "audio/speex/encoder/toepassing/keuze.h"
#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "audio/uitvoer/encoderSoort.h"
#include "audio/uitvoer/instellingenBestand.h"
#include "externals/desktop/nooitSmaller.h"
#include "externals/desktop/sneltoetsen.h"
#include "externals/desktop/tekstVeld.h"
#include "numeriek/configGetal.h"

wxBEGIN_EVENT_TABLE(HoofdVenster, wxFrame)
  EVT_MENU(wxID_OPEN, HoofdVenster::wavOpenHandler)
  EVT_MENU(wxID_SAVE, HoofdVenster::speexSaveHandler)
  EVT_MENU(ID_TAAL, HoofdVenster::taalHandler)
  EVT_MENU(wxID_EXIT, HoofdVenster::onQuit)
  EVT_MENU(ID_SPEEL_BRON, HoofdVenster::playMusicHandler)
  EVT_MENU(ID_CODEER, HoofdVenster::encodeHandler)
  EVT_MENU(ID_SPEEL_RESULTAAT, HoofdVenster::playEncodedHandler)
  EVT_MENU(wxID_ABOUT, HoofdVenster::onAbout)
  EVT_BUTTON(wxID_OPEN, HoofdVenster::wavOpenHandler)
  EVT_BUTTON(ID_SPEEL_BRON, HoofdVenster::playMusicHandler)
  EVT_BUTTON(wxID_SAVEAS, HoofdVenster::wavSaveHandler)
  EVT_CHOICE(ID_FORMAAT, HoofdVenster::formaatHandler)
  EVT_CHOICE(ID_BITRATE_TYPE, HoofdVenster::bitRateTypeHandler)
  EVT_SPINCTRL(ID_QUALITY, HoofdVenster::qualityHandler)
  EVT_SPINCTRL(ID_COMPLEXITY, HoofdVenster::complexityHandler)
  EVT_CHECKBOX(ID_VAD, HoofdVenster::vadHandler)
  EVT_CHECKBOX(ID_AGC, HoofdVenster::agcHandler)
  EVT_CHECKBOX(ID_DENOISE, HoofdVenster::denoiseHandler)
  EVT_CHECKBOX(ID_PERPENH, HoofdVenster::perpenhHandler)
  EVT_TEXT_ENTER(ID_MAX_RATE, HoofdVenster::maxRateHandler)
  EVT_RADIOBOX(ID_ENCODER_TYPE, HoofdVenster::encoderTypeHandler)
  EVT_RADIOBOX(ID_LANG_IMPL, HoofdVenster::langImplHandler)
  EVT_TEXT(ID_KLASSE, HoofdVenster::klasseIngaveHandler)
  EVT_CHECKBOX(ID_INCL_HEADER, HoofdVenster::inclHeaderHandler)
  EVT_CHOICE(ID_DAC_TYPE, HoofdVenster::dacTypeHandler)
  EVT_BUTTON(ID_CODEER, HoofdVenster::encodeHandler)
  EVT_BUTTON(wxID_SAVE, HoofdVenster::speexSaveHandler)
  EVT_BUTTON(ID_SPEEL_RESULTAAT, HoofdVenster::playEncodedHandler)
  EVT_BUTTON(wxID_EXIT, HoofdVenster::onQuit)
  EVT_MENU_RANGE(wxID_FILE1, wxID_FILE9, HoofdVenster::oudBestandLadenHandler)
  EVT_UPDATE_UI(wxID_OPEN, HoofdVenster::bestandGeladenHandler)
  EVT_UPDATE_UI(ID_LANG_IMPL, HoofdVenster::headerInfoHandler)
  EVT_UPDATE_UI(ID_ENCODER_TYPE, HoofdVenster::encoderKeuzeHandler)
wxEND_EVENT_TABLE()

namespace {

constexpr std::size_t geschiedenisLengte = 9;
constexpr char const* wavDirectorySleutel = "wavDirectory";
constexpr char const* speexDirectorySleutel = "speexDirectory";
constexpr char const* wavFileSleutel = "wavFile";
constexpr char const* speexFileSleutel = "speexFile";

// What the controls show before the settings reach them, and keep where those are out of range.
constexpr KestrolinConfig eersteStart;

// The home directory without a separator at its end, so that its last part can name a file. It is
// kept so, shown so in messages, and written so into the configuration.
wxString geefThuis() {
  wxString thuis = wxFileName(wxGetHomeDir()).GetFullPath();
  while (thuis.length() > 1 && wxFileName::IsPathSeparator(thuis.Last())) {
    thuis.RemoveLast();
  }
  return thuis;
}

wxChoice* maakKeuze(wxWindow* ouder, int id, std::vector<wxString> const& rijen) {
  return new wxChoice(ouder, id, wxDefaultPosition, wxDefaultSize, static_cast<int>(rijen.size()),
                      rijen.data());
}

// In a fixed-width font, so that rows of bytes stand in columns.
wxTextCtrl* maakTekstVeld(wxWindow* ouder) {
  auto* const veld = new TekstVeld(ouder, ID_TEKST, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                   wxTE_MULTILINE | wxTE_READONLY);
  wxFont letters = veld->GetFont();
  letters.SetFamily(wxFONTFAMILY_TELETYPE);
  veld->SetFont(letters);
  veld->zetNaDeel(klop);
  return veld;
}

}  // namespace

HoofdVenster::HoofdVenster(wxWindow* parent, int id, wxString const& title, wxPoint const& pos,
                           wxSize const& size, long style)
    : wxFrame(parent, id, title, pos, size, style),
      instellingen(&wxGetApp().geefInstellingen()),
      config(wxGetApp().geefAppConfig()),
      bestandGeschiedenis(geschiedenisLengte, wxID_FILE1),
      adpcmConverter(ADPCMEncoderOpties(ADPCMTaalC, 0)),
      pcmConverter(PCMEncoderOpties(PCMTaalC, 0)) {
  paneel =
      new wxPanel(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxNO_BORDER);
  klasseOptiesBox = new wxStaticBox(paneel, wxID_ANY, "C++ / Python  options");
  codeGeneratieBox = new wxStaticBox(paneel, wxID_ANY, "Code generation");
  speexOptiesBox = new wxStaticBox(paneel, wxID_ANY, "Speex options");
  maakMenus();
  statusBalk = static_cast<StatusBalk*>(CreateStatusBar(1, 0, 0));
  maakBronControls();
  maakSpeexControls();
  maakCodeControls();
  set_properties();
  do_layout();
  SetBackgroundStyle(wxBG_STYLE_SYSTEM);
  neemSleepbestanden();
  leesConfiguratie();
  toonInstellingen();
  wijsDeWeg();
  zetTips();
}

HoofdVenster::~HoofdVenster() {
  config->SetPath(vensterPad);
  config->Write(wavDirectorySleutel, wavDirectory);
  config->Write(speexDirectorySleutel, speexDirectory);
  config->Write(wavFileSleutel, wavFile);
  config->Write(speexFileSleutel, speexFile);
  config->Write(klasseNaamSleutel, klasseNaam);
  config->Write(encoderSoortSleutel, encoderTypeKeuze->GetSelection());
  bestandGeschiedenis.Save(*config);
}

void HoofdVenster::maakMenus() {
  menuBalk = new wxMenuBar;
  auto* bestandMenu = new wxMenu;
  geschiedenisMenu = new wxMenu;
  auto* speexMenu = new wxMenu;

  geschiedenisMenu->Append(ID_RECENT_KOP, "Recently loaded files");
  bestandMenu->Append(wxID_OPEN, "Open");
  bestandMenu->Append(ID_RECENT_MENU, "Recent Files .....", geschiedenisMenu);
  bestandMenu->Append(wxID_SAVE, "Save");
  bestandMenu->AppendSeparator();
  bestandMenu->Append(ID_TAAL, "&Language");
  bestandMenu->AppendSeparator();
  bestandMenu->Append(wxID_EXIT, "Exit");
  menuBalk->Append(bestandMenu, "&File");

  speexMenu->Append(ID_SPEEL_BRON, "Play Source Audio\tCtrl+K");
  speexMenu->Append(ID_CODEER, "Encode\tCtrl+E");
  speexMenu->Append(ID_SPEEL_RESULTAAT, "Play Encoded\tCtrl+L");
  speexMenu->Append(wxID_ABOUT, "About");
  menuBalk->Append(speexMenu, "&Speex");
  SetMenuBar(menuBalk);
  zetSneltoetsen(*this);
}

void HoofdVenster::maakBronControls() {
  wavOpenKnop = new wxButton(paneel, wxID_OPEN);
  audioBoom = new wxTreeCtrl(paneel, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                             wxTR_HAS_BUTTONS | wxTR_NO_LINES | wxTR_LINES_AT_ROOT |
                                 wxTR_FULL_ROW_HIGHLIGHT | wxSUNKEN_BORDER);
  playMusicKnop = new wxButton(paneel, ID_SPEEL_BRON, "Play WAV Files");
  wavSaveKnop = new wxButton(paneel, wxID_SAVEAS);
}

void HoofdVenster::maakSpeexControls() {
  auto const maakSpin = [this](int id, unsigned int waarde) {
    return new NooitSmaller<wxSpinCtrl>(paneel, id, wxString::Format("%u", waarde),
                                        wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 0,
                                        speexHoogsteNiveau);
  };
  formaatKeuze = maakKeuze(paneel, ID_FORMAAT, {speexBandNamen.begin(), speexBandNamen.end()});
  bitRateTypeKeuze =
      maakKeuze(paneel, ID_BITRATE_TYPE, {"Fixed Bitrate", "Variable Bitrate", "Average Bitrate"});
  qualityLabel = new wxStaticText(paneel, wxID_ANY, "Quality:");
  qualitySpin = maakSpin(ID_QUALITY, eersteStart.speexQuality);
  complexityLabel = new wxStaticText(paneel, wxID_ANY, "Complexity:");
  complexitySpin = maakSpin(ID_COMPLEXITY, eersteStart.speexComplexity);
  vadVakje = new NooitSmaller<wxCheckBox>(paneel, ID_VAD, "Voice Activated \nDetection");
  agcVakje = new NooitSmaller<wxCheckBox>(paneel, ID_AGC, "Adaptive Gain Control");
  denoiseVakje = new NooitSmaller<wxCheckBox>(paneel, ID_DENOISE, "Denoise input");
  perpenhVakje = new NooitSmaller<wxCheckBox>(paneel, ID_PERPENH, "Perpetual\nEnhancement");
  maxRateLabel = new wxStaticText(paneel, wxID_ANY, "(Maximum/Average)\nBit rate:");
  // Without wxTE_PROCESS_ENTER: Enter in this field presses Encode, and the bit rate stays what the
  // configuration said, although a handler for Enter stands in the event table.
  maxRateVeld = new wxTextCtrl(paneel, ID_MAX_RATE);
}

void HoofdVenster::maakCodeControls() {
  auto const maakVak = [this](int id, wxString const& titel, std::vector<wxString> const& rijen) {
    return new NooitSmaller<wxRadioBox>(paneel, id, titel, wxDefaultPosition, wxDefaultSize,
                                        static_cast<int>(rijen.size()), rijen.data(), 0,
                                        wxRA_SPECIFY_ROWS);
  };
  encoderTypeKeuze = maakVak(ID_ENCODER_TYPE, "Encoder type", {"Speex", "ADPCM", "PCM"});
  std::vector<wxString> talen(uitvoerTalen.size());
  std::transform(uitvoerTalen.begin(), uitvoerTalen.end(), talen.begin(),
                 [](UitvoerTaalRij const& taal) { return taal.keuze; });
  langImplKeuze = maakVak(ID_LANG_IMPL, "Implementation Language", talen);
  klasseLabel = new wxStaticText(paneel, wxID_ANY, "Class :");
  klasseVeld = new wxTextCtrl(paneel, ID_KLASSE);
  inclHeaderVakje = new NooitSmaller<wxCheckBox>(paneel, ID_INCL_HEADER, "Include header in array");
  std::vector<wxString> dacs(DacAantalBits.size());
  std::transform(DacAantalBits.begin(), DacAantalBits.end(), dacs.begin(),
                 [](long long bits) { return wxString::Format("%lld Bit DAC", bits); });
  dacTypeKeuze = maakKeuze(paneel, ID_DAC_TYPE, dacs);
  encodeKnop = new wxButton(paneel, ID_CODEER, "Encode");
  speexSaveKnop = new wxButton(paneel, wxID_SAVE);
  playEncodedKnop = new wxButton(paneel, ID_SPEEL_RESULTAAT, "Play Encoded");
  tekstVeld = maakTekstVeld(paneel);
  quitKnop = new wxButton(paneel, wxID_EXIT);
}

void HoofdVenster::set_properties() {
  // For the logo of the About box. The toolkit owns the handler.
  wxImage::AddHandler(new wxXPMHandler);
  SetTitle("Kestrolin Encoder for embedded applications");
  constexpr std::array<int, 1> breedten{-1};
  statusBalk->SetStatusWidths(static_cast<int>(breedten.size()), breedten.data());
  for (int veld = 0; veld < statusBalk->GetFieldsCount(); ++veld) {
    statusBalk->SetStatusText("No audio file loaded", veld);
  }
  wavSaveKnop->Disable();
  formaatKeuze->SetSelection(eersteStart.speexFormat);
  bitRateTypeKeuze->SetSelection(eersteStart.speexBitRateChoice);
  denoiseVakje->SetValue(eersteStart.speexDenoise);
  perpenhVakje->SetValue(true);
  encoderTypeKeuze->SetSelection(0);
  langImplKeuze->SetSelection(eersteStart.speexOutputLanguage);
  inclHeaderVakje->SetValue(eersteStart.IncludeHeader);
  dacTypeKeuze->SetSelection(eersteStart.dacNumberOfBits);
  encodeKnop->SetDefault();
  speexSaveKnop->Disable();
  playEncodedKnop->Disable();
}

void HoofdVenster::leesConfiguratie() {
  wxString const thuis = geefThuis();
  config->SetPath(vensterPad);
  wavDirectory = config->Read(wavDirectorySleutel, thuis);
  speexDirectory = config->Read(speexDirectorySleutel, thuis);
  wavFile = config->Read(wavFileSleutel, wxEmptyString);
  speexFile = config->Read(speexFileSleutel, wxEmptyString);
  klasseNaam = config->Read(klasseNaamSleutel, wxEmptyString);
  kies(encoderTypeKeuze, leesGetal(*config, encoderSoortSleutel, EncoderSpeex));
  bestandGeschiedenis.UseMenu(geschiedenisMenu);
  bestandGeschiedenis.Load(*config);
}

void HoofdVenster::toonInstellingen() {
  kies(formaatKeuze, instellingen->speexFormat);
  kies(bitRateTypeKeuze, instellingen->speexBitRateChoice);
  maxRateVeld->ChangeValue(wxString::Format("%d", static_cast<int>(instellingen->speexBitRate)));
  qualitySpin->SetValue(static_cast<int>(instellingen->speexQuality));
  complexitySpin->SetValue(static_cast<int>(instellingen->speexComplexity));
  klasseVeld->ChangeValue(klasseNaam);
  vadVakje->SetValue(instellingen->speexVAC);
  agcVakje->SetValue(instellingen->speexAGC);
  denoiseVakje->SetValue(instellingen->speexDenoise);
  // No warning about Python here: it is given when the user chooses it.
  kies(langImplKeuze, instellingen->speexOutputLanguage);
  inclHeaderVakje->SetValue(instellingen->IncludeHeader);
  kies(dacTypeKeuze, instellingen->dacNumberOfBits);
}

void HoofdVenster::onQuit(wxCommandEvent& event) {
  if (gecodeerd && !opgeslagen) {
    Bezigheid const nu(bezig);
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
