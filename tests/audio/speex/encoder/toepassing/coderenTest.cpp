// What an encoding run does with the settings, the files and the window.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <clocale>
#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class CoderenProef : public WerkProef {
 protected:
  // The files in the directory for temporary ones.
  std::vector<wxString> tijdelijk() const {
    std::vector<wxString> namen;
    for (auto const& een : std::filesystem::directory_iterator(map.pad("tmp"))) {
      namen.push_back(wxString::FromUTF8(een.path().filename().c_str()));
    }
    return namen;
  }
};

// Every array starts with the count of its samples and its frequency: 8000 is 0x1f40.

TEST_F(CoderenProef, EachWidthOfTheDacDividesTowardsZero) {
  struct Rij {
    int keuze;
    char const* rijen;
  };
  begin();
  laad({wav("bel.wav", {32767, -32768, 255, -255, -256, 64, -63})});
  for (Rij const& rij : {// By 256: 127, -128, 0, 0, -1, 0, 0.
                         Rij{0,
                             "\t0x7,0x0,0x0,0x0,0x40,0x1f,0x7f,0x0,\n"
                             "\t0x80,0xff,0x0,0x0,0x0,0x0,0xff,0xff,\n"
                             "\t0x0,0x0,0x0,0x0,\n"},
                         // By 64: 511, -512, 3, -3, -4, 1, 0.
                         Rij{1,
                             "\t0x7,0x0,0x0,0x0,0x40,0x1f,0xff,0x1,\n"
                             "\t0x0,0xfe,0x3,0x0,0xfd,0xff,0xfc,0xff,\n"
                             "\t0x1,0x0,0x0,0x0,\n"},
                         // By 16: 2047, -2048, 15, -15, -16, 4, -3.
                         Rij{2,
                             "\t0x7,0x0,0x0,0x0,0x40,0x1f,0xff,0x7,\n"
                             "\t0x0,0xf8,0xf,0x0,0xf1,0xff,0xf0,0xff,\n"
                             "\t0x4,0x0,0xfd,0xff,\n"},
                         // As they are.
                         Rij{3,
                             "\t0x7,0x0,0x0,0x0,0x40,0x1f,0xff,0x7f,\n"
                             "\t0x0,0x80,0xff,0x0,0x1,0xff,0x0,0xff,\n"
                             "\t0x40,0x0,0xc1,0xff,\n"}}) {
    SCOPED_TRACE(rij.keuze);
    kies(keuze(ID_DAC_TYPE), rij.keuze);
    EXPECT_EQ(rijen(codeer()), rij.rijen);
  }
  // A width that the configuration made up counts as the full one.
  laad({wav("bel.wav", {32767})});
  for (int const breedte : {4, -1}) {
    SCOPED_TRACE(breedte);
    wxGetApp().geefInstellingen().dacNumberOfBits = breedte;
    laad({pad("bel.wav")});
    EXPECT_EQ(rijen(codeer()), "\t0x1,0x0,0x0,0x0,0x40,0x1f,0xff,0x7f,\n");
  }
}

TEST_F(CoderenProef, EachKindOfFileIsEncodedAsItIsNow) {
  begin();
  // Of a stereo file the first frames' interleaved values.
  laad({wav("bel.wav", {1, 2, 3, 4, 5, 6}, {8000, 2})});
  wxString text = codeer();
  EXPECT_TRUE(text.Contains("/* Original size              : 3 frames\t\t*/\n"));
  EXPECT_TRUE(text.Contains("/* const unsigned int bel_pcmNumberOfEncSamples=3; */\n"));
  EXPECT_EQ(rijen(text), "\t0x3,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n\t0x2,0x0,0x3,0x0,\n");

  // An ADPCM file is decoded first.
  laad({bestand("bel.wav", imaAdpcmWav(32000, 0x123))});
  text = codeer();
  EXPECT_TRUE(text.Contains("_pcmNumberOfEncSamples=505; */\n"));
  // 505 is 0x1f9 and 32000 is 0x7d00.
  wxString verwacht = "\t0xf9,0x1,0x0,0x0,0x0,0x7d,0x23,0x1,\n";
  for (int rij = 0; rij < 126; ++rij) {
    verwacht += "\t0x23,0x1,0x23,0x1,0x23,0x1,0x23,0x1,\n";
  }
  EXPECT_EQ(rijen(text), verwacht);

  // A file that changed after the load gives what it is now.
  laad({wav("bel.wav", {1, 2, 3})});
  wav("bel.wav", {9}, {44100});
  text = codeer();
  EXPECT_TRUE(text.Contains("/* Sampling frequency         : 44100 Hz\t\t*/\n"));
  EXPECT_TRUE(text.Contains("/* Original size              : 1 frames\t\t*/\n"));
  // 44100 is 0xac44.
  EXPECT_EQ(rijen(text), "\t0x1,0x0,0x0,0x0,0x44,0xac,0x9,0x0,\n");

  // 1.543 s are rounded to two decimals.
  laad({wav("bel.wav", proefSamples(12344))});
  text = codeer();
  EXPECT_TRUE(text.Contains("/* Original duration          : 1.54 s\t\t*/\n"));
  EXPECT_TRUE(text.Contains("/* Original size              : 12344 frames\t\t*/\n"));
}

