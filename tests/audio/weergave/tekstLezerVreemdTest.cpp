// What is read of texts that hold more than the arrays, and of several in one file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "audio/weergave/tekstLezer.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/externals/software/extern/speex/speexHulp.h"

namespace {

VerwachteTekst const toon{0, true, "Geluid", "toon", "toon.wav", 8000, 2, {1, -1}};

// The arrays of a text that is in order.
std::vector<TekstArray> arraysIn(std::string const& tekst) {
  GelezenTekst gelezen = ontleedTekst(tekst);
  for (TekstKlacht const& klacht : gelezen.klachten) {
    ADD_FAILURE() << klacht.regel << ": " << klacht.reden;
  }
  return std::move(gelezen.arrays);
}

// The only array of a text, which is the one of `toon` but for its name.
TekstArray toonIn(std::string const& tekst) {
  std::vector<TekstArray> const arrays = arraysIn(tekst);
  EXPECT_EQ(arrays.size(), 1U);
  if (arrays.size() != 1) {
    return {};
  }
  EXPECT_EQ(arrays[0].bytes, (Bytes{2, 0, 0, 0, 0x40, 0x1F, 1, 0, 0xFF, 0xFF}));
  EXPECT_EQ(arrays[0].aantalSamples, 2U);
  return arrays[0];
}

std::string vervangen(std::string tekst, std::string const& oud, std::string const& nieuw) {
  std::size_t plaats = tekst.find(oud);
  EXPECT_NE(plaats, std::string::npos) << oud;
  for (; plaats != std::string::npos; plaats = tekst.find(oud, plaats + nieuw.size())) {
    tekst.replace(plaats, oud.size(), nieuw);
  }
  return tekst;
}

}  // namespace

TEST(TekstLezer, TakesTheNameOfAFileForNoPartOfTheText) {
  for (std::string const naam :
       {"a{b}.wav", "};.wav", "a = {1, 2};", "\"quote.wav", "it's.wav", "/*.wav", "//.wav",
        " blanks \t.wav ", "new\nline.wav", "\\.wav", "Encoded on Linux.wav", "a : b.wav",
        "\xC3\xA9\xC3\xA9n.wav", "\xFF\xFE.wav"}) {
    SCOPED_TRACE(naam);
    VerwachteTekst gegevens = toon;
    gegevens.bestand = naam;
    EXPECT_EQ(toonIn(maakVerwachteTekst(gegevens)).wavBestand, naam);
  }
}

TEST(TekstLezer, TakesLettersOfAnyAlphabetInNames) {
  VerwachteTekst gegevens = toon;
  gegevens.taal = 1;
  gegevens.naam = "\xC3\xA9\xC3\xA9n_2";
  gegevens.klasse = "Kl\xC3\xA4nge";
  TekstArray const array = toonIn(maakVerwachteTekst(gegevens));
  EXPECT_EQ(array.naam, gegevens.naam);
  EXPECT_EQ(array.klasse, gegevens.klasse);
}

TEST(TekstLezer, TakesAClassInAClassOrInANamespace) {
  VerwachteTekst gegevens = toon;
  gegevens.taal = 1;
  gegevens.klasse = "Apparaat::Geluid::Hoog";
  EXPECT_EQ(toonIn(maakVerwachteTekst(gegevens)).klasse, gegevens.klasse);
}

TEST(TekstLezer, CountsLinesAndRuns) {
  std::string const een = maakVerwachteTekst(toon);
  std::string const kop = "/* PCM encoding output of 2 audio files \t\t*/\n\n";
  std::vector<TekstArray> const arrays = arraysIn(kop + een + een + kop + een);
  ASSERT_EQ(arrays.size(), 3U);
  auto const regels = static_cast<std::size_t>(std::count(een.begin(), een.end(), '\n'));
  // The brace stands in the sixteenth line of a fragment.
  EXPECT_EQ(arrays[0].regel, 2 + 16U);
  EXPECT_EQ(arrays[1].regel, 2 + regels + 16);
  EXPECT_EQ(arrays[2].regel, 4 + 2 * regels + 16);
  EXPECT_EQ(arrays[0].run, 1U);
  EXPECT_EQ(arrays[1].run, 1U);
  EXPECT_EQ(arrays[2].run, 2U);
}

