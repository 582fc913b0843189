// What a start reads from the configuration file and an end writes into it.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/platinfo.h>
#include <wx/radiobox.h>
#include <wx/regex.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <cstdlib>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"
#include "tests/steun/configTekst.h"

namespace {

using Sleutels = std::map<wxString, wxString>;

class ConfiguratieProef : public GereedProef {
 protected:
  // The keys of a first run that did nothing, but for the moments.
  Sleutels eersteKeer() const {
    Sleutels sleutels{
        {"/Gebruikersinstellingen/Taal",
         wxString::Format("%d", static_cast<int>(wxLANGUAGE_ENGLISH))},
        {"/Gebruikersinstellingen/Speex/speexFormat", "0"},
        {"/Gebruikersinstellingen/Speex/speexQuality", "8"},
        {"/Gebruikersinstellingen/Speex/speexComplexity", "3"},
        {"/Gebruikersinstellingen/Speex/speexBitRateChoice", "0"},
        {"/Gebruikersinstellingen/Speex/speexBitRate", "5000"},
        {"/Gebruikersinstellingen/Speex/speexOutputLanguage", "1"},
        {"/Gebruikersinstellingen/Speex/speexVAC", "1"},
        {"/Gebruikersinstellingen/Speex/speexDenoise", "1"},
        {"/Gebruikersinstellingen/Speex/speexAGC", "1"},
        {"/Gebruikersinstellingen/Speex/IncludeHeader", "1"},
        {"/Gebruikersinstellingen/Speex/dacNumberOfBits", "3"},
        {"/Configuratie/wavDirectory", thuis()},
        {"/Configuratie/speexDirectory", thuis()},
        {"/Configuratie/wavFile", ""},
        {"/Configuratie/speexFile", ""},
        {"/Configuratie/klasseNaam", ""},
        {"/Configuratie/Convertertype", "0"},
        {"/Statistiek/OS", wxString::Format("%d", static_cast<int>(wxOS_UNIX_LINUX))},
    };
    for (int i = 1; i <= 9; ++i) {
      sleutels[wxString::Format("/Configuratie/file%d", i)] = "";
    }
    return sleutels;
  }

  // Takes the four moments out, after a look at their form.
  static void neemMomenten(Sleutels& sleutels) {
    static wxRegEx const datum("^[0-9]{4}-[0-9]{2}-[0-9]{2}$");
    static wxRegEx const tijd("^[0-9]{2}:[0-9]{2}:[0-9]{2}$");
    for (char const* wanneer : {"Start", "Stop"}) {
      wxString const stam = wxString("/Statistiek/") + wanneer;
      EXPECT_TRUE(datum.Matches(sleutels[stam + "Datum"])) << wanneer;
      EXPECT_TRUE(tijd.Matches(sleutels[stam + "Tijd"])) << wanneer;
      sleutels.erase(stam + "Datum");
      sleutels.erase(stam + "Tijd");
    }
  }
};

TEST_F(ConfiguratieProef, FirstRunWritesEveryKeyWithItsDefaultAndNoOther) {
  ASSERT_FALSE(wxFileExists(thuis() + "/.Kestrolin"));
  start();
  EXPECT_TRUE(nietsGelogd(log()));
  Sleutels sleutels = stopSleutels();
  neemMomenten(sleutels);
  EXPECT_EQ(sleutels, eersteKeer());
}

TEST_F(ConfiguratieProef, HomeWithASeparatorAtItsEndGivesTheDirectoriesWithoutOne) {
  setenv("HOME", (thuis() + "/").utf8_str(), 1);
  start();
  Sleutels const sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Configuratie/wavDirectory"), thuis());
  EXPECT_EQ(sleutels.at("/Configuratie/speexDirectory"), thuis());
}

// A file with another value for every key.
constexpr char const* alleAnders =
    "[Gebruikersinstellingen/Speex]\nspeexFormat=2\nspeexQuality=4\nspeexComplexity=9\n"
    "speexBitRateChoice=1\nspeexBitRate=24600\nspeexOutputLanguage=0\nspeexVAC=0\n"
    "speexDenoise=0\nspeexAGC=0\nIncludeHeader=0\ndacNumberOfBits=1\n[Configuratie]\n"
    "wavDirectory=/klank/in\nspeexDirectory=/klank/uit\nwavFile=oud.wav\nspeexFile=oud.spx\n"
    "klasseNaam=Klank\nConvertertype=1\n";

TEST_F(ConfiguratieProef, EveryValueIsShownAndComesBackUnchanged) {
  start(alleAnders);
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), 2);
  EXPECT_EQ(spin(ID_QUALITY)->GetValue(), 4);
  EXPECT_EQ(spin(ID_COMPLEXITY)->GetValue(), 9);
  EXPECT_EQ(keuze(ID_BITRATE_TYPE)->GetSelection(), 1);
  EXPECT_EQ(veld(ID_MAX_RATE)->GetValue(), "24600");
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), 0);
  EXPECT_FALSE(vakje(ID_VAD)->GetValue());
  EXPECT_FALSE(vakje(ID_DENOISE)->GetValue());
  EXPECT_FALSE(vakje(ID_AGC)->GetValue());
  EXPECT_FALSE(vakje(ID_INCL_HEADER)->GetValue());
  EXPECT_EQ(keuze(ID_DAC_TYPE)->GetSelection(), 1);
  EXPECT_EQ(veld(ID_KLASSE)->GetValue(), "Klank");
  EXPECT_EQ(radio(ID_ENCODER_TYPE)->GetSelection(), 1);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_TRUE(antwoorden.berichten.empty());
  Sleutels verwacht = eersteKeer();
  for (auto const& [naam, waarde] : configSleutels(alleAnders)) {
    verwacht[naam] = waarde;
  }
  Sleutels sleutels = stopSleutels();
  neemMomenten(sleutels);
  EXPECT_EQ(sleutels, verwacht);
}

