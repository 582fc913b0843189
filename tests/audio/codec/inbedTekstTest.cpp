// The text of one embedded file as a whole: the languages, the names, the lines above the array,
// and the lengths of the array.
#include <wx/utils.h>

#include <clocale>
#include <ctime>

#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/wxMain.h"

namespace {

// A WAV file of two samples, 1 and -1, by the definition of the format: 48 bytes.
std::string const kop = "\n/* Embedded on " KESTROLIN_SYSTEEM
                        "\t\t*/\n"
                        "/* Date : MOMENT\t\t*/\n"
                        "/* WAV file : toon.wav\t\t*/\n"
                        "/* WAV information :   \t\t*/\n"
                        "/* WAV Format                 : WAV S16 PCM\t*/\n"
                        "/* Sampling frequency         : 16000 Hz\t\t*/\n"
                        "/* Size                       : 2 bytes\t\t*/\n"
                        "/* Duration                   : 0.00 s\t\t*/\n"
                        "/* Full Scale gain adapted to : 16 bits\t\t*/\n\n";
std::string const array =
    "\t0x52,0x49,0x46,0x46,0x28,0x0,0x0,0x0,\n"
    "\t0x57,0x41,0x56,0x45,0x66,0x6d,0x74,0x20,\n"
    "\t0x10,0x0,0x0,0x0,0x1,0x0,0x1,0x0,\n"
    "\t0x80,0x3e,0x0,0x0,0x0,0x7d,0x0,0x0,\n"
    "\t0x2,0x0,0x10,0x0,0x64,0x61,0x74,0x61,\n"
    "\t0x4,0x0,0x0,0x0,0x1,0x0,0xff,0xff,\n"
    "\t};\n\n"
    "/* end of WAV file         : toon.wav         */\n";

class InbedTaal : public InbedProef {
 protected:
  InbedTaal() { schrijfWav(toon, {1, -1}, {16000}); }
};

TEST_F(InbedTaal, cHeeftDeArrayEnGeenKlasse) {
  EXPECT_TRUE(zelfdeTekst(inbed(toon, 16, 0, "Genegeerd"),
                          kop + "const unsigned char toon[] = \n{\n" + array));
}

TEST_F(InbedTaal, cppHeeftDeArrayInZijnKlasse) {
  EXPECT_TRUE(zelfdeTekst(inbed(toon, 16, 1, "Klank"),
                          kop + "const unsigned char Klank::toon[] = \n{\n" + array));
  EXPECT_TRUE(
      zelfdeTekst(inbed(toon, 16, 1, ""), kop + "const unsigned char ::toon[] = \n{\n" + array));
}

TEST_F(InbedTaal, pythonHeeftGeenDefinitieMaarWelHetCommentaarEnDeSluithaak) {
  EXPECT_TRUE(zelfdeTekst(inbed(toon, 16, 2, "Klank"), kop + array));
}

TEST_F(InbedTaal, elkeAndereWaardeGeldtAlsPython) {
  for (int const taal : {3, 99, -1}) {
    EXPECT_TRUE(zelfdeTekst(inbed(toon, 16, taal, "Klank"), kop + array)) << taal;
  }
}

using InbedTekst = InbedProef;

TEST_F(InbedTekst, lengteDieEenVeelvoudVanAchtIsSluitOpEenRegelVanDeHaakAchterEenTab) {
  schrijfWav(toon, {1, -1});
  std::string const tekst = inbed(toon);
  ASSERT_EQ(beeld().size() % 8, 0U);
  EXPECT_NE(tekst.find(",0xff,0xff,\n\t};\n\n/* end"), std::string::npos);
}

TEST_F(InbedTekst, andereLengteSluitAchterDeLaatsteWaarde) {
  schrijfWav(toon, {171});
  std::string const tekst = inbed(toon);
  ASSERT_EQ(beeld().size() % 8, 6U);
  EXPECT_NE(tekst.find("\n\t0x2,0x0,0x0,0x0,0xab,0x0,};\n\n/* end"), std::string::npos);
}

TEST_F(InbedTekst, elkeLengteRondDeRijenEnDeBlokkenVanHetLezen) {
  // The image is read in blocks of 65536 bytes, of which the first 44 are the header.
  for (int const lengte : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 32745, 32746, 32747, 40001}) {
    std::vector<int> const samples = golf(static_cast<std::size_t>(lengte));
    schrijfWav(toon, samples, {32000});
    VerwachtBlok blok;
    blok.rate = 32000;
    blok.frames = lengte;
    EXPECT_TRUE(zelfdeTekst(inbed(toon), verwachteInbedding(blok, sndBeeld(samples, {32000}))))
        << lengte;
  }
}

TEST_F(InbedTekst, alleBytesInEenArray) {
  std::vector<int> samples;
  for (int laag = 0; laag < 256; laag += 2) {
    samples.push_back(laag + 256 * (laag + 1) - (laag >= 127 ? 65536 : 0));
  }
  schrijfWav(toon, samples);
  VerwachtBlok blok;
  blok.frames = 128;
  EXPECT_TRUE(zelfdeTekst(inbed(toon), verwachteInbedding(blok, sndBeeld(samples))));
}

