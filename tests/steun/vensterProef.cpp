#include "tests/steun/vensterProef.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/init.h>
#include <wx/menu.h>
#include <wx/msgqueue.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/weakref.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"

namespace {

void voegRegelsToe(wxTreeCtrl const& boom, wxTreeItemId const& knoop, std::size_t diepte,
                   std::vector<wxString>& regels) {
  wxTreeItemIdValue plaats = nullptr;
  for (wxTreeItemId kind = boom.GetFirstChild(knoop, plaats); kind.IsOk();
       kind = boom.GetNextChild(knoop, plaats)) {
    regels.push_back(wxString(' ', diepte) + boom.GetItemText(kind));
    voegRegelsToe(boom, kind, diepte + 1, regels);
  }
}

wxWindow* zoekLabel(wxWindow* ouder, wxString const& label) {
  for (wxWindow* kind : ouder->GetChildren()) {
    if (kind->GetLabel() == label) {
      return kind;
    }
    if (wxWindow* const gevonden = zoekLabel(kind, label)) {
      return gevonden;
    }
  }
  return nullptr;
}

template <typename Soort>
Soort* zoekSoort(wxWindow* ouder, int id) {
  for (wxWindow* kind : ouder->GetChildren()) {
    auto* const gevonden = dynamic_cast<Soort*>(kind);
    if (gevonden != nullptr && (id == wxID_ANY || kind->GetId() == id)) {
      return gevonden;
    }
    if (auto* const dieper = zoekSoort<Soort>(kind, id)) {
      return dieper;
    }
  }
  return nullptr;
}

}  // namespace

std::string VensterProef::procesPad(std::string const& naam) {
  static TijdelijkeMap const proces;
  return proces.pad(naam);
}

VensterProef::VensterProef() {
  wxSetAssertHandler(meldAssertie);
  std::filesystem::create_directories(map.pad("tmp"));
  std::filesystem::create_directories(map.pad("thuis"));
  setenv("NO_AT_BRIDGE", "1", 1);
}

VensterProef::~VensterProef() {
  if (lus) {
    stop();
  }
  EXPECT_TRUE(antwoorden.isOp()) << "a prepared answer was never asked for";
}

std::vector<LogRegel>& VensterProef::log() {
  static std::vector<LogRegel> regels;
  return regels;
}

void VensterProef::start(wxString const& configuratie) {
  if (!configuratie.empty()) {
    wxFFile(thuis() + "/.Kestrolin", "w").Write(configuratie, wxConvUTF8);
  }
  log().clear();
  delete wxLog::SetActiveTarget(new VerzamelLog(log()));
  int aantal = 0;
  ASSERT_TRUE(wxEntryStart(aantal, static_cast<wxChar**>(nullptr)));
  // The start of the toolkit threw the first target away.
  delete wxLog::SetActiveTarget(new VerzamelLog(log()));
  ASSERT_TRUE(wxTheApp->CallOnInit());
  lus = std::make_unique<wxGUIEventLoop>();
  wxEventLoopBase::SetActive(lus.get());
  venster = dynamic_cast<HoofdVenster*>(wxTheApp->GetTopWindow());
  ASSERT_NE(venster, nullptr);
  venster->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
    if (event.GetEventObject() == venster) {
      venster = nullptr;
    }
    event.Skip();
  });
  antwoorden.Register();
  rust();
}

wxString VensterProef::stop() {
  if (leeft()) {
    venster->Close();
    rust();
  }
  EXPECT_FALSE(leeft());
  antwoorden.Unregister();
  wxEventLoopBase::SetActive(nullptr);
  lus.reset();
  wxTheApp->OnExit();
  wxEntryCleanup();
  return inhoud(thuis() + "/.Kestrolin");
}

void VensterProef::rust() {
  wxYield();
  wxTheApp->ProcessPendingEvents();
  if (leeft()) {
    wxTheApp->ProcessIdle();
    wxYield();
    venster->UpdateWindowUI(wxUPDATE_UI_RECURSE);
  }
}

template <typename Soort>
Soort* VensterProef::zoek(int id) const {
  auto* const gevonden = zoekSoort<Soort>(venster, id);
  EXPECT_NE(gevonden, nullptr) << "no such control with id " << id;
  return gevonden;
}

