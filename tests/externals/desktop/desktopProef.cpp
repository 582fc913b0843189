#include "tests/externals/desktop/desktopProef.h"

#include <unistd.h>
#include <wx/ffile.h>
#include <wx/frame.h>
#include <wx/init.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "tests/steun/configTekst.h"

wxString proefNaam() {
  return wxString::Format("DesktopProef%d", static_cast<int>(getpid()));
}

ProefApp::~ProefApp() {
  if (bijEinde) {
    bijEinde();
  }
}

DesktopProef::DesktopProef() {
  wxSetAssertHandler(meldAssertie);
  setenv("HOME", map.pad().c_str(), 1);
  setenv("NO_AT_BRIDGE", "1", 1);
}

DesktopProef::~DesktopProef() {
  if (gestart) {
    stop();
  }
  EXPECT_TRUE(antwoorden.isOp()) << "a prepared answer was never asked for";
}

void DesktopProef::start(wxString const& configuratie) {
  if (!configuratie.empty()) {
    wxFFile(wxString::FromUTF8(configPad().c_str()), "w").Write(configuratie, wxConvUTF8);
  }
  delete wxLog::SetActiveTarget(new VerzamelLog(log));
  int aantal = 0;
  ASSERT_TRUE(wxEntryStart(aantal, static_cast<wxChar**>(nullptr)));
  gestart = true;
  // The start of the toolkit threw the first target away.
  delete wxLog::SetActiveTarget(new VerzamelLog(log));
  ASSERT_TRUE(wxTheApp->CallOnInit());
  antwoorden.Register();
}

void DesktopProef::startInTaal(wxString const& waarde) {
  start("[Gebruikersinstellingen]\nTaal=" + waarde + "\n");
}

std::map<wxString, wxString> DesktopProef::stop() {
  gestart = false;
  antwoorden.Unregister();
  wxTheApp->OnExit();
  wxEntryCleanup();
  wxString tekst;
  wxFFile lezer(wxString::FromUTF8(configPad().c_str()), "rb");
  if (lezer.IsOpened()) {
    lezer.ReadAll(&tekst, wxConvUTF8);
  }
  return configSleutels(tekst);
}

ProefApp& DesktopProef::app() const {
  return *dynamic_cast<ProefApp*>(wxTheApp);
}

wxFrame* DesktopProef::maakVenster() {
  auto* const venster = new wxFrame(nullptr, wxID_ANY, proefNaam());
  app().zetHoofdVenster(venster);
  venster->Show();
  rust();
  return venster;
}

void DesktopProef::rust() {
  // The window manager answers in its own time.
  constexpr int rondes = 20;
  constexpr unsigned long pauze = 10;
  for (int ronde = 0; ronde < rondes; ++ronde) {
    wxYield();
    wxMilliSleep(pauze);
  }
}

std::vector<wxString> DesktopProef::fouten() const {
  std::vector<wxString> teksten;
  for (LogRegel const& regel : log) {
    if (regel.niveau == wxLOG_Error) {
      teksten.push_back(regel.tekst);
    }
  }
  return teksten;
}

std::string DesktopProef::configPad() const {
  return map.pad("." + proefNaam().ToStdString());
}

bool DesktopProef::configBestaat() const {
  return std::filesystem::exists(configPad());
}