TEST_F(CoderenProef, NamesGoIntoTheTextUnchangedAndTheTextIntoTheFile) {
  begin(1);
  laad({wav("stil zwijgen.wav"), wav("a.b.wav"), wav("%s%n.wav"),
        wav("één.wav", proefSamples(3000))});
  wxString const text = codeer();
  for (char const* naam : {"stil zwijgen", "a.b", "%s%n", "één"}) {
    wxString const n = wxString::FromUTF8(naam);
    EXPECT_TRUE(text.Contains("\n// static const unsigned char " + n + "[];\n")) << naam;
    EXPECT_TRUE(text.Contains("\n/* WAV file : " + n + ".wav\t\t*/\n")) << naam;
    EXPECT_TRUE(text.Contains("\n//const unsigned int Geluid::" + n + "_pcmNumberOfEncSamples="))
        << naam;
    EXPECT_TRUE(text.Contains("\nconst unsigned char Geluid::" + n + "[] = \n{\n")) << naam;
    EXPECT_TRUE(text.Contains("\n/* end of encoded WAV file         : " + n + ".wav         */\n"))
        << naam;
  }
  bewaar(pad("uit.cpp"));
  EXPECT_EQ(inhoud(pad("uit.cpp")), tekst());
}

TEST_F(CoderenProef, WithoutAClassNameCIsEncodedAndCPlusPlusIsNot) {
  begin(1);
  laad({wav("bel.wav")});
  typ(veld(ID_KLASSE), "");
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  EXPECT_FALSE(menuItem(ID_CODEER)->IsEnabled());
  typ(veld(ID_KLASSE), "Klok");
  EXPECT_TRUE(codeer().Contains("\n// class Klok\n"));
  typ(veld(ID_KLASSE), "");
  kies(radio(ID_LANG_IMPL), 0);
  EXPECT_TRUE(codeer().Contains("\nconst unsigned char bel[] = \n{\n"));
}

TEST_F(CoderenProef, TheMessageTellsTheDirectoryOfTheOpenDialogAndBeforeOneThatOfHome) {
  begin();
  laad({wav("bel.wav")});
  codeer();
  // Without a separator at its end.
  EXPECT_EQ(antwoorden.berichten[0].tekst,
            "Audio data in\n" + map.pad("thuis") + "\nwas successfully encoded to PCM.");
  antwoorden.berichten.clear();
  verwachtMeldingVan("PCM");
}

TEST_F(CoderenProef, StatusAndEnablingFollowOnlyAfterTheMessageAndTheMenuItemEncodesToo) {
  begin();
  laad({wav("bel.wav")});
  verwachtGevolgNaMelding("Audio encoded in PCM embedded format");
  laad({pad("bel.wav")});
  antwoorden.opBericht(wxID_OK);
  kiesMenu(ID_CODEER);
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
}

TEST_F(CoderenProef, TheProgressStandsOneBehindItsEndBelowTheMessageAndGoesWithIt) {
  begin();
  laad({wav("a.wav"), wav("b.wav"), wav("c.wav")});
  antwoorden.opBericht(wxID_OK, [this] {
    wxGenericProgressDialog* const dialoog = voortgang();
    ASSERT_NE(dialoog, nullptr);
    EXPECT_EQ(dialoog->GetTitle(), "Encoding progress");
    EXPECT_EQ(dialoog->GetMessage(), "Completion of encoding progress");
    EXPECT_EQ(dialoog->GetRange(), 3);
    EXPECT_EQ(dialoog->GetValue(), 2);
    EXPECT_EQ(dialoog->GetParent(), venster);
    EXPECT_TRUE(dialoog->IsShown());
    EXPECT_EQ(dialoog->FindWindow(wxID_CANCEL), nullptr);
    // It keeps other windows from taking input.
    EXPECT_FALSE(venster->IsEnabled());
  });
  klik(ID_CODEER);
  EXPECT_EQ(voortgang(), nullptr);
  EXPECT_TRUE(venster->IsEnabled());
}

TEST_F(CoderenProef, EachRunLeavesItsTemporaryFileBehindUnderTheProposedName) {
  begin();
  laad({wav("bel.wav")});
  codeer();
  ASSERT_EQ(tijdelijk().size(), 1U);
  // Before the first save the prefix is empty, and six letters come behind it.
  wxString const eerste = tijdelijk()[0];
  EXPECT_EQ(eerste.length(), 6U);
  EXPECT_EQ(inhoud(pad("tmp/" + eerste)), tekst());

  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  kies(keuze(ID_DAC_TYPE), 0);
  codeer();
  std::vector<wxString> namen = tijdelijk();
  ASSERT_EQ(namen.size(), 2U);
  wxString const tweede = namen[0] == eerste ? namen[1] : namen[0];
  EXPECT_TRUE(tweede.StartsWith("bel"));
  EXPECT_EQ(tweede.length(), 9U);
  EXPECT_EQ(inhoud(pad("tmp/" + tweede)), tekst());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(CoderenProef, WithoutRoomForATemporaryFileTheFieldStaysEmptyAndTheTextCanBeSaved) {
  begin();
  laad({wav("bel.wav")});
  setenv("TMPDIR", "/proc", 1);
  EXPECT_EQ(codeer(), "");
  EXPECT_FALSE(fouten().empty());
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  bewaar(pad("uit.c"));
  EXPECT_TRUE(inhoud(pad("uit.c")).StartsWith("/* PCM encoding output of 1 audio files \t\t*/\n"));
}

TEST_F(CoderenProef, TheDurationKeepsItsPointInAGermanLocale) {
  begin(0, "", "", wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", wxLANGUAGE_GERMAN));
  // So it is the case that was meant.
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  laad({wav("bel.wav", proefSamples(10000))});
  EXPECT_TRUE(codeer().Contains("/* Original duration          : 1.25 s\t\t*/\n"));
}

}  // namespace