TEST(TekstLezer, TakesAnyEndOfALine) {
  toonIn(vervangen(maakVerwachteTekst(toon), "\n", "\r\n"));
  VerwachteTekst cpp = toon;
  cpp.taal = 1;
  toonIn(vervangen(maakVerwachteTekst(cpp), "\n", "\r\n"));
  toonIn("// a comment that goes on \\\r\n = {\r\n" + maakVerwachteTekst(toon));
}

TEST(TekstLezer, PassesOverWhatElseASourceFileHolds) {
  std::string const voor =
      "#include <stddef.h>\n#include \"sounds.h\"\n#define BRACE \"{ = {\"\n"
      "extern const unsigned char toon[];\nextern const unsigned char toon[10];\n"
      "enum soort { een = 1, twee };\nclass Geluid {\n public:\n  int f() { return '{'; }\n};\n"
      "char const* tekst = \"\\\"{ /* \";\nextern \"C\" {\n// a comment that goes on \\\n = {\n";
  toonIn(voor + maakVerwachteTekst(toon) + "}\nsize_t toon_size = sizeof toon;\n");

  std::string insluitingen;
  for (int i = 0; i < 100; ++i) {
    insluitingen += "#include <sounds.h>\n";
  }
  toonIn(insluitingen + maakVerwachteTekst(toon));
}

TEST(TekstLezer, TakesWhatAUserAddsToTheHeadOfAnArray) {
  std::string const tekst = maakVerwachteTekst(toon);
  std::string const kop = "const unsigned char toon[] = \n";
  for (std::string const nieuw :
       {"static const unsigned char toon[] = ", "const unsigned char toon[10] PROGMEM = ",
        "unsigned char const toon [ ]\n=\n", "FLASH extern const unsigned char toon[]=",
        "const unsigned char toon[] __attribute__((section(\".sounds\"))) = ",
        "const /* a comment */ unsigned char // another\n toon[] = "}) {
    SCOPED_TRACE(nieuw);
    EXPECT_EQ(toonIn(vervangen(tekst, kop, nieuw)).naam, "toon");
  }
}

TEST(TekstLezer, TakesElementsHoweverTheyAreWritten) {
  std::string const tekst = maakVerwachteTekst(toon);
  std::string const rijen = "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n\t0xff,0xff,\n";
  for (std::string const nieuw :
       {"2,0,0,0,64,31,1,0,255,255", "02,00,0X0,0,0100,0x1F,1,0,0xFF,0377,",
        "2 , 0 /* low */ , 0,0,\n// row\n0x40,0x1f,0x01,0x00,0xff,0xff,"}) {
    SCOPED_TRACE(nieuw);
    toonIn(vervangen(tekst, rijen, nieuw));
  }
}

TEST(TekstLezer, TellsAHeaderByTheBytesWhateverTheCommentSays) {
  std::string const uitleg =
      "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
      "    Bytes 6..End:Data  */\n\n";
  EXPECT_TRUE(toonIn(vervangen(maakVerwachteTekst(toon), uitleg, "")).metHeader);
  EXPECT_TRUE(toonIn(vervangen(maakVerwachteTekst(toon), uitleg, "/* \xC3\xA0 */")).metHeader);

  // A header that tells another frequency than the comments is none.
  Bytes const beeld{2, 0, 0, 0, 0x40, 0x1E, 1, 0, 0xFF, 0xFF};
  std::vector<TekstArray> const arrays =
      arraysIn(maakVerwachteTekst(toon, {{"_pcmNumberOfEncSamples", 2}}, beeld));
  ASSERT_EQ(arrays.size(), 1U);
  EXPECT_FALSE(arrays[0].metHeader);
}

