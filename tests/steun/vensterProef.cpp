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

std::string VensterStart::procesPad(std::string const& naam) {
  static TijdelijkeMap const proces;
  return proces.pad(naam);
}

VensterStart::VensterStart() {
  wxSetAssertHandler(meldAssertie);
  std::filesystem::create_directories(map.pad("tmp"));
  std::filesystem::create_directories(map.pad("thuis"));
  setenv("NO_AT_BRIDGE", "1", 1);
}

VensterStart::~VensterStart() {
  if (lus) {
    stop();
  }
  EXPECT_TRUE(antwoorden.isOp()) << "a prepared answer was never asked for";
}

std::vector<LogRegel>& VensterLezer::log() {
  static std::vector<LogRegel> regels;
  return regels;
}

void VensterStart::start(wxString const& configuratie) {
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

wxString VensterStart::stop() {
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

void VensterStart::rust() {
  wxYield();
  wxTheApp->ProcessPendingEvents();
  if (leeft()) {
    wxTheApp->ProcessIdle();
    wxYield();
  }
  // A window that was closing may have gone meanwhile.
  if (leeft()) {
    venster->UpdateWindowUI(wxUPDATE_UI_RECURSE);
  }
}

template <typename Soort>
Soort* VensterLezer::zoek(int id) const {
  auto* const gevonden = zoekSoort<Soort>(venster, id);
  EXPECT_NE(gevonden, nullptr) << "no such control with id " << id;
  return gevonden;
}

wxButton* VensterLezer::knop(int id) const {
  return zoek<wxButton>(id);
}
wxChoice* VensterLezer::keuze(int id) const {
  return zoek<wxChoice>(id);
}
wxRadioBox* VensterLezer::radio(int id) const {
  return zoek<wxRadioBox>(id);
}
wxCheckBox* VensterLezer::vakje(int id) const {
  return zoek<wxCheckBox>(id);
}
wxSpinCtrl* VensterLezer::spin(int id) const {
  return zoek<wxSpinCtrl>(id);
}
wxTextCtrl* VensterLezer::veld(int id) const {
  return zoek<wxTextCtrl>(id);
}
wxTreeCtrl* VensterLezer::boom() const {
  return zoek<wxTreeCtrl>(wxID_ANY);
}
wxMenuItem* VensterLezer::menuItem(int id) const {
  return venster->GetMenuBar()->FindItem(id);
}
wxWindow* VensterLezer::metLabel(wxString const& label) const {
  return zoekLabel(venster, label);
}
wxString VensterLezer::status() const {
  return venster->GetStatusBar()->GetStatusText(0);
}
wxString VensterLezer::tekst() const {
  return veld(ID_TEKST)->GetValue();
}

void VensterStart::verstuur(wxWindow* bron, wxEventType soort, int waarde) {
  ASSERT_TRUE(bron->IsEnabled()) << "a disabled control was used: " << bron->GetLabel().utf8_str();
  wxCommandEvent event(soort, bron->GetId());
  event.SetEventObject(bron);
  event.SetInt(waarde);
  bron->ProcessWindowEvent(event);
  rust();
}

void VensterStart::klik(int id) {
  verstuur(knop(id), wxEVT_BUTTON, 0);
}

void VensterStart::kies(wxChoice* doel, int rij) {
  doel->SetSelection(rij);
  verstuur(doel, wxEVT_CHOICE, rij);
}

void VensterStart::kies(wxRadioBox* doel, int rij) {
  doel->SetSelection(rij);
  verstuur(doel, wxEVT_RADIOBOX, rij);
}

void VensterStart::zet(wxCheckBox* doel, bool aan) {
  doel->SetValue(aan);
  verstuur(doel, wxEVT_CHECKBOX, aan ? 1 : 0);
}

void VensterStart::zet(wxSpinCtrl* doel, int waarde) {
  doel->SetValue(waarde);
  ASSERT_TRUE(doel->IsEnabled());
  wxSpinEvent event(wxEVT_SPINCTRL, doel->GetId());
  event.SetEventObject(doel);
  event.SetPosition(waarde);
  doel->ProcessWindowEvent(event);
  rust();
}

void VensterStart::typ(wxTextCtrl* doel, wxString const& nieuw) {
  ASSERT_TRUE(doel->IsEnabled());
  // SetValue sends the event that typing sends.
  doel->SetValue(nieuw);
  rust();
}

void VensterStart::kiesMenu(int id) {
  wxMenuItem* const item = menuItem(id);
  ASSERT_NE(item, nullptr) << "no menu item " << id;
  ASSERT_TRUE(item->IsEnabled()) << "a disabled menu item was used: " << id;
  wxCommandEvent event(wxEVT_MENU, id);
  event.SetEventObject(venster);
  venster->ProcessWindowEvent(event);
  rust();
}

wxArrayString VensterStart::laad(std::vector<wxString> const& paden) {
  wxArrayString lijst;
  for (wxString const& een : paden) {
    lijst.Add(een);
  }
  venster->openWavFiles(lijst);
  rust();
  return lijst;
}

std::vector<wxString> VensterLezer::boomRegels() const {
  std::vector<wxString> regels;
  voegRegelsToe(*boom(), boom()->GetRootItem(), 0, regels);
  return regels;
}

wxString VensterStart::pad(wxString const& naam) const {
  return wxString::FromUTF8(map.pad().c_str()) + "/" + naam;
}

wxString VensterStart::thuis() const {
  return pad("thuis");
}

wxString VensterStart::inhoud(wxString const& bestand) {
  wxFFile lezer(bestand, "rb");
  wxString tekst;
  if (lezer.IsOpened()) {
    lezer.ReadAll(&tekst, wxConvUTF8);
  }
  return tekst;
}

std::unique_ptr<VensterStart>& RustProef::gestart() {
  static std::unique_ptr<VensterStart> van;
  return van;
}

void RustProef::SetUpTestSuite() {
  gestart() = std::make_unique<VensterStart>();
  gestart()->start();
}

void RustProef::TearDownTestSuite() {
  gestart().reset();
}

void RustProef::SetUp() {
  venster = gestart()->venster;
  ASSERT_NE(venster, nullptr);
}
