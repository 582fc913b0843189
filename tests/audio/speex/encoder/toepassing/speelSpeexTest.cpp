// What is heard of a Speex result: the whole way from the generated text to the loudspeaker.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/log.h>
#include <wx/radiobox.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"
#include "tests/steun/configTekst.h"

namespace {

// What the Speex library makes of the first `telling` frames of a narrowband or wideband text with
// one array. Behind the last one come frames without bytes.
std::vector<int> klankVan(std::string const& tekst, int band, std::size_t telling) {
  Frames frames = framesIn(tekst);
  frames.resize(telling);
  DirecteDecoder decoder(band);
  std::vector<short> blok(bandFrames.at(static_cast<std::size_t>(band)));
  std::vector<int> samples;
  for (Bytes const& frame : frames) {
    decoder.decodeer(frame, blok);
    samples.insert(samples.end(), blok.begin(), blok.end());
  }
  return samples;
}

wxString fragmentRegel(int nummer, int rate, int frames) {
  return wxString::Format("Fragment %d: sampling frequency %d Hz, number of frames %d", nummer,
                          rate, frames);
}

class SpeelSpeexProef : public SpeelProef {
 protected:
  // Starts with Speex, and encodes these.
  void codeerSpeex(SpeexFragmenten const& fragmenten, int rate = 8000) {
    beginSpeex();
    neemOp();
    laadFragmenten(fragmenten, rate);
    codeer();
  }
  // Forgets what was heard and logged, and the temporary files with it.
  void vergeet() {
    gehoord.clear();
    log().clear();
    for (std::string const& pad : tijdelijke()) {
      std::filesystem::remove(pad);
    }
  }
  // Plays the result also where its button is disabled.
  void speelTochResultaat() { stuur(knop(ID_SPEEL_RESULTAAT), wxEVT_BUTTON); }