TEST_F(InbedTekst, leegBestandHeeftEenArrayMetAlleenDeHeader) {
  schrijfWav(toon, {}, {32000});
  VerwachtBlok blok;
  blok.rate = 32000;
  EXPECT_TRUE(zelfdeTekst(inbed(toon), verwachteInbedding(blok, sndBeeld({}, {32000}))));
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

// The lines of a source that tells nothing of itself, and no byte in the array.
std::string const zonderBron =
    "/* WAV information :   \t\t*/\n"
    "/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n"
    "/* Sampling frequency         : 0 Hz\t\t*/\n"
    "/* Size                       : 0 bytes\t\t*/\n"
    "/* Duration                   : nan s\t\t*/\n"
    "/* Full Scale gain adapted to : 12 bits\t\t*/\n\n"
    "const unsigned char weg[] = \n{\n"
    "\t};\n\n"
    "/* end of WAV file         : weg.wav         */\n";

TEST_F(InbedTekst, verdwenenBronHeeftHetHeleBlokMetNullenNanEnEenLegeArray) {
  EXPECT_TRUE(zelfdeTekst(inbed(map.pad("weg.wav"), 12), "\n/* Embedded on " KESTROLIN_SYSTEEM
                                                         "\t\t*/\n"
                                                         "/* Date : MOMENT\t\t*/\n"
                                                         "/* WAV file : weg.wav\t\t*/\n" +
                                                             zonderBron));
  EXPECT_TRUE(beeld().empty());
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(InbedTekst, onleesbareBronHeeftHetzelfde) {
  maakBestand(map.pad("weg.wav"), "This is no sound at all.\n");
  std::string const tekst = inbed(map.pad("weg.wav"), 12);
  EXPECT_TRUE(zelfdeTekst(tekst.substr(tekst.find("/* WAV inf")), zonderBron));
}

TEST_F(InbedTekst, frequentieFramesEnDuurStaanInHunRegels) {
  schrijfWav(toon, golf(12345));
  VerwachtBlok blok;
  blok.frames = 12345;
  std::string const tekst = inbed(toon);
  EXPECT_TRUE(zelfdeTekst(tekst, verwachteInbedding(blok, sndBeeld(golf(12345)))));
  EXPECT_NE(tekst.find(" 12345 bytes\t\t*/\n/* Duration                   : 1.54 s\t"),
            std::string::npos);
}

// "2024-01-31 : 09:05:00", as it stands in the text of one file.
std::string momentIn(std::string const& pad) {
  wxMemoryOutputStream uit;
  schrijfInbedding(bestandsnaam(pad), {0, "", 16}, uit);
  std::string const begin = "/* Date : ";
  std::string const tekst = tekstVan(uit);
  return tekst.substr(tekst.find(begin) + begin.size(), 21);
}

TEST_F(InbedTekst, elkBestandHeeftZijnEigenMoment) {
  schrijfWav(toon, {1});
  std::string const eerste = momentIn(toon);
  std::time_t const toen = std::time(nullptr);
  while (std::time(nullptr) == toen) {
    wxMilliSleep(10);
  }
  EXPECT_LT(eerste, momentIn(toon));
}

TEST_F(InbedTekst, duurHoudtZijnPuntInElkeLocale) {
  schrijfWav(toon, golf(12345));
  VerwachtBlok blok;
  blok.frames = 12345;
  std::string const verwacht = verwachteInbedding(blok, sndBeeld(golf(12345)));
  for (char const* const naam : {"nl_NL.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8"}) {
    TijdelijkeLocale const locale(LC_ALL, naam);
    ASSERT_TRUE(locale.isGelukt()) << naam;
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_TRUE(zelfdeTekst(inbed(toon), verwacht)) << naam;
  }
}

TEST_F(InbedTekst, alleenHetFormaatWoordVan16BitPcmHeetPcm) {
  constexpr int wavPcm24 = SF_FORMAT_WAV | SF_FORMAT_PCM_24;
  schrijfWav(toon, {256, -512}, {8000, 1, 24});
  VerwachtBlok blok;
  blok.formaat = "WAV 4 Bit IMA ADPCM";
  blok.frames = 2;
  // The image is of the source's width, and its samples are the 16 high bits of those.
  EXPECT_TRUE(zelfdeTekst(inbed(toon), verwachteInbedding(blok, sndBeeld({1, -2}, {}, wavPcm24))));
}

TEST_F(InbedTekst, namenGaanErinZoalsZeZijn) {
  for (std::string const naam : {"stil zwijgen", "100%s%n", "h\xC3\xA9", "a.b", "-rf"}) {
    schrijfWav(map.pad(naam + ".WAV"), {7});
    VerwachtBlok blok;
    blok.naam = naam;
    blok.bestand = naam + ".WAV";
    blok.frames = 1;
    Bytes const verwacht = sndBeeld({7});
    EXPECT_TRUE(zelfdeTekst(inbed(map.pad(blok.bestand)), verwachteInbedding(blok, verwacht)));
    blok.taal = 1;
    blok.klasse = "K %s\xC3\xA9";
    EXPECT_TRUE(zelfdeTekst(inbed(map.pad(blok.bestand), 16, 1, blok.klasse),
                            verwachteInbedding(blok, verwacht)));
  }
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

}  // namespace
