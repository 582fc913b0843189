// The fixture of the window tests: the real application with its real main window, in a home
// directory of its own, driven through its controls and menus.
//
// A test runs in a process of its own (ctest starts one each), or with others of its program, one
// after the other: it leaves the environment as it found it.
#pragma once

#include <gtest/gtest.h>
#include <wx/arrstr.h>
#include <wx/evtloop.h>
#include <wx/string.h>

#include <memory>
#include <vector>

#include "audio/speex/encoder/toepassing/vensterIds.h"
#include "audio/uitvoer/encoderSoort.h"
#include "tests/steun/antwoorden.h"
#include "tests/steun/logboek.h"
#include "tests/steun/omgevingBewaard.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"

class HoofdVenster;
class wxButton;
class wxCheckBox;
class wxChoice;
class wxMenuItem;
class wxRadioBox;
class wxSpinCtrl;
class wxTextCtrl;
class wxTreeCtrl;

// What can be read of the window.
class VensterLezer {
 public:
  // The controls, by kind and id: the ids 1 to 3 are shared between kinds.
  wxButton* knop(int id) const;
  wxChoice* keuze(int id) const;
  wxRadioBox* radio(int id) const;
  wxCheckBox* vakje(int id) const;
  wxSpinCtrl* spin(int id) const;
  wxTextCtrl* veld(int id) const;
  wxTreeCtrl* boom() const;
  wxMenuItem* menuItem(int id) const;
  // The window of that label, whatever its kind.
  wxWindow* metLabel(wxString const& label) const;
  wxString status() const;
  wxString tekst() const;
  // The lines below the root of the tree, each with its depth as leading blanks.
  std::vector<wxString> boomRegels() const;

  // What was logged since the start, without debug levels.
  static std::vector<LogRegel>& log();

  HoofdVenster* venster = nullptr;

 private:
  template <typename Soort>
  Soort* zoek(int id) const;
};

// The application, from its start to its end.
class VensterStart : public VensterLezer {
 public:
  VensterStart();
  ~VensterStart();
  VensterStart(VensterStart const&) = delete;
  VensterStart& operator=(VensterStart const&) = delete;
  VensterStart(VensterStart&&) = delete;
  VensterStart& operator=(VensterStart&&) = delete;

  // Starts the application, with `configuratie` as the text of its configuration file where it is
  // not empty.
  void start(wxString const& configuratie = wxEmptyString);
  // Ends the application as the user would by closing the window, and returns the configuration
  // file's text.
  wxString stop();
  // True until the window has closed.
  bool leeft() const { return venster != nullptr; }

  // Lets the toolkit work off its events and one idle cycle, in which the enable rules run.
  void rust();

  // What a user does: the control changes first, then its event goes out. A control that is
  // disabled fails the test. Each lets the application rest afterwards.
  void klik(int id);
  void kies(wxChoice* keuze, int rij);
  void kies(wxRadioBox* radio, int rij);
  void zet(wxCheckBox* vakje, bool aan);
  void zet(wxSpinCtrl* spin, int waarde);
  void typ(wxTextCtrl* veld, wxString const& tekst);
  void kiesMenu(int id);

  // Loads these paths through the window, in this order, and returns what is left of the list.
  wxArrayString laad(std::vector<wxString> const& paden);
  // A path in the test's own directory.
  wxString pad(wxString const& naam) const;
  wxString thuis() const;
  // The whole content of a file, as UTF-8.
  static wxString inhoud(wxString const& bestand);

  TijdelijkeMap map;
  Antwoorden antwoorden;

 private:
  void verstuur(wxWindow* bron, wxEventType soort, int waarde);

  // A name in a directory that stays until the process ends.
  static std::string procesPad(std::string const& naam);

  // The next test in this process finds what this one found.
  OmgevingBewaard omgeving;
  // The toolkit asks for these places once, and writes there of its own accord, after the test too.
  OmgevingsWaarde gegevens{"XDG_DATA_HOME", procesPad("data")};
  OmgevingsWaarde instellingen{"XDG_CONFIG_HOME", procesPad("config")};
  OmgevingsWaarde voorraad{"XDG_CACHE_HOME", procesPad("cache")};
  OmgevingsWaarde thuisMap{"HOME", map.pad("thuis")};
  OmgevingsWaarde tijdelijkeBestanden{"TMPDIR", map.pad("tmp")};
  std::unique_ptr<wxGUIEventLoop> lus;
};

class VensterProef : public ::testing::Test, protected VensterStart {};

// For suites that only read the window of a first start at rest: one start for all of their tests.
// A suite that CMake is told of as one of the SUITES runs in one process.
class RustProef : public ::testing::Test, protected VensterLezer {
 public:
  static void SetUpTestSuite();
  static void TearDownTestSuite();

 protected:
  void SetUp() override;

 private:
  static std::unique_ptr<VensterStart>& gestart();
};
