// Which controls are usable when: the window that follows the rules.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/bedieningsRegels.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

namespace {

class BedieningProef : public GereedProef {
 protected:
  // Holds all ten windows and menu items against the row of that state.
  void verwacht(VensterToestand toestand) {
    SCOPED_TRACE(::testing::Message()
                 << toestand.geladen << toestand.gecodeerd << toestand.klasseOntbreekt);
    bool const geladen = toestand.geladen;
    bool const klaar = geladen && !toestand.klasseOntbreekt;
    bool const coderen = klaar && !toestand.gecodeerd;
    EXPECT_EQ(knop(ID_SPEEL_BRON)->IsEnabled(), geladen);
    EXPECT_EQ(boom()->IsEnabled(), geladen);
    EXPECT_EQ(menuItem(ID_SPEEL_BRON)->IsEnabled(), geladen);
    EXPECT_EQ(knop(wxID_SAVEAS)->IsEnabled(), klaar);
    EXPECT_EQ(menuItem(ID_CODEER)->IsEnabled(), coderen);
    EXPECT_EQ(knop(ID_CODEER)->IsEnabled(), coderen);
    EXPECT_EQ(menuItem(wxID_SAVE)->IsEnabled(), toestand.gecodeerd);
    EXPECT_EQ(menuItem(ID_SPEEL_RESULTAAT)->IsEnabled(), toestand.gecodeerd);
    EXPECT_EQ(knop(wxID_SAVE)->IsEnabled(), toestand.gecodeerd);
    EXPECT_EQ(knop(ID_SPEEL_RESULTAAT)->IsEnabled(), toestand.gecodeerd);
    // What the rules never touch.
    EXPECT_TRUE(knop(wxID_OPEN)->IsEnabled());
    EXPECT_TRUE(knop(wxID_EXIT)->IsEnabled());
    EXPECT_TRUE(menuItem(wxID_OPEN)->IsEnabled());
    EXPECT_TRUE(menuItem(wxID_EXIT)->IsEnabled());
    EXPECT_TRUE(menuItem(wxID_ABOUT)->IsEnabled());
    EXPECT_TRUE(menuItem(ID_TAAL)->IsEnabled());
  }

  // Empties the class field without the event that typing sends: the rules look at the field alone.
  void leegKlasseVeld() {
    veld(ID_KLASSE)->ChangeValue(wxEmptyString);
    rust();
  }