TEST(TekstLezer, ReadsTheRunsOfEveryEncoderInOneFile) {
  TijdelijkeMap const map;
  OmgevingsWaarde const tijdelijk("TMPDIR", map.pad());
  schrijfWav(map.pad("stem.wav"), spraak(400, 8000));
  Codering const speex = codeer(Instelling(), map.pad("stem.wav"));
  VerwachtBlok blok;
  blok.naam = "beeld";
  blok.frames = 2;
  VerwachteTekst adpcm = toon;
  adpcm.naam = "klein";
  adpcm.frames = 5;
  std::vector<TekstArray> const arrays = arraysIn(
      "/* Speex encoding output of 1 audio files */" + speex.tekst +
      "/* Embedded output of 1 WAV Files */" +
      verwachteInbedding(blok,
                         [] {
                           std::string const wav = wavBytes({}, std::vector<int>{1, -1});
                           return Bytes(wav.begin(), wav.end());
                         }()) +
      "/* ADPCM encoding output of 1 audio files */" + verwachteAdpcmTekst(adpcm, {0x17, 0x28}) +
      "/* PCM encoding output of 1 audio files */" + maakVerwachteTekst(toon));
  ASSERT_EQ(arrays.size(), 4U);
  EXPECT_EQ(arrays[0].naam, "stem");
  EXPECT_EQ(arrays[0].soort, ArraySoort::speex);
  EXPECT_EQ(arrays[0].aantalSamples, 400U);
  EXPECT_EQ(arrays[0].bytes, arrayBytes(speex.tekst));
  EXPECT_EQ(arrays[1].naam, "beeld");
  EXPECT_EQ(arrays[1].soort, ArraySoort::wav);
  EXPECT_EQ(arrays[1].bytes.size(), 48U);
  EXPECT_EQ(arrays[2].naam, "klein");
  EXPECT_EQ(arrays[2].soort, ArraySoort::adpcm);
  EXPECT_EQ(arrays[2].aantalSamples, 4U);
  EXPECT_EQ(arrays[3].naam, "toon");
  EXPECT_EQ(arrays[3].soort, ArraySoort::pcm);
  EXPECT_EQ(arrays[3].run, 4U);
}

// The header of Speex has the low 16 bits of the count.
TEST(TekstLezer, KnowsASpeexFragmentOf65536SamplesAndMore) {
  constexpr int samples = 65600;  // 410 frames
  std::string tekst =
      "/* Encoded on Linux */\n/* Sampling frequency : 8000 Hz */\n/* Original size : " +
      std::to_string(samples) + " frames */\nconst signed char lang[] = {\n" +
      "(signed char)0x40,(signed char)0x1f,(signed char)0x40,(signed char)0x0,\n";
  for (int i = 0; i < samples / 160; ++i) {
    tekst += "0x1,\n-128,\n";
  }
  std::vector<TekstArray> const arrays = arraysIn(tekst + "};\n");
  ASSERT_EQ(arrays.size(), 1U);
  EXPECT_TRUE(arrays[0].metHeader);
  EXPECT_EQ(arrays[0].aantalSamples, 65600U);
  EXPECT_EQ(arrays[0].bytes.size(), 4 + 2 * 410U);
  EXPECT_EQ(arrays[0].bytes[5], 0x80);
}

// A frame has 200 bytes at most, and its size byte stands as an unsigned one.
TEST(TekstLezer, TakesSizesOfFramesBeyondASignedByte) {
  std::string tekst =
      "/* Encoded on Linux */\n/* Sampling frequency : 32000 Hz */\n/* Original size : 7 frames "
      "*/\nconst signed char vol[] = {\n0xc8,  /* Encoded Frame [0] Size */\n";
  for (int i = 0; i < 200; ++i) {
    tekst += "-1,";
  }
  std::vector<TekstArray> const arrays = arraysIn(tekst + "};\n");
  ASSERT_EQ(arrays.size(), 1U);
  EXPECT_FALSE(arrays[0].metHeader);
  EXPECT_EQ(arrays[0].bytes.front(), 200);
}