TEST_F(ConfiguratieProef, EachFlagIsShownInItsOwnBox) {
  startMetSpeex("speexVAC=1\nspeexDenoise=0\nspeexAGC=1\n");
  EXPECT_TRUE(vakje(ID_VAD)->GetValue());
  EXPECT_FALSE(vakje(ID_DENOISE)->GetValue());
  EXPECT_TRUE(vakje(ID_AGC)->GetValue());
}

TEST_F(ConfiguratieProef, SizeOfTheWindowIsReadAndNeverWritten) {
  start("[Gebruikersinstellingen/Venster]\nGrootteX=900\nGrootteY=700\n");
  EXPECT_EQ(venster->GetClientSize(), wxSize(900, 700));
  venster->SetClientSize(850, 650);
  rust();
  Sleutels const sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Venster/GrootteX"), "900");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Venster/GrootteY"), "700");
}

TEST_F(ConfiguratieProef, EnhancementIsTickedAtEveryStartAndNeverStored) {
  start("[Gebruikersinstellingen/Speex]\nspeexVAC=0\nperpenh=0\n");
  EXPECT_TRUE(vakje(ID_PERPENH)->GetValue());
  zet(vakje(ID_PERPENH), false);
  Sleutels sleutels = stopSleutels();
  neemMomenten(sleutels);
  Sleutels verwacht = eersteKeer();
  verwacht["/Gebruikersinstellingen/Speex/speexVAC"] = "0";
  verwacht["/Gebruikersinstellingen/Speex/perpenh"] = "0";
  EXPECT_EQ(sleutels, verwacht);
  start();
  EXPECT_TRUE(vakje(ID_PERPENH)->GetValue());
}

TEST_F(ConfiguratieProef, UnknownKeysAndGroupsAndDollarSignsAreKept) {
  wxString const regels =
      "[Eigen]\nsleutel=waarde\n[Configuratie]\nfile10=/klank/tien.wav\nlater=nieuw\n"
      "wavDirectory=/klank/$HOME\nspeexDirectory=/uit/${HOME}\nwavFile=$HOME.wav\n"
      "speexFile=$(HOME)\nklasseNaam=$HOME\nfile1=/klank/$HOME.wav\n"
      "[Gebruikersinstellingen/Speex]\nspeexExtra=5\n";
  start(regels);
  EXPECT_EQ(veld(ID_KLASSE)->GetValue(), "$HOME");
  Sleutels const sleutels = stopSleutels();
  for (auto const& [naam, waarde] : configSleutels(regels)) {
    if (!naam.EndsWith("file10")) {
      EXPECT_EQ(sleutels.at(naam), waarde) << naam.utf8_str();
    }
  }
}

TEST_F(ConfiguratieProef, HistoryComesBackInItsOrderAndTheNewestComesFirst) {
  start("[Configuratie]\nfile1=/klank/een.wav\nfile2=/klank/twee.wav\n");
  wxString const nieuw = maakFragment("nieuw.wav");
  laad({nieuw});
  Sleutels const sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Configuratie/file1"), nieuw);
  EXPECT_EQ(sleutels.at("/Configuratie/file2"), "/klank/een.wav");
  EXPECT_EQ(sleutels.at("/Configuratie/file3"), "/klank/twee.wav");
  EXPECT_EQ(sleutels.at("/Configuratie/file4"), "");
}

TEST_F(ConfiguratieProef, SettingsOfTheRunAreWrittenAtItsEndAloneAlsoThoseNeverChangedAndNoSize) {
  start();
  kies(keuze(ID_FORMAAT), 1);
  zet(spin(ID_QUALITY), 2);
  kies(radio(ID_ENCODER_TYPE), 2);
  // Without its keys the next start has its 800 by 600 again.
  venster->SetClientSize(900, 700);
  rust();
  EXPECT_FALSE(wxFileExists(thuis() + "/.Kestrolin"));
  Sleutels sleutels = stopSleutels();
  neemMomenten(sleutels);
  Sleutels verwacht = eersteKeer();
  verwacht["/Gebruikersinstellingen/Speex/speexFormat"] = "1";
  verwacht["/Gebruikersinstellingen/Speex/speexQuality"] = "2";
  verwacht["/Configuratie/Convertertype"] = "2";
  EXPECT_EQ(sleutels, verwacht);
}

}  // namespace