wxButton* VensterProef::knop(int id) const {
  return zoek<wxButton>(id);
}
wxChoice* VensterProef::keuze(int id) const {
  return zoek<wxChoice>(id);
}
wxRadioBox* VensterProef::radio(int id) const {
  return zoek<wxRadioBox>(id);
}
wxCheckBox* VensterProef::vakje(int id) const {
  return zoek<wxCheckBox>(id);
}
wxSpinCtrl* VensterProef::spin(int id) const {
  return zoek<wxSpinCtrl>(id);
}
wxTextCtrl* VensterProef::veld(int id) const {
  return zoek<wxTextCtrl>(id);
}
wxTreeCtrl* VensterProef::boom() const {
  return zoek<wxTreeCtrl>(wxID_ANY);
}
wxMenuItem* VensterProef::menuItem(int id) const {
  return venster->GetMenuBar()->FindItem(id);
}
wxWindow* VensterProef::metLabel(wxString const& label) const {
  return zoekLabel(venster, label);
}
wxString VensterProef::status() const {
  return venster->GetStatusBar()->GetStatusText(0);
}
wxString VensterProef::tekst() const {
  return veld(ID_TEKST)->GetValue();
}

void VensterProef::verstuur(wxWindow* bron, wxEventType soort, int waarde) {
  ASSERT_TRUE(bron->IsEnabled()) << "a disabled control was used: " << bron->GetLabel().utf8_str();
  wxCommandEvent event(soort, bron->GetId());
  event.SetEventObject(bron);
  event.SetInt(waarde);
  bron->ProcessWindowEvent(event);
  rust();
}

void VensterProef::klik(int id) {
  verstuur(knop(id), wxEVT_BUTTON, 0);
}

void VensterProef::kies(wxChoice* doel, int rij) {
  doel->SetSelection(rij);
  verstuur(doel, wxEVT_CHOICE, rij);
}

void VensterProef::kies(wxRadioBox* doel, int rij) {
  doel->SetSelection(rij);
  verstuur(doel, wxEVT_RADIOBOX, rij);
}

void VensterProef::zet(wxCheckBox* doel, bool aan) {
  doel->SetValue(aan);
  verstuur(doel, wxEVT_CHECKBOX, aan ? 1 : 0);
}

void VensterProef::zet(wxSpinCtrl* doel, int waarde) {
  doel->SetValue(waarde);
  ASSERT_TRUE(doel->IsEnabled());
  wxSpinEvent event(wxEVT_SPINCTRL, doel->GetId());
  event.SetEventObject(doel);
  event.SetPosition(waarde);
  doel->ProcessWindowEvent(event);
  rust();
}

void VensterProef::typ(wxTextCtrl* doel, wxString const& nieuw) {
  ASSERT_TRUE(doel->IsEnabled());
  // SetValue sends the event that typing sends.
  doel->SetValue(nieuw);
  rust();
}

void VensterProef::kiesMenu(int id) {
  wxMenuItem* const item = menuItem(id);
  ASSERT_NE(item, nullptr) << "no menu item " << id;
  ASSERT_TRUE(item->IsEnabled()) << "a disabled menu item was used: " << id;
  wxCommandEvent event(wxEVT_MENU, id);
  event.SetEventObject(venster);
  venster->ProcessWindowEvent(event);
  rust();
}

wxArrayString VensterProef::laad(std::vector<wxString> const& paden) {
  wxArrayString lijst;
  for (wxString const& een : paden) {
    lijst.Add(een);
  }
  venster->openWavFiles(lijst);
  rust();
  return lijst;
}

std::vector<wxString> VensterProef::boomRegels() const {
  std::vector<wxString> regels;
  voegRegelsToe(*boom(), boom()->GetRootItem(), 0, regels);
  return regels;
}

wxString VensterProef::pad(wxString const& naam) const {
  return wxString::FromUTF8(map.pad().c_str()) + "/" + naam;
}

wxString VensterProef::thuis() const {
  return pad("thuis");
}

wxString VensterProef::inhoud(wxString const& bestand) {
  wxFFile lezer(bestand, "rb");
  wxString tekst;
  if (lezer.IsOpened()) {
    lezer.ReadAll(&tekst, wxConvUTF8);
  }
  return tekst;
}
