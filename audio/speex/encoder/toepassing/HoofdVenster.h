// The main window: the one window of the tool, with all its controls, and the owner of its working
// state: the loaded files, the text of the last encoding, and what the enable rules follow from.
//
// Its work is split over files by concern: HoofdVenster.cpp (construction, event table, end),
// HoofdVensterIndeling.cpp (sizers), and one file each for the settings, loading, encoding, saving,
// embedding, playing, the language and About dialogs, tooltips, and what screen readers are told.
#pragma once

#include <wx/filehistory.h>
#include <wx/filename.h>
#include <wx/frame.h>
#include <wx/mstream.h>
#include <wx/treebase.h>

#include <array>
#include <functional>
#include <list>
#include <optional>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/uitvoerBestand.h"
#include "audio/speex/encoder/toepassing/bezigheid.h"
#include "audio/uitvoer/dacBreedte.h"
#include "audio/uitvoer/kestrolinConfig.h"
#include "audio/uitvoer/speexMaker.h"
#include "externals/desktop/statusBalk.h"

class wxButton;
class wxCheckBox;
class wxChoice;
class wxConfigBase;
class wxPanel;
class wxRadioBox;
class wxSizer;
class wxSound;
class wxSpinCtrl;
class wxSpinEvent;
class wxStaticBox;
class wxStaticText;
class wxTextCtrl;
class wxTreeCtrl;
class wxUpdateUIEvent;
struct SF_INFO;

class HoofdVenster : public wxFrame {
 public:
  // The widths of the DACs in bits, by the index of the DAC choice.
  static constexpr std::array<long long, 4> DacAantalBits = dacBreedten;

  // Builds the window from the settings and the configuration of the running application. It sets a
  // title of its own in the place of `title`.
  HoofdVenster(wxWindow* parent, int id, wxString const& title, wxPoint const& pos,
               wxSize const& size, long style);
  // Writes the directories, the class name, the encoder kind and the file history into the
  // configuration.
  ~HoofdVenster() override;

  HoofdVenster(HoofdVenster const&) = delete;
  HoofdVenster& operator=(HoofdVenster const&) = delete;
  HoofdVenster(HoofdVenster&&) = delete;
  HoofdVenster& operator=(HoofdVenster&&) = delete;

  // The event handlers. They ignore their argument, but for the id of a history entry, and read the
  // controls.
  virtual void playMusicHandler(wxCommandEvent& event);
  virtual void encodeHandler(wxCommandEvent& event);
  virtual void onQuit(wxCommandEvent& event);
  virtual void speexSaveHandler(wxCommandEvent& event);
  virtual void bestandGeladenHandler(wxUpdateUIEvent& event);
  virtual void wavSaveHandler(wxCommandEvent& event);
  virtual void dacTypeHandler(wxCommandEvent& event);
  virtual void headerInfoHandler(wxUpdateUIEvent& event);
  virtual void qualityHandler(wxSpinEvent& event);
  virtual void complexityHandler(wxSpinEvent& event);
  virtual void vadHandler(wxCommandEvent& event);
  virtual void agcHandler(wxCommandEvent& event);
  virtual void denoiseHandler(wxCommandEvent& event);
  virtual void perpenhHandler(wxCommandEvent& event);
  virtual void maxRateHandler(wxCommandEvent& event);
  virtual void langImplHandler(wxCommandEvent& event);
  virtual void inclHeaderHandler(wxCommandEvent& event);
  virtual void onAbout(wxCommandEvent& event);
  virtual void formaatHandler(wxCommandEvent& event);
  virtual void bitRateTypeHandler(wxCommandEvent& event);
  virtual void playEncodedHandler(wxCommandEvent& event);
  virtual void wavOpenHandler(wxCommandEvent& event);
  virtual void klasseIngaveHandler(wxCommandEvent& event);
  virtual void taalHandler(wxCommandEvent& event);
  virtual void encoderTypeHandler(wxCommandEvent& event);
  void oudBestandLadenHandler(wxCommandEvent& event);
  void encoderKeuzeHandler(wxUpdateUIEvent& event);

  // Replaces all that was loaded by the usable files among `paden`, in their order; the others are
  // logged and taken out of `paden`. Files of different sampling frequencies end the load.
  void openWavFiles(wxArrayString& paden);

  // The runs of the three encoders over all loaded files.
  void encodeSpeex(wxCommandEvent& event);
  void encodeADPCM(wxCommandEvent& event);
  void encodePCM(wxCommandEvent& event);

  // The playbacks of the last result by the decoders of the three encoders.
  void playEncodedSpeex(wxCommandEvent& event);
  void playEncodedADPCM(wxCommandEvent& event);
  void playEncodedPCM(wxCommandEvent& event);

  // Shows the text of `stroom`, UTF-8, in the text field. It goes there through a temporary file,
  // which stays behind.
  void kopieerNaarTekstVeld(wxMemoryOutputStream const& stroom) const;

 protected:
  wxStatusBar* OnCreateStatusBar(int velden, long stijl, wxWindowID id,
                                 wxString const& naam) override;
  bool TryBefore(wxEvent& event) override;

 private:
  void maakMenus();
  void maakBronControls();
  void maakSpeexControls();
  void maakCodeControls();
  void set_properties();
  void do_layout();
  wxSizer* maakBestandenKolom();
  wxSizer* maakSpeexVak();
  wxSizer* maakCodeVak();
  wxSizer* maakUitvoerKolom();
  void leesConfiguratie();
  void toonInstellingen();
  // What screen readers are told, and where the tree has the keyboard.
  void wijsDeWeg();
  void zetTips();

