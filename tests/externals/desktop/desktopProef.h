// The fixture of the frame's tests: a bare application on the frame, under a name of its own and in
// a home directory of its own.
//
// A test runs in a process of its own (ctest starts one each), or with others of its program, one
// after the other: it leaves the environment as it found it.
#pragma once

#include <gtest/gtest.h>
#include <wx/string.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "externals/desktop/desktopApp.h"
#include "tests/steun/antwoorden.h"
#include "tests/steun/logboek.h"
#include "tests/steun/omgevingBewaard.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"

class wxFrame;

// The name of this process's application, so that no two tests share a lock or a file.
wxString proefNaam();

class ProefApp : public DesktopApp {
 public:
  ProefApp() : DesktopApp(proefNaam()) {}
  // Runs `bijEinde`, as an application above the frame would store its settings.
  ~ProefApp() override;

  ProefApp(ProefApp const&) = delete;
  ProefApp& operator=(ProefApp const&) = delete;
  ProefApp(ProefApp&&) = delete;
  ProefApp& operator=(ProefApp&&) = delete;

  bool OnInit() override { return true; }

  std::function<void()> bijEinde;
};

class DesktopProef : public ::testing::Test {
 public:
  DesktopProef(DesktopProef const&) = delete;
  DesktopProef& operator=(DesktopProef const&) = delete;
  DesktopProef(DesktopProef&&) = delete;
  DesktopProef& operator=(DesktopProef&&) = delete;

 protected:
  DesktopProef();
  ~DesktopProef() override;

  // Starts the application, with `configuratie` as the text of its configuration file where it is
  // not empty.
  void start(wxString const& configuratie = wxEmptyString);
  // Starts it with that one value of "Taal", as a text.
  void startInTaal(wxString const& waarde);
  // Ends the application and returns the keys of its configuration file.
  std::map<wxString, wxString> stop();

  ProefApp& app() const;
  // A plain frame as the main window, shown and settled.
  wxFrame* maakVenster();
  // Lets the window manager and the toolkit work everything off.
  static void rust();

  // The texts logged as errors since the start, in order.
  std::vector<wxString> fouten() const;

  std::string configPad() const;
  bool configBestaat() const;

  TijdelijkeMap map;
  OmgevingBewaard omgeving;
  Antwoorden antwoorden;
  std::vector<LogRegel> log;

 private:
  bool gestart = false;
};
