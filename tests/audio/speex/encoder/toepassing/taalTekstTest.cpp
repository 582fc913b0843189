// The generated text in each of the languages: that of English but for the comments that the
// catalogs translate.
#include <sndfile.h>
#include <wx/filename.h>
#include <wx/radiobox.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"

namespace {

constexpr char const* declaraties = "/* Put these declarations in a header file :*/\n";
constexpr char const* beeldKop =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";
constexpr char const* speexKop =
    "\t/* Header: Sampling Freq (Lower + Higher Byte), Number of Frames (Lower + Higher Byte) */\n";
constexpr char const* wavPcm = "/* WAV Format                 : WAV S16 PCM\t*/\n";
constexpr char const* wavAdpcm = "/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n";

// The originals of the translated lines, each with the number of times that a text has it.
using Regels = std::vector<std::pair<char const*, std::size_t>>;

class TaalTekst : public ElkeTaalProef {
 protected:
  static constexpr int inbedden = -1;

  // Makes both texts, first in English in a process of its own, then in the language, and expects
  // the second to be the first but for these lines.
  void vergelijk(int encoder, Regels const& regels) {
    std::filesystem::create_directories(map.pad("engels"));
    std::filesystem::create_directories(map.pad("anders"));
    inEigenProces([this, encoder] {
      maakTeksten(wxLANGUAGE_ENGLISH, encoder, "engels/");
      stop();
    });
    maakTeksten(GetParam().nummer, encoder, "anders/");
    for (std::string const naam : {"geluid.c", "geluid.cpp"}) {
      SCOPED_TRACE(naam);
      std::string const engels = gelezen("engels/" + naam);
      // A quarter of a second, with a decimal point.
      ASSERT_EQ(telTekst(engels, ": 0.25 s\t\t*/\n"), 1U);
      EXPECT_TRUE(zelfdeTekst(inHetEngels(gelezen("anders/" + naam), regels), engels));
      EXPECT_EQ(telTekst(engels, "\xc3"), 0U);
    }
    EXPECT_TRUE(nietsGelogd(log()));
  }

  // The arrays of both texts, found by a program each, are the same bytes.
  void vergelijkArrays(std::string const& type, std::vector<std::string> const& namen) {
    for (std::string const taal : {"c", "cpp"}) {
      SCOPED_TRACE(taal);
      Bytes const engels = arrays("engels", taal, type, namen);
      EXPECT_FALSE(engels.empty());
      EXPECT_EQ(arrays("anders", taal, type, namen), engels);
    }
  }

  // The samples of a text as Play Encoded finds them, and the number of fragments.
  struct Gespeeld {
    unsigned long long fragmenten = 0;
    Bytes wav;
  };
  Gespeeld speel(std::string const& naam) {
    Gespeeld gespeeld;
    wxString const doel = pad("gespeeld.wav");
    SpeexDesktopDecoder decoder(SpeexNarrowband, nullptr);
    EXPECT_EQ(decoder.decode(wxFileName(pad(wxString::FromUTF8(naam))), wxFileName(doel),
                             gespeeld.fragmenten, SF_FORMAT_WAV | SF_FORMAT_PCM_16),
              SpeexDesktopDecoder::gelukt);
    gespeeld.wav = leesBytes(doel.utf8_string());
    return gespeeld;
  }

 private:
  // Two fragments, of a quarter of a second and of 0.154 seconds; for embedding an ADPCM file
  // beside them.
  void laadGeluid(int encoder) {
    auto const samples = [](std::size_t aantal) {
      std::vector<int> const alle = golf(aantal);
      return std::vector<std::int16_t>(alle.begin(), alle.end());
    };
    std::vector<wxString> paden{wav("bel.wav", samples(2000)), wav("tik.wav", samples(1234))};
    if (encoder == inbedden) {
      paden.push_back(bestand("klein.wav", imaAdpcmWav(8000, 5)));
    }
    ASSERT_EQ(laad(paden).size(), paden.size());
  }

  void maakTeksten(int nummer, int encoder, std::string const& submap) {
    beginIn(nummer, encoder == inbedden ? static_cast<int>(EncoderPCM) : encoder);
    laadGeluid(encoder);
    for (auto const& [rij, naam] : {std::pair(0, "geluid.c"), std::pair(1, "geluid.cpp")}) {
      kies(radio(ID_LANG_IMPL), rij);
      wxString const doel = pad(wxString::FromUTF8(submap)) + naam;
      if (encoder == inbedden) {
        antwoorden.opBestandsVraag(doel);
        klik(wxID_SAVEAS);
      } else {
        codeer();
        bewaar(doel);
      }
    }
  }

