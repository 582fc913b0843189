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

// The toolkit spreads its layout flags over several enumerations, and compilers and checkers warn
// of joining those; as plain numbers they join.
constexpr int rek = wxEXPAND;
constexpr int middenV = wxALIGN_CENTER_VERTICAL;
constexpr int middenH = wxALIGN_CENTER_HORIZONTAL;
constexpr int rondom = wxALL;
constexpr int boven = wxTOP;
constexpr int onder = wxBOTTOM;
constexpr int links = wxLEFT;
constexpr int rechts = wxRIGHT;

constexpr int marge = 5;
constexpr int quitMarge = 20;

}  // namespace

// Sizers belong to their parent sizer and at last to their window.

void HoofdVenster::do_layout() {
  auto* vensterKolom = new wxBoxSizer(wxVERTICAL);
  auto* paneelKolom = new wxBoxSizer(wxVERTICAL);
  auto* hoofdRij = new wxBoxSizer(wxHORIZONTAL);
  auto* hoofdKolom = new wxBoxSizer(wxVERTICAL);
  auto* bovenRij = new wxBoxSizer(wxHORIZONTAL);

  bovenRij->Add(maakBestandenKolom(), 1, rek, 0);
  bovenRij->Add(maakSpeexVak(), 0, rek, 0);
  bovenRij->Add(maakCodeVak(), 1, rek, 0);
  hoofdKolom->Add(bovenRij, 2, rek, 0);
  hoofdKolom->Add(tekstVeld, 1, rek, 0);
  hoofdRij->Add(hoofdKolom, 2, rek, 0);
  paneelKolom->Add(hoofdRij, 1, rek, 0);
  paneelKolom->Add(quitKnop, 0, rek | middenH | rondom, quitMarge);
  vensterKolom->Add(paneel, 1, rek, 0);
  paneel->SetSizer(paneelKolom);
  SetSizer(vensterKolom);
  vensterKolom->Fit(this);
  Layout();
}

wxSizer* HoofdVenster::maakBestandenKolom() {
  auto* kolom = new wxBoxSizer(wxVERTICAL);
  auto* knoppen = new wxBoxSizer(wxVERTICAL);
  kolom->Add(wavOpenKnop, 0, rek | rondom, marge);
  kolom->Add(audioBoom, 3, rek, 0);
  knoppen->Add(playMusicKnop, 0, rek | middenV | middenH | rondom, marge);
  knoppen->Add(wavSaveKnop, 0, rek | links | rechts | onder, marge);
  kolom->Add(knoppen, 1, rek, 0);
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
  rooster->Add(denoiseVakje, 0, middenV, 0);
  rooster->Add(perpenhVakje, 0, middenV, 0);
  rooster->Add(maxRateLabel, 0, middenV, 0);
  rooster->Add(maxRateVeld, 0, middenV, 0);
  vak->Add(rooster, 0, rek | boven, marge);
  return vak;
}

wxSizer* HoofdVenster::maakCodeVak() {
  auto* vak = new wxStaticBoxSizer(codeGeneratieBox, wxHORIZONTAL);
  vak->Add(maakUitvoerKolom(), 1, rek, 0);
  return vak;
}

wxSizer* HoofdVenster::maakUitvoerKolom() {
  constexpr int keuzeVlaggen = rek | middenV | boven | onder;
  auto* kolom = new wxBoxSizer(wxVERTICAL);
  auto* keuzes = new wxBoxSizer(wxHORIZONTAL);
  auto* klasseVak = new wxStaticBoxSizer(klasseOptiesBox, wxVERTICAL);
  auto* klasseRij = new wxBoxSizer(wxHORIZONTAL);
  auto* knoppen = new wxBoxSizer(wxVERTICAL);

  keuzes->Add(encoderTypeKeuze, 1, keuzeVlaggen, marge);
  keuzes->Add(langImplKeuze, 1, keuzeVlaggen, marge);
  kolom->Add(keuzes, 1, rek, 0);

  klasseRij->Add(klasseLabel, 1, middenV | rechts, marge);
  klasseRij->Add(klasseVeld, 2, middenV, 0);
  klasseVak->Add(klasseRij, 0, rek, 0);
  kolom->Add(klasseVak, 0, rek, 0);

  kolom->Add(inclHeaderVakje, 0, middenV, 0);
  kolom->Add(dacTypeKeuze, 0, rek | middenV | rondom, marge);

  knoppen->Add(encodeKnop, 0, rek | middenH | rondom, marge);
  knoppen->Add(speexSaveKnop, 0, rek | links | rechts | onder, marge);
  knoppen->Add(playEncodedKnop, 0, rek | middenV | middenH | rondom, marge);
  kolom->Add(knoppen, 1, rek, 0);
  return kolom;
}
