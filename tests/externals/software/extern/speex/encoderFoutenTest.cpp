// Files that the encoder turns away: what it returns, logs and leaves alone; and that it lets go of
// every file on each way out.
#include <gtest/gtest.h>
#include <wx/log.h>
#include <wx/mstream.h>

#include <clocale>
#include <filesystem>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "numeriek/percentage.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/wxMain.h"

namespace {

class EncoderFouten : public EncoderProef {
 protected:
  static std::string zin(std::string const& naam, int rate, int vanEncoder = 8000) {
    return naam + " has a different sampling frequency (" + std::to_string(rate) +
           ")\nthan the encoder (" + std::to_string(vanEncoder) + ")";
  }
  // Nothing is written nor told to the caller but the result; the log has this one line.
  static void verwachtGeweigerd(Instelling const& instelling, std::string const& pad,
                                std::string const& logTekst) {
    for (bool const metHeader : {true, false}) {
      Codering const uitslag = codeer(instelling, pad, metHeader);
      EXPECT_EQ(uitslag.resultaat, 2) << pad;
      EXPECT_EQ(uitslag.tekst, "") << pad;
      EXPECT_EQ(uitslag.verhouding, onaangeraakt) << pad;
      std::vector<LogRegel> const log = neemLog();
      ASSERT_EQ(log.size(), 1U) << pad;
      EXPECT_EQ(log[0].niveau, static_cast<unsigned long>(wxLOG_Error));
      EXPECT_EQ(log[0].tekst, wxTekst(logTekst));
    }
  }