  // The lines below a file in the tree that get their text last.
  struct BestandKnoop {
    wxTreeItemId formaat;
    wxTreeItemId seekable;
  };
  // Loads what the user chose, and remembers the folder of the first.
  void laadGekozen(wxArrayString paden);
  // Whether the files were taken: none are in the middle of a run, a question or a sound.
  bool laadGesleept(wxArrayString const& paden);
  void neemSleepbestanden();
  BestandKnoop toonInBoom(wxFileName const& bestand, SF_INFO const& info) const;
  void toonFormaat(BestandKnoop const& knoop, SF_INFO const& info) const;
  // The first file of a load sets the Speex band; false for a later one that does not fit it.
  bool neemBandOver(std::size_t index, int samplerate);

  void speelBron(wxSound const& geluid, wxTreeItemId const& knoop);
  // Hands the last result to `decodeer` as a text file, and plays the WAV file that it makes of it.
  // What it returns is the number of fragments that the status bar tells. Both files stay in the
  // temporary directory.
  void speelResultaat(
      wxString const& voorvoegsel,
      std::function<int(wxFileName const& tekst, wxFileName const& wav)> const& decodeer);

  // Hands the keyboard's place on from a control that can no longer be used.
  void geefFocusDoor(wxWindow const* hadFocus);

  // A setting has changed: no result fits the settings any more.
  void geefResultaatOp();

  // Carries out a run of this maker over all loaded files, and shows and tells what came out. The
  // tail of the message is asked for when all files are done. False when the run ended before its
  // last file.
  bool codeer(FragmentMaker& maker, wxString const& titel, wxString const& status,
              std::function<wxString()> const& berichtStaart);
  void meldCoderenMislukt(wxFileName const& wav);

  struct GekozenDoel {
    wxString meldNaam;  // as the status bar tells it
    wxString map;       // of the chosen file
  };
  // Lets the user choose the file for text of the output language; `bestand` is the last choice and
  // becomes the new one. Nothing when the user gave up: `bestand` then has the proposed name.
  std::optional<GekozenDoel> vraagDoel(wxString const& vraag, wxFileName& bestand);
  // Opens the chosen file, to replace or to append as the user says. Not open where nothing may be
  // saved or the file cannot be opened; the log tells why.
  UitvoerBestand openDoel(wxFileName const& bestand);
  wxFile::OpenMode vraagOpenModus(wxFileName const& bestand);

  wxStaticBox* codeGeneratieBox = nullptr;
  wxStaticBox* klasseOptiesBox = nullptr;
  wxStaticBox* speexOptiesBox = nullptr;
  wxMenuBar* menuBalk = nullptr;
  StatusBalk* statusBalk = nullptr;
  wxButton* wavOpenKnop = nullptr;
  wxTreeCtrl* audioBoom = nullptr;
  wxButton* playMusicKnop = nullptr;
  wxButton* wavSaveKnop = nullptr;
  wxChoice* formaatKeuze = nullptr;
  wxChoice* bitRateTypeKeuze = nullptr;
  wxStaticText* qualityLabel = nullptr;
  wxSpinCtrl* qualitySpin = nullptr;
  wxStaticText* complexityLabel = nullptr;
  wxSpinCtrl* complexitySpin = nullptr;
  wxCheckBox* vadVakje = nullptr;
  wxCheckBox* agcVakje = nullptr;
  wxCheckBox* denoiseVakje = nullptr;
  wxCheckBox* perpenhVakje = nullptr;
  wxStaticText* maxRateLabel = nullptr;
  wxTextCtrl* maxRateVeld = nullptr;
  wxRadioBox* encoderTypeKeuze = nullptr;
  wxRadioBox* langImplKeuze = nullptr;
  wxStaticText* klasseLabel = nullptr;
  wxTextCtrl* klasseVeld = nullptr;
  wxCheckBox* inclHeaderVakje = nullptr;
  wxChoice* dacTypeKeuze = nullptr;
  wxButton* encodeKnop = nullptr;
  wxButton* speexSaveKnop = nullptr;
  wxButton* playEncodedKnop = nullptr;
  wxTextCtrl* tekstVeld = nullptr;
  wxButton* quitKnop = nullptr;
  wxPanel* paneel = nullptr;
  wxMenu* geschiedenisMenu = nullptr;

  KestrolinConfig* instellingen;
  wxConfigBase* config;
  wxFileHistory bestandGeschiedenis;
  wxFileName embedBestand;  // the last path saved as embedded WAV images
  wxFileName speexBestand;  // the last path saved as generated text
  // Its coder's state goes on from run to run.
  ADPCMDesktopConverter adpcmConverter;
  PCMDesktopConverter pcmConverter;
  // Those of failed runs, kept until the window closes, then that of the current run.
  std::list<SpeexMaker> speexMakers;
  wxMemoryOutputStream uitvoerStroom;  // the text of the last encoding
  bool bestandGeladen = false;
  bool gecodeerd = false;   // uitvoerStroom fits the settings
  bool opgeslagen = false;  // that result has been saved
  BezigStand bezig{*this};
  wxString wavDirectory;
  wxString speexDirectory;
  wxString wavFile;    // kept for the configuration, unchanged
  wxString speexFile;  // likewise
  wxString klasseNaam;
  wxSortedArrayString wavBestanden;  // the full paths, in the order of their text

  wxDECLARE_EVENT_TABLE();
};
