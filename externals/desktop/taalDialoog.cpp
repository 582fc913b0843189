#include "externals/desktop/taalDialoog.h"

#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>

#include <algorithm>
#include <array>

namespace {

constexpr int lijstId = 0;

struct Keuze {
  char const* naam;
  wxLanguage taal;
};

// The names pass through the catalog: it can spell them as their speakers do.
constexpr std::array<Keuze, 6> keuzes{{{wxTRANSLATE("Nederlands"), wxLANGUAGE_DUTCH},
                                       {wxTRANSLATE("English"), wxLANGUAGE_ENGLISH},
                                       {wxTRANSLATE("Deutsch"), wxLANGUAGE_GERMAN},
                                       {wxTRANSLATE("Francais"), wxLANGUAGE_FRENCH},
                                       {wxTRANSLATE("Italiano"), wxLANGUAGE_ITALIAN},
                                       {wxTRANSLATE("Espagnol"), wxLANGUAGE_SPANISH}}};

}  // namespace

wxBEGIN_EVENT_TABLE(TaalDialoog, wxDialog)
  EVT_LISTBOX(lijstId, TaalDialoog::lijstKeuzeHandler)
wxEND_EVENT_TABLE()

TaalDialoog::TaalDialoog(wxWindow* parent, int id, wxString const& title, wxPoint const& pos,
                         wxSize const& size, long style)
    : wxDialog(parent, id, title, pos, size, style) {
  wxArrayString namen;
  for (Keuze const& keuze : keuzes) {
    namen.Add(wxGetTranslation(keuze.naam));
  }
  taalLijst = new wxListBox(this, lijstId, wxDefaultPosition, wxDefaultSize, namen,
                            wxLB_SINGLE | wxLB_SORT);
  okKnop = new wxButton(this, wxID_OK);
  annuleerKnop = new wxButton(this, wxID_CANCEL);
  set_properties();
  do_layout();
}

void TaalDialoog::set_properties() {
  // The toolkit reckons with lower rows than the desktop's theme draws, and would cut the last one.
  constexpr int ruimteDeler = 3;
  int const hoogte = taalLijst->GetBestSize().GetHeight();
  taalLijst->SetMinSize(wxSize(-1, hoogte + hoogte / ruimteDeler));
  taalLijst->SetSelection(0);
  okKnop->SetDefault();
}

void TaalDialoog::do_layout() {
  constexpr int lijstRand = 30;
  constexpr int knopRand = 20;
  // The flags of a sizer come from enums of their own, and are numbers together.
  constexpr int rek = wxEXPAND;
  auto* const knoppen = new wxBoxSizer(wxHORIZONTAL);
  knoppen->Add(okKnop, 1, wxALL, knopRand);
  knoppen->Add(annuleerKnop, 1, wxALL, knopRand);
  auto* const alles = new wxBoxSizer(wxVERTICAL);
  alles->Add(taalLijst, 1, rek | wxALL, lijstRand);
  alles->Add(knoppen, 0, rek, 0);
  SetSizer(alles);
  alles->Fit(this);
  Layout();
}

void TaalDialoog::lijstKeuzeHandler(wxCommandEvent& /*event*/) {
  wxString const gekozen = taalLijst->GetStringSelection();
  auto const* const keuze =
      std::find_if(keuzes.begin(), keuzes.end(),
                   [&gekozen](Keuze const& een) { return wxGetTranslation(een.naam) == gekozen; });
  if (keuze != keuzes.end()) {
    taal = keuze->taal;
  }
}
