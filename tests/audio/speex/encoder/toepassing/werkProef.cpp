#include "tests/audio/speex/encoder/toepassing/werkProef.h"

#include <wx/button.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>
#include <wx/toplevel.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"

void WerkProef::begin(int taal, wxString const& vensterRegels, wxString const& speexRegels,
                      wxString const& meer) {
  beginMet(EncoderPCM, taal, vensterRegels, speexRegels, meer);
}

void WerkProef::beginAdpcm(int taal, wxString const& speexRegels, wxString const& meer) {
  beginMet(EncoderADPCM, taal, wxEmptyString, speexRegels, meer);
}

void WerkProef::beginSpeex(int taal, wxString const& speexRegels, wxString const& meer) {
  beginMet(EncoderSpeex, taal, wxEmptyString, speexRegels, meer);
}

void WerkProef::beginMet(int soort, int taal, wxString const& vensterRegels,
                         wxString const& speexRegels, wxString const& meer) {
  start(wxString::Format("[Configuratie]\nConvertertype=%d\nklasseNaam=Geluid\n", soort) +
        vensterRegels + "[Gebruikersinstellingen/Speex]\n" +
        wxString::Format("speexOutputLanguage=%d\n", taal) + speexRegels + meer);
}

wxString WerkProef::wav(std::string const& naam, std::vector<std::int16_t> const& samples,
                        WavSoort const& soort) {
  maakWav(map.pad(naam), samples, soort);
  return pad(wxString::FromUTF8(naam.c_str()));
}

wxString WerkProef::bestand(std::string const& naam, std::string const& inhoud) {
  maakBestand(map.pad(naam), inhoud);
  return pad(wxString::FromUTF8(naam.c_str()));
}

wxString WerkProef::submap(std::string const& naam) {
  wxString const volledig = pad(wxString::FromUTF8(naam.c_str()));
  EXPECT_TRUE(wxFileName::Mkdir(volledig, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL));
  return volledig;
}

void WerkProef::zonderHeader() {
  antwoorden.opBericht(wxID_YES);
  zet(vakje(ID_INCL_HEADER), false);
}

wxString WerkProef::codeer() {
  antwoorden.opBericht(wxID_OK);
  klik(ID_CODEER);
  return zonderMoment(tekst());
}

void WerkProef::bewaar(wxString const& doel) {
  antwoorden.opBestandsVraag(doel);
  klik(wxID_SAVE);
}

void WerkProef::bewaarOver(wxString const& doel, int antwoord, std::function<void()> tijdens) {
  antwoorden.opBestandsVraag(doel);
  antwoorden.opBericht(antwoord, std::move(tijdens));
  klik(wxID_SAVE);
}

void WerkProef::verwachtVraagOverBestand(Bericht const& bericht) const {
  EXPECT_EQ(bericht.titel, "File exists");
  EXPECT_EQ(bericht.tekst,
            "The file already exists.\n"
            "Would you like to append the newly encoded data to this file?");
  EXPECT_EQ(bericht.stijl & (wxYES_NO | wxCANCEL | wxOK), wxYES_NO);
  EXPECT_EQ(bericht.stijl & wxNO_DEFAULT, 0);
  EXPECT_EQ(bericht.ouder, venster);
}

bool WerkProef::isGeladen() const {
  return knop(ID_SPEEL_BRON)->IsEnabled();
}
bool WerkProef::isGecodeerd() const {
  return knop(wxID_SAVE)->IsEnabled();
}

void WerkProef::verwachtGevolgNaMelding(wxString const& statusNa) {
  wxString statusTijdens;
  wxString tekstTijdens;
  antwoorden.opBericht(wxID_OK, [&] {
    statusTijdens = status();
    tekstTijdens = tekst();
  });
  klik(ID_CODEER);
  EXPECT_EQ(statusTijdens, "Audio files loaded");
  EXPECT_EQ(tekstTijdens, tekst());
  EXPECT_FALSE(tekst().empty());
  EXPECT_EQ(status(), statusNa);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(menuItem(wxID_SAVE)->IsEnabled());
  EXPECT_TRUE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  EXPECT_FALSE(menuItem(ID_CODEER)->IsEnabled());
}

void WerkProef::verwachtMeldingVan(wxString const& encoder) {
  submap("100%s %n");
  antwoorden.opBestandsVraag(wav("100%s %n/bel.wav"));
  klik(wxID_OPEN);
  codeer();
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  Bericht const& bericht = antwoorden.berichten[0];
  EXPECT_EQ(bericht.titel, encoder + " encoding succeeded");
  EXPECT_EQ(bericht.tekst,
            "Audio data in\n" + pad("100%s %n") + "\nwas successfully encoded to " + encoder + ".");
  EXPECT_EQ(bericht.stijl, wxOK | wxICON_INFORMATION);
  EXPECT_EQ(bericht.ouder, venster);
}

wxGenericProgressDialog* voortgang() {
  for (wxWindow* een : wxTopLevelWindows) {
    if (auto* const gevonden = dynamic_cast<wxGenericProgressDialog*>(een)) {
      return gevonden;
    }
  }
  return nullptr;
}

wxString WerkProef::zonderMoment(wxString const& tekst) {
  return wxTekst(zonderMomenten(tekst.utf8_string()));
}

std::vector<wxString> WerkProef::boomVan(std::vector<BoomBestand> const& bestanden) {
  std::vector<wxString> regels;
  for (BoomBestand const& een : bestanden) {
    regels.insert(regels.end(), {een.naam, wxString::Format(" frames     : %d", een.frames),
                                 wxString::Format(" samplerate : %d", een.rate),
                                 wxString::Format(" channels   : %d", een.kanalen),
                                 " format     : " + een.formaat,
                                 " sections:", wxString::Format(" seekable   : %d", een.kanalen)});
  }
  return regels;
}

wxString WerkProef::afgewezen(wxString const& naam) {
  return naam +
         " cannot be loaded because it isn't a WAV PCM/IMA ADPCM S16 8,16,32 kHz format audio file";
}

std::vector<wxString> WerkProef::fouten() {
  std::vector<wxString> teksten;
  for (LogRegel const& regel : log()) {
    EXPECT_EQ(regel.niveau, wxLOG_Error) << regel.tekst.utf8_str();
    teksten.push_back(regel.tekst);
  }
  return teksten;
}