  // A file is encoded, does not fit, is missing, and meets a language without an array.
  void neemElkeUitgang(std::string const& goed, std::string const& hoog) {
    SpeexEncoderOpties python;
    python.taal = 2;
    SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
    SpeexDesktopEncoder zonderArray(Instelling().config(), python);
    for (int keer = 0; keer < 3; ++keer) {
      EXPECT_EQ(codeer(encoder, goed).resultaat, 0);
      EXPECT_EQ(codeer(encoder, hoog).resultaat, 2);
      EXPECT_EQ(codeer(encoder, map.pad("nowhere.wav")).resultaat, 2);
      EXPECT_EQ(codeer(zonderArray, goed).resultaat, 2);
    }
  }
};

TEST_F(EncoderFouten, OtherSamplingFrequencyIsLoggedAndWritesNothing) {
  struct Geval {
    int band;
    int rate;
    int vanEncoder;
  };
  for (Geval const& geval :
       {Geval{0, 16000, 8000}, {0, 7999, 8000}, {1, 8000, 16000}, {2, 44100, 32000}}) {
    Instelling instelling;
    instelling.band = geval.band;
    verwachtGeweigerd(instelling, wav("toon.wav", golf(160), geval.rate),
                      zin("toon.wav", geval.rate, geval.vanEncoder));
  }
}

TEST_F(EncoderFouten, FrequencyThatEqualsTheEncodersInItsLowBitsDoesNotFit) {
  verwachtGeweigerd(Instelling(), wav("toon.wav", golf(160), 65536 + 8000), zin("toon.wav", 73536));
}

TEST_F(EncoderFouten, FileWithoutSamplesAtAnotherFrequencyDoesNotFit) {
  verwachtGeweigerd(Instelling(), wav("toon.wav", {}, 16000), zin("toon.wav", 16000));
}

TEST_F(EncoderFouten, MissingAndUnreadableFilesHaveFrequencyZero) {
  maakBestand(map.pad("empty.wav"), "");
  maakBestand(map.pad("text.wav"), "no sound\n");
  std::filesystem::create_directory(map.pad("folder.wav"));
  for (std::string const naam : {"nowhere.wav", "empty.wav", "text.wav", "folder.wav"}) {
    verwachtGeweigerd(Instelling(), map.pad(naam), zin(naam, 0));
  }
}

TEST_F(EncoderFouten, NameThatTheLocaleCannotWriteHasFrequencyZero) {
  std::string const pad = wav("h\xC3\xA9.wav", golf(160));
  TijdelijkeLocale const kaal(LC_ALL, "C");
  ASSERT_TRUE(kaal.isGelukt());
  verwachtGeweigerd(Instelling(), pad, zin("h\xC3\xA9.wav", 0));
}

TEST_F(EncoderFouten, NameWithPercentSignsIsLoggedWhole) {
  for (std::string const naam : {"%s%n.wav", "100%.wav", "a%d %5x %", "%*d%ls.wav"}) {
    verwachtGeweigerd(Instelling(), wav(naam, golf(160), 16000), zin(naam, 16000));
  }
}

TEST_F(EncoderFouten, TwoPercentSignsInANameShowAsOneInTheLog) {
  verwachtGeweigerd(Instelling(), wav("a%%b.wav", golf(160), 16000), zin("a%b.wav", 16000));
}

TEST_F(EncoderFouten, LanguageWithoutArrayIsNotLogged) {
  SpeexEncoderOpties opties;
  opties.taal = 2;
  SpeexDesktopEncoder encoder(Instelling().config(), opties);
  EXPECT_EQ(codeer(encoder, wav("toon.wav", golf(160))).resultaat, 2);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(EncoderFouten, FrequencyGoesBeforeTheLanguage) {
  SpeexEncoderOpties opties;
  opties.taal = 7;
  SpeexDesktopEncoder encoder(Instelling().config(), opties);
  Codering const uitslag = codeer(encoder, wav("toon.wav", golf(160), 16000));
  EXPECT_EQ(uitslag.resultaat, 2);
  EXPECT_EQ(uitslag.tekst, "");
  EXPECT_EQ(neemLog().size(), 1U);
}

TEST_F(EncoderFouten, SuccessIsNotLogged) {
  EXPECT_EQ(codeer(Instelling(), wav("toon.wav", golf(160))).resultaat, 0);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(EncoderFouten, TextOfTheFileBeforeStaysWhenTheNextDoesNotFit) {
  SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
  wxMemoryOutputStream uit;
  Percentage verhouding;
  wxFileName const goed = bestandsnaam(wav("toon.wav", golf(160)));
  ASSERT_EQ(encoder.encode(goed, uit, true, verhouding), 0);
  std::string const eerst = tekstVan(uit);
  wxFileName const slecht = bestandsnaam(wav("high.wav", golf(160), 16000));
  EXPECT_EQ(encoder.encode(slecht, uit, true, verhouding), 2);
  EXPECT_TRUE(zelfdeTekst(tekstVan(uit), eerst));
  EXPECT_EQ(verhouding.geefWaarde(), 24.0);
}

TEST_F(EncoderFouten, FileThatDoesNotFitLeavesTheStateAlone) {
  SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
  std::vector<int> const samples = spraak(480, 8000);
  LosseEncoder los{Instelling()};
  codeer(encoder, wav("een.wav", samples));
  los.bestand(samples);
  EXPECT_EQ(codeer(encoder, wav("high.wav", golf(640), 16000)).resultaat, 2);
  EXPECT_EQ(framesIn(codeer(encoder, wav("twee.wav", golf(320))).tekst), los.bestand(golf(320)));
}

// The files that this process has open. The walk itself counts as one, each time.
std::ptrdiff_t openBestanden() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                       std::filesystem::directory_iterator());
}

// A log that ends the encoding in its middle.
class GooiendLog : public wxLog {
 protected:
  void DoLogRecord(wxLogLevel /*niveau*/, wxString const& /*tekst*/,
                   wxLogRecordInfo const& /*info*/) override {
    throw std::runtime_error("log");
  }
};

void codeerMetGooiendLog(std::string const& pad) {
  GooiendLog log;
  wxLog* const vorige = wxLog::SetActiveTarget(&log);
  EXPECT_THROW(codeer(Instelling(), pad), std::runtime_error);
  wxLog::SetActiveTarget(vorige);
}

TEST_F(EncoderFouten, FileIsClosedOnEveryWayOut) {
  std::string const goed = wav("toon.wav", golf(400));
  std::string const hoog = wav("high.wav", golf(400), 16000);
  std::ptrdiff_t const voor = openBestanden();
  neemElkeUitgang(goed, hoog);
  EXPECT_EQ(openBestanden(), voor);
}

TEST_F(EncoderFouten, FileIsClosedWhenAnExceptionPasses) {
  std::string const hoog = wav("high.wav", golf(400), 16000);
  std::ptrdiff_t const voor = openBestanden();
  codeerMetGooiendLog(hoog);
  EXPECT_EQ(openBestanden(), voor);
}

// The two above run on Linux alone: under Wine a process has descriptors of Wine's own, whose
// number changes. But Windows removes no file that is open.
TEST_F(EncoderFouten, FilesCanBeRemovedAfterEveryWayOut) {
  std::string const goed = wav("toon.wav", golf(400));
  std::string const hoog = wav("high.wav", golf(400), 16000);
  neemElkeUitgang(goed, hoog);
  EXPECT_TRUE(std::filesystem::remove(goed));
  EXPECT_TRUE(std::filesystem::remove(hoog));
}

TEST_F(EncoderFouten, FileCanBeRemovedWhenAnExceptionHasPassed) {
  std::string const hoog = wav("high.wav", golf(400), 16000);
  codeerMetGooiendLog(hoog);
  EXPECT_TRUE(std::filesystem::remove(hoog));
}

}  // namespace
