// The layout of the main window.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"

namespace {

constexpr int marge = 5;
constexpr int quitMarge = 20;
constexpr int binnenMarge = wxLEFT | wxRIGHT | wxBOTTOM;
constexpr int midden = wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL;

}  // namespace

// Sizers belong to their parent sizer and at last to their window.

void HoofdVenster::do_layout() {
  auto* vensterKolom = new wxBoxSizer(wxVERTICAL);
  auto* paneelKolom = new wxBoxSizer(wxVERTICAL);
  auto* hoofdRij = new wxBoxSizer(wxHORIZONTAL);
  auto* hoofdKolom = new wxBoxSizer(wxVERTICAL);
  auto* bovenRij = new wxBoxSizer(wxHORIZONTAL);

  bovenRij->Add(maakBestandenKolom(), 1, wxEXPAND, 0);
  bovenRij->Add(maakSpeexVak(), 0, wxEXPAND, 0);
  bovenRij->Add(maakCodeVak(), 1, wxEXPAND, 0);
  hoofdKolom->Add(bovenRij, 2, wxEXPAND, 0);
  hoofdKolom->Add(tekstVeld, 1, wxEXPAND, 0);
  hoofdRij->Add(hoofdKolom, 2, wxEXPAND, 0);
  paneelKolom->Add(hoofdRij, 1, wxEXPAND, 0);
  paneelKolom->Add(quitKnop, 0, wxEXPAND | wxALIGN_CENTER_HORIZONTAL | wxALL, quitMarge);
  paneel->SetSizer(paneelKolom);
  vensterKolom->Add(paneel, 1, wxEXPAND, 0);
  SetSizer(vensterKolom);
  vensterKolom->Fit(this);
  Layout();
}

wxSizer* HoofdVenster::maakBestandenKolom() {
  auto* kolom = new wxBoxSizer(wxVERTICAL);
  auto* knoppen = new wxBoxSizer(wxVERTICAL);
  kolom->Add(wavOpenKnop, 0, wxEXPAND | wxALL, marge);
  kolom->Add(audioBoom, 3, wxEXPAND, 0);
  knoppen->Add(playMusicKnop, 0, wxEXPAND | midden | wxALL, marge);
  knoppen->Add(wavSaveKnop, 0, wxEXPAND | binnenMarge, marge);
  kolom->Add(knoppen, 1, wxEXPAND, 0);
  return kolom;
}

wxSizer* HoofdVenster::maakSpeexVak() {
  constexpr int rijen = 6;
  constexpr int kolommen = 2;
  auto* vak = new wxStaticBoxSizer(speexOptiesBox, wxHORIZONTAL);
  auto* rooster = new wxGridSizer(rijen, kolommen, 0, 0);
  rooster->Add(formaatKeuze, 0, 0, marge);
  rooster->Add(bitRateTypeKeuze, 0, 0, marge);
  rooster->Add(qualityLabel, 0, 0, 0);
  rooster->Add(qualitySpin, 0, 0, 0);
  rooster->Add(complexityLabel, 0, 0, 0);
  rooster->Add(complexitySpin, 0, 0, 0);
  rooster->Add(vadVakje, 0, 0, 0);
  rooster->Add(agcVakje, 0, 0, 0);
  rooster->Add(denoiseVakje, 0, wxALIGN_CENTER_VERTICAL, 0);
  rooster->Add(perpenhVakje, 0, wxALIGN_CENTER_VERTICAL, 0);
  rooster->Add(maxRateLabel, 0, wxALIGN_CENTER_VERTICAL, 0);
  rooster->Add(maxRateVeld, 0, wxALIGN_CENTER_VERTICAL, 0);
  vak->Add(rooster, 0, wxEXPAND | wxTOP, marge);
  return vak;
}

wxSizer* HoofdVenster::maakCodeVak() {
  auto* vak = new wxStaticBoxSizer(codeGeneratieBox, wxHORIZONTAL);
  vak->Add(maakUitvoerKolom(), 1, wxEXPAND, 0);
  return vak;
}

wxSizer* HoofdVenster::maakUitvoerKolom() {
  constexpr int keuzeVlaggen = wxEXPAND | wxALIGN_CENTER_VERTICAL | wxTOP | wxBOTTOM;
  auto* kolom = new wxBoxSizer(wxVERTICAL);
  auto* keuzes = new wxBoxSizer(wxHORIZONTAL);
  auto* klasseVak = new wxStaticBoxSizer(klasseOptiesBox, wxVERTICAL);
  auto* klasseRij = new wxBoxSizer(wxHORIZONTAL);
  auto* knoppen = new wxBoxSizer(wxVERTICAL);

  keuzes->Add(encoderTypeKeuze, 1, keuzeVlaggen, marge);
  keuzes->Add(langImplKeuze, 1, keuzeVlaggen, marge);
  kolom->Add(keuzes, 1, wxEXPAND, 0);

  klasseRij->Add(klasseLabel, 1, wxALIGN_CENTER_VERTICAL | wxRIGHT, marge);
  klasseRij->Add(klasseVeld, 2, wxALIGN_CENTER_VERTICAL, 0);
  klasseVak->Add(klasseRij, 0, wxEXPAND, 0);
  kolom->Add(klasseVak, 0, wxEXPAND, 0);

  kolom->Add(inclHeaderVakje, 0, wxALIGN_CENTER_VERTICAL, 0);
  kolom->Add(dacTypeKeuze, 0, wxEXPAND | wxALIGN_CENTER_VERTICAL | wxALL, marge);

  knoppen->Add(encodeKnop, 0, wxEXPAND | wxALIGN_CENTER_HORIZONTAL | wxALL, marge);
  knoppen->Add(speexSaveKnop, 0, wxEXPAND | binnenMarge, marge);
  knoppen->Add(playEncodedKnop, 0, wxEXPAND | midden | wxALL, marge);
  kolom->Add(knoppen, 1, wxEXPAND, 0);
  return kolom;
}