  std::string gelezen(std::string const& naam) const {
    return WerkProef::zonderMoment(inhoud(pad(wxString::FromUTF8(naam)))).utf8_string();
  }

  // The text with its translated lines put back.
  std::string inHetEngels(std::string const& tekst, Regels const& regels) {
    wxString terug = wxString::FromUTF8(tekst);
    for (auto const& [origineel, aantal] : regels) {
      EXPECT_EQ(terug.Replace(wxString::FromUTF8(anders(origineel)), origineel), aantal)
          << origineel;
    }
    return terug.utf8_string();
  }

  // Compiles the text, warnings being errors, with a program that writes its arrays.
  Bytes arrays(std::string const& submap, std::string const& taal, std::string const& type,
               std::vector<std::string> const& namen) {
    bool const isCpp = taal == "cpp";
    std::string leden;
    std::string schrijf;
    for (std::string const& naam : namen) {
      std::string const array = (isCpp ? "Geluid::" : "") + naam;
      leden.append("  static const ").append(type).append(" ").append(naam).append("[];\n");
      schrijf.append("  fwrite(").append(array).append(", 1, sizeof ").append(array);
      schrijf.append(", stdout);\n");
    }
    bestand(submap + "/programma." + taal,
            "#include <stdio.h>\n" + (isCpp ? "struct Geluid {\n" + leden + "};\n" : "") +
                "#include \"geluid." + taal + "\"\nint main(void) {\n" + schrijf +
                "  return 0;\n}\n");
    EXPECT_TRUE(luktIn(map.pad(submap), std::string(isCpp ? "g++ -std=c++17" : "gcc -std=c99") +
                                            " -Wall -Wextra -Wpedantic -Werror programma." + taal +
                                            " -o programma && ./programma > uitvoer"));
    return leesBytes(map.pad(submap + "/uitvoer"));
  }
};

TEST_P(TaalTekst, OfASpeexRunIsEnglishButForItsTwoCommentsAndPlaysTheSame) {
  vergelijk(EncoderSpeex, {{declaraties, 1}, {speexKop, 2}});
  vergelijkArrays("signed char", {"bel", "tik"});
  for (std::string const naam : {"geluid.c", "geluid.cpp"}) {
    SCOPED_TRACE(naam);
    Gespeeld const engels = speel("engels/" + naam);
    std::vector<LogRegel> const gezegd = log();
    log().clear();
    Gespeeld const eigen = speel("anders/" + naam);
    EXPECT_GT(engels.fragmenten, 0U);
    EXPECT_EQ(eigen.fragmenten, engels.fragmenten);
    // More than a head: the 2000 samples of the first fragment at least.
    EXPECT_GT(engels.wav.size(), 4000U);
    EXPECT_EQ(eigen.wav, engels.wav);
    // The line about each fragment: the count of samples, 2000, stands for that of frames.
    ASSERT_EQ(gezegd.size(), engels.fragmenten);
    EXPECT_EQ(gezegd[0].tekst.utf8_string(),
              vulIn(anders("Fragment %d: sampling frequency %ld Hz, number of frames %ld"),
                    {"1", "8000", "2000"}));
    ASSERT_EQ(log().size(), gezegd.size());
    EXPECT_EQ(log()[0].tekst, gezegd[0].tekst);
    log().clear();
  }
}

TEST_P(TaalTekst, OfAnAdpcmRunIsEnglishButForItsTwoComments) {
  vergelijk(EncoderADPCM, {{declaraties, 1}, {beeldKop, 2}});
  vergelijkArrays("unsigned char", {"bel", "tik"});
}

TEST_P(TaalTekst, OfAPcmRunIsEnglishButForItsTwoComments) {
  vergelijk(EncoderPCM, {{declaraties, 1}, {beeldKop, 2}});
  vergelijkArrays("unsigned char", {"bel", "tik"});
}

TEST_P(TaalTekst, OfAnEmbeddingIsEnglishButForTheDeclarationsAndTheFormats) {
  vergelijk(inbedden, {{declaraties, 1}, {wavPcm, 2}, {wavAdpcm, 1}});
  vergelijkArrays("unsigned char", {"bel", "tik", "klein"});
}

INSTANTIATE_TEST_SUITE_P(Talen, TaalTekst, ::testing::ValuesIn(talen()), taalCode);

}  // namespace
