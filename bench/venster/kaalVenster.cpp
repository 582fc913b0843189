// The peer of the program's window: the toolkit alone. This program links nothing else, since the
// loading of further libraries is a part of what a start of the real one costs.
//
//   kaalVenster            shows an empty frame, and ends
//   kaalVenster --controls the same with as many controls of each kind as the real window has
//   kaalVenster TEXT       loads this file into a text control of a frame that is shown, tells the
//                          figures, and ends
#include <wx/app.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include <array>
#include <string>

#include "bench/meting.h"
#include "bench/venster/gemetenVenster.h"

namespace {

class KaleApp : public wxApp {
 public:
  bool OnInit() override { return true; }
};

wxTextCtrl* maakTekstVeld(wxWindow* ouder) {
  return new wxTextCtrl(ouder, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                        wxTE_MULTILINE | wxTE_READONLY);
}

void maakMenus(wxFrame& frame) {
  auto* const balk = new wxMenuBar;
  for (int regels : {5, 4}) {
    auto* const menu = new wxMenu;
    for (int i = 0; i < regels; ++i) {
      menu->Append(wxID_ANY, "Open");
    }
    balk->Append(menu, "&File");
  }
  frame.SetMenuBar(balk);
  frame.CreateStatusBar();
}

void maakControls(wxFrame& frame) {
  std::array<wxString, 3> const rijen{"One", "Two", "Three"};
  constexpr int aantal = 3;
  maakMenus(frame);
  auto* const paneel = new wxPanel(&frame);
  std::array<wxBoxSizer*, 3> const kolommen{new wxBoxSizer(wxVERTICAL),
                                            new wxStaticBoxSizer(wxVERTICAL, paneel, "Options"),
                                            new wxStaticBoxSizer(wxVERTICAL, paneel, "Code")};
  auto* const rij = new wxBoxSizer(wxHORIZONTAL);
  for (wxBoxSizer* const kolom : kolommen) {
    rij->Add(kolom, 1, wxEXPAND);
    kolom->Add(
        new wxChoice(paneel, wxID_ANY, wxDefaultPosition, wxDefaultSize, aantal, rijen.data()));
    kolom->Add(new wxStaticText(paneel, wxID_ANY, "Quality:"));
  }
  auto* const klasse = new wxStaticBoxSizer(wxVERTICAL, paneel, "Class");
  kolommen[2]->Add(klasse);
  klasse->Add(new wxTextCtrl(paneel, wxID_ANY));
  klasse->Add(new wxStaticText(paneel, wxID_ANY, "Class:"));
  for (int i = 0; i < 2; ++i) {
    kolommen[1]->Add(new wxSpinCtrl(paneel, wxID_ANY, "8"));
    kolommen[2]->Add(new wxRadioBox(paneel, wxID_ANY, "Type", wxDefaultPosition, wxDefaultSize,
                                    aantal, rijen.data(), 0, wxRA_SPECIFY_ROWS));
  }
  kolommen[1]->Add(new wxTextCtrl(paneel, wxID_ANY));
  for (int i = 0; i < 5; ++i) {
    auto* const vak = new wxCheckBox(paneel, wxID_ANY, "Include header");
    vak->SetValue(i > 0);
    kolommen[1]->Add(vak);
  }
  kolommen[0]->Add(new wxTreeCtrl(paneel), 1, wxEXPAND);
  for (std::size_t i = 0; i < 7; ++i) {
    auto* const knop = new wxButton(paneel, wxID_ANY, "Encode");
    knop->Enable(i > 2);
    kolommen[i % 2 * 2]->Add(knop);
  }
  auto* const alles = new wxBoxSizer(wxVERTICAL);
  alles->Add(rij, 2, wxEXPAND);
  alles->Add(maakTekstVeld(paneel), 1, wxEXPAND);
  paneel->SetSizer(alles);
}

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(KaleApp);

int main(int aantal, char** woorden) {
  std::string const wat = aantal > 1 ? woorden[1] : "";
  aantal = 1;
  wxDISABLE_DEBUG_SUPPORT();
  if (!wxEntryStart(aantal, woorden) || !wxTheApp->CallOnInit()) {
    return 1;
  }
  auto* const frame = new wxFrame(nullptr, wxID_ANY, "bench");
  if (wat == "--controls") {
    maakControls(*frame);
  }
  bool const metTekst = !wat.empty() && wat.front() != '-';
  wxTextCtrl* const veld = metTekst ? maakTekstVeld(frame) : nullptr;
  frame->SetClientSize(800, 600);  // NOLINT: as the real window at its first start
  frame->Show();
  return draaiTotGetoond(*frame, [&] {
    if (veld == nullptr) {
      eindig(0);
    }
    double const begin = processorTijd();
    if (!veld->LoadFile(wxString::FromUTF8(wat))) {
      eindig(1);
    }
    meldEnEindig(begin, *veld);
  });
}