  // Expects no more in the log than these pieces of information.
  static void verwachtLog(std::vector<wxString> const& regels) {
    std::vector<wxString> gevonden;
    for (LogRegel const& regel : log()) {
      EXPECT_EQ(regel.niveau, wxLOG_Message);
      gevonden.push_back(regel.tekst);
    }
    EXPECT_EQ(gevonden, regels);
  }
};

TEST_F(SpeelSpeexProef, AResultIsHeardAsSpeexDecodesItsTextInItsBand) {
  beginSpeex();
  neemOp();
  // The array counts its 4000 samples, and the decoder takes them for frames.
  laadFragmenten({spraakFragment()});
  codeer();
  verwachtResultaat("speexTmpBestand", 1, 8000, klankVan(tekst().utf8_string(), 0, 4000));
  verwachtLog({fragmentRegel(1, 8000, 4000)});

  vergeet();
  laadFragmenten({{"bel", golf(1600)}}, 16000);
  codeer();
  verwachtResultaat("speexTmpBestand", 1, 16000, klankVan(tekst().utf8_string(), 1, 1600));
  verwachtLog({fragmentRegel(1, 16000, 1600)});

  // The low byte of 32000 has one digit, so that the text tells the decoder another frequency.
  vergeet();
  laadFragmenten({{"bel", golf(1600)}}, 32000);
  codeer();
  verwachtResultaat("speexTmpBestand", 0, 32000, {});
  verwachtLog({});

  // Without a header in the array it counts none either.
  vergeet();
  laadFragmenten({spraakFragment()});
  zonderHeader();
  codeer();
  verwachtResultaat("speexTmpBestand", 0, 8000, {});
  verwachtLog({});
}

TEST_F(SpeelSpeexProef, ASecondFileIsTakenForFramesOfTheFirstAndTheCountStaysOne) {
  codeerSpeex({spraakFragment("bel"), spraakFragment("zoem")});
  klik(ID_SPEEL_RESULTAAT);
  ASSERT_EQ(gehoord.size(), 1U);
  EXPECT_EQ(gehoord[0].status, "Decoded 1 audio fragments from Speex data are now playing.");
  EXPECT_EQ(gehoord[0].geluid.samples, 4000U * 160U);
  // The frames of the first are heard as they are.
  std::vector<int> const eerste =
      decodeer(framesVan({spraakFragment()}, eersteInstelling()).front(), 0);
  ASSERT_EQ(eerste.size(), 25U * 160U);
  GeluidBytes begin = gehoord[0].bytes;
  begin.resize(2 * eerste.size());
  EXPECT_TRUE(begin == geluidBytes(eerste));
  verwachtLog({fragmentRegel(1, 8000, 4000)});
}

// The count of 65552 samples has 16 bits: 16. The decoder leaves the first array after that.
TEST_F(SpeelSpeexProef, ASecondFileCountsWhereTheFirstOneTellsOfFewFrames) {
  SpeexFragment const lang{"bel", golf(65552)};
  SpeexFragment const kort = korteBel("zoem");
  codeerSpeex({lang, kort});
  std::vector<Frames> frames = framesVan({lang, kort}, eersteInstelling());
  frames[0].resize(16);
  frames[0].push_back(frames[1].at(0));
  std::vector<int> verwacht = decodeer(frames[0], 0);
  // The one frame of the second is said to be 160, and stays in the ear.
  std::vector<int> const laatste(verwacht.end() - 160, verwacht.end());
  for (int keer = 1; keer < 160; ++keer) {
    verwacht.insert(verwacht.end(), laatste.begin(), laatste.end());
  }
  verwachtResultaat("speexTmpBestand", 2, 8000, verwacht);
  verwachtLog({fragmentRegel(1, 8000, 16), fragmentRegel(2, 8000, 160)});
}

TEST_F(SpeelSpeexProef, PlayedTwiceItLeavesFourNewFiles) {
  codeerSpeex({korteBel()});
  std::size_t const voordien = tijdelijke().size();
  klik(ID_SPEEL_RESULTAAT);
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(tijdelijke().size(), voordien + 4);
  std::vector<std::string> const teksten = tijdelijke("speexTmpBestand");
  ASSERT_EQ(teksten.size(), 2U);
  EXPECT_EQ(leesTekst(teksten[0]), tekst().utf8_string());
  EXPECT_EQ(leesTekst(teksten[1]), tekst().utf8_string());
  std::vector<std::string> const wavs = tijdelijke("wavTmpBestand");
  ASSERT_EQ(wavs.size(), 2U);
  EXPECT_TRUE(leesBytes(wavs[0]) == leesBytes(wavs[1]));
  ASSERT_EQ(gehoord.size(), 2U);
  EXPECT_TRUE(gehoord[0].bytes == gehoord[1].bytes);
}

TEST_F(SpeelSpeexProef, TheMenuItemPlaysTheSameAndTheSecondOfTwoRunsIsHeardAlone) {
  codeerSpeex({korteBel()});
  kiesMenu(ID_SPEEL_RESULTAAT);
  verwachtGespeeld(1, 8000, klankVan(tekst().utf8_string(), 0, 160));
  vergeet();
  laadFragmenten({korteBel("zoem")});
  codeer();
  verwachtResultaat("speexTmpBestand", 1, 8000, klankVan(tekst().utf8_string(), 0, 160));
}

TEST_F(SpeelSpeexProef, WithNothingEncodedYetItCountsNoneAndIsAnEmptySound) {
  beginSpeex();
  neemOp();
  ASSERT_FALSE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  speelTochResultaat();
  verwachtGespeeld(0, 8000, {});
  EXPECT_EQ(leesTekst(tijdelijk("speexTmpBestand")), "");
  verwachtLog({});
}

TEST_F(SpeelSpeexProef, TheResultStaysAndCountsAsSavedOnlyWhereItIs) {
  codeerSpeex({korteBel()});
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(isGeladen());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  antwoorden.opBericht(wxID_CANCEL);
  klik(wxID_EXIT);
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
  bewaar(pad("uit.c"));
  klik(ID_SPEEL_RESULTAAT);
  // No question comes.
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
}

TEST_F(SpeelSpeexProef, ThePlayChangesNoSetting) {
  constexpr char const* regels =
      "speexQuality=6\nspeexComplexity=5\nspeexBitRateChoice=1\nspeexBitRate=7000\nspeexVAC=0\n"
      "speexDenoise=0\nspeexAGC=0\ndacNumberOfBits=2\n";
  beginSpeex(0, regels);
  neemOp();
  laadFragmenten({{"bel", golf(1600)}}, 16000);
  codeer();
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), 1);
  EXPECT_EQ(radio(ID_ENCODER_TYPE)->GetSelection(), EncoderSpeex);
  std::map<wxString, wxString> sleutels = stopSleutels();
  wxString const groep = "/Gebruikersinstellingen/Speex/";
  std::map<wxString, wxString> const verwacht = configSleutels(
      "[Gebruikersinstellingen/Speex]\nspeexFormat=1\nspeexOutputLanguage=0\n"
      "IncludeHeader=1\n" +
      wxString(regels));
  for (auto const& [sleutel, waarde] : verwacht) {
    EXPECT_EQ(sleutels[sleutel], waarde) << sleutel.utf8_str();
  }
}

// What follows is reached where the button is disabled: by a key on its way, say.

TEST_F(SpeelSpeexProef, ABandChosenAfterTheEncodingIsTheDecoders) {
  codeerSpeex({korteBel()});
  kies(keuze(ID_FORMAAT), 1);
  ASSERT_FALSE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  speelTochResultaat();
  verwachtGespeeld(0, 16000, {});
  EXPECT_FALSE(isGecodeerd());
  verwachtLog({});
}

// 8000 samples at 8000 Hz: the count and the frequency of the other format stand where Speex has
// its frequency, 8000, and its count, 0.
TEST_F(SpeelSpeexProef, ChosenAfterAPcmRunItReadsThatText) {
  begin();
  neemOp();
  laadFragmenten({{"bel", golf(8000)}});
  codeer();
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  ASSERT_FALSE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  speelTochResultaat();
  verwachtGespeeld(1, 8000, {});
  EXPECT_TRUE(leesTekst(tijdelijk("speexTmpBestand")) == tekst().utf8_string());
  EXPECT_TRUE(tekst().StartsWith("/* PCM encoding output"));
  verwachtLog({fragmentRegel(1, 8000, 0)});
}

}  // namespace