  // A load that ends at its second file: nothing is loaded any more, and the result stays.
  void verliesBestanden() { laad({maakFragment("a.wav", 16000), maakFragment("b.wav", 8000)}); }
};

TEST_F(BedieningProef, InCTheResultGoesWithALoadAndTheEmptyClassFieldDoesNotMatter) {
  startMetSpeex("speexOutputLanguage=0\n");
  verwacht({false, false, false});
  laad({maakFragment("fragment.wav")});
  EXPECT_EQ(veld(ID_KLASSE)->GetValue(), wxString());
  verwacht({true, false, false});
  codeerPcm();
  verwacht({true, true, false});
  bewaar(pad("uit.c"));
  verwacht({true, true, false});
  laad({maakFragment("ander.wav")});
  verwacht({true, false, false});
  codeer();
  verliesBestanden();
  verwacht({false, true, false});
}

TEST_F(BedieningProef, RecordDecidesAboutTheClassAndNotTheRadioBox) {
  startMetSpeex("speexOutputLanguage=0\n");
  laad({maakFragment("fragment.wav")});
  // Without its event the radio box leaves the record at C.
  radio(ID_LANG_IMPL)->SetSelection(1);
  rust();
  verwacht({true, false, false});
  stuur(radio(ID_LANG_IMPL), wxEVT_RADIOBOX);
  verwacht({true, false, true});
}

TEST_F(BedieningProef, InCPPTheEmptyClassFieldKeepsEncodeAndSaveAsDisabledAndTheResultUsable) {
  start("[Configuratie]\nklasseNaam=\n");
  verwacht({false, false, true});
  laad({maakFragment("fragment.wav")});
  verwacht({true, false, true});
  typ(veld(ID_KLASSE), "K");
  verwacht({true, false, false});
  typ(veld(ID_KLASSE), "");
  verwacht({true, false, true});
  typ(veld(ID_KLASSE), "K");
  codeerPcm();
  verwacht({true, true, false});
  leegKlasseVeld();
  verwacht({true, true, true});
  verliesBestanden();
  verwacht({false, true, true});
}

TEST_F(BedieningProef, ClassNameOfTheConfigurationShowsAndEnablesEncode) {
  start("[Configuratie]\nklasseNaam=Klank\n");
  laad({maakFragment("fragment.wav")});
  EXPECT_EQ(veld(ID_KLASSE)->GetValue(), "Klank");
  verwacht({true, false, false});
}

class SpeexBedieningProef : public BedieningProef {
 protected:
  void verwachtSpeex(bool aan) {
    for (wxWindow* deel : std::initializer_list<wxWindow*>{
             keuze(ID_FORMAAT), keuze(ID_BITRATE_TYPE), spin(ID_QUALITY), spin(ID_COMPLEXITY),
             vakje(ID_VAD), vakje(ID_AGC), vakje(ID_DENOISE), vakje(ID_PERPENH), veld(ID_MAX_RATE),
             metLabel("Quality:"), metLabel("Complexity:"),
             metLabel("(Maximum/Average)\nBit rate:")}) {
      ASSERT_NE(deel, nullptr);
      EXPECT_EQ(deel->IsEnabled(), aan) << deel->GetId();
    }
    // These belong to every encoder.
    for (wxWindow* altijd :
         std::initializer_list<wxWindow*>{keuze(ID_DAC_TYPE), vakje(ID_INCL_HEADER),
                                          radio(ID_LANG_IMPL), radio(ID_ENCODER_TYPE)}) {
      EXPECT_TRUE(altijd->IsEnabled()) << altijd->GetId();
    }
  }
};

TEST_F(SpeexBedieningProef, AdpcmAndPcmDisableTheSpeexOptionsAndSpeexEnablesThem) {
  start();
  verwachtSpeex(true);
  kies(radio(ID_ENCODER_TYPE), 1);
  verwachtSpeex(false);
  kies(radio(ID_ENCODER_TYPE), 0);
  verwachtSpeex(true);
  kies(radio(ID_ENCODER_TYPE), 2);
  verwachtSpeex(false);
}

TEST_F(SpeexBedieningProef, PcmOfTheConfigurationDisablesThemAtTheFirstIdleCycle) {
  start("[Configuratie]\nConvertertype=2\n");
  EXPECT_EQ(radio(ID_ENCODER_TYPE)->GetSelection(), 2);
  EXPECT_EQ(radio(ID_ENCODER_TYPE)->GetStringSelection(), "PCM");
  verwachtSpeex(false);
}

class KlasseBedieningProef : public BedieningProef {
 protected:
  void verwachtKlasse(bool aan) {
    EXPECT_EQ(metLabel("Class :")->IsEnabled(), aan);
    EXPECT_EQ(veld(ID_KLASSE)->IsEnabled(), aan);
  }
};

TEST_F(KlasseBedieningProef, CDisablesTheClassAndKeepsItsName) {
  start("[Configuratie]\nklasseNaam=Klank\n");
  verwachtKlasse(true);
  kies(radio(ID_LANG_IMPL), 0);
  verwachtKlasse(false);
  EXPECT_EQ(veld(ID_KLASSE)->GetValue(), "Klank");
  kies(radio(ID_LANG_IMPL), 1);
  verwachtKlasse(true);
  kies(radio(ID_LANG_IMPL), 0);
  EXPECT_EQ(stopSleutels().at("/Configuratie/klasseNaam"), "Klank");
}

TEST_F(KlasseBedieningProef, PythonOfTheConfigurationEnablesAndNeedsTheClassToo) {
  startMetSpeex("speexOutputLanguage=2\n");
  verwachtKlasse(true);
  laad({maakFragment("fragment.wav")});
  verwacht({true, false, true});
  typ(veld(ID_KLASSE), "K");
  verwacht({true, false, false});
}

}  // namespace
