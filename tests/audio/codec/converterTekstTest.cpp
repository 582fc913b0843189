// The text of one fragment as a whole, of PCM and of ADPCM: the languages, the lengths, the DAC
// widths, the names.
#include <wx/translation.h>

#include <clocale>
#include <filesystem>

#include "tests/audio/codec/converterSoort.h"
#include "tests/steun/catalogusInGebruik.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/wxMain.h"

namespace {

template <typename Soort>
class ConverterTekst : public ConverterProef<Soort> {
 protected:
  // Expects this text of toon.wav, in C, with these samples and as many frames.
  void verwacht(std::vector<int> const& samples, int rate = 8000) {
    VerwachteTekst gegevens;
    gegevens.rate = rate;
    gegevens.frames = static_cast<int>(samples.size());
    EXPECT_TRUE(
        zelfdeTekst(this->tekst(this->opties(0), this->toon), Soort().tekst(gegevens, samples)));
  }
};
TYPED_TEST_SUITE(ConverterTekst, ConverterSoorten, SoortNaam);

TYPED_TEST(ConverterTekst, elkeLengteMetEnZonderHeaderInElkeTaal) {
  for (int const frames : {0, 1, 2, 3, 5, 9, 14, 15, 4001}) {
    std::vector<int> const samples = golf(static_cast<std::size_t>(frames));
    schrijfWav(this->toon, samples, {16000});
    for (bool const metHeader : {true, false}) {
      // Other languages have no counts and no head of the array, but its end all the same.
      for (int const taal : {0, 1, 2, 7, -1}) {
        VerwachteTekst const gegevens{taal, metHeader, "K", "toon", "toon.wav", 16000, frames, {}};
        EXPECT_TRUE(zelfdeTekst(this->tekst(this->opties(taal), this->toon, metHeader),
                                TypeParam().tekst(gegevens, samples)))
            << frames << " frames, language " << taal << ", header " << metHeader;
      }
    }
  }
}

TYPED_TEST(ConverterTekst, klasseNaamIsNooitEenPatroonEnMagLeegZijn) {
  schrijfWav(this->toon, {1, -1, 258});
  for (std::string const klasse : {"", "A%s%n::h\xC3\xA9"}) {
    VerwachteTekst gegevens;
    gegevens.taal = 1;
    gegevens.klasse = klasse;
    gegevens.frames = 3;
    EXPECT_TRUE(zelfdeTekst(this->tekst(this->opties(1, klasse), this->toon),
                            TypeParam().tekst(gegevens, {1, -1, 258})));
  }
}

TYPED_TEST(ConverterTekst, elkeDacBreedte) {
  std::vector<int> samples = golf(1000);
  samples.insert(samples.end(), {-32768, 32767, -1, 0, 1, -256, 255, 127, -128});
  schrijfWav(this->toon, samples, {32000});
  for (DacBreedte const& breedte : dacBreedten) {
    VerwachteTekst gegevens;
    gegevens.rate = 32000;
    gegevens.frames = 1009;
    EXPECT_TRUE(zelfdeTekst(this->tekst(this->opties(0, "", breedte.bitShift), this->toon),
                            TypeParam().tekst(gegevens, samples, breedte.deler)))
        << breedte.deler;
  }
}

TYPED_TEST(ConverterTekst, namenStaanErZoalsZeZijn) {
  using Naam = std::pair<std::string, std::string>;
  for (auto const& [bestand, naam] : {Naam{"met een blank.wav", "met een blank"},
                                      {"a.b.c.wav", "a.b.c"},
                                      {"h\xC3\xA9-\xE2\x82\xAC.wav", "h\xC3\xA9-\xE2\x82\xAC"},
                                      {"100%.wav", "100%"},
                                      {"%s%n%d.wav", "%s%n%d"},
                                      {"a%%b.WAV", "a%%b"},
                                      {"zonder", "zonder"},
                                      {".wav", ".wav"},
                                      {"9*x/.wav", ".wav"}}) {
    std::string const pad = this->map.pad(bestand);
    std::filesystem::create_directories(std::filesystem::u8path(pad).parent_path());
    schrijfWav(pad, {7, -7});
    for (int const taal : {0, 1}) {
      VerwachteTekst const gegevens{
          taal, true, "K", naam, std::filesystem::u8path(bestand).filename().u8string(),
          8000, 2,    {}};
      EXPECT_TRUE(
          zelfdeTekst(this->tekst(this->opties(taal), pad), TypeParam().tekst(gegevens, {7, -7})))
          << bestand;
    }
  }
}

TYPED_TEST(ConverterTekst, stereoTeltFramesEnCodeertEvenveelWaardenUitBeideKanalen) {
  std::vector<int> const waarden = golf(24690);
  schrijfWav(this->toon, waarden, {8000, 2});
  this->verwacht({waarden.begin(), waarden.begin() + 12345});
}

TYPED_TEST(ConverterTekst, imaAdpcmAlsBronIsWatSoxErinHoort) {
  // Sixteen blocks of 505 samples, as sox makes them; it decodes them too.
  schrijfWav(this->map.pad("in.wav"), golf(8080));
  ASSERT_TRUE(luktIn(this->map.pad(),
                     "sox in.wav -e ima-adpcm toon.wav && "
                     "sox toon.wav -t raw -e signed -b 16 -L toon.raw"));
  Bytes const ruw = leesBytes(this->map.pad("toon.raw"));
  ASSERT_EQ(ruw.size(), 16160U);
  std::vector<int> samples;
  for (std::size_t i = 0; i < ruw.size(); i += 2) {
    int const waarde = ruw[i] + 256 * ruw[i + 1];
    samples.push_back(waarde < 32768 ? waarde : waarde - 65536);
  }
  this->verwacht(samples);
}

TYPED_TEST(ConverterTekst, onbruikbareBestandenTellenAlsNulSamplesBijNulHertz) {
  maakBestand(this->map.pad("leeg.wav"), "");
  maakBestand(this->map.pad("tekst.wav"), "no sound at all\n");
  std::filesystem::create_directory(this->map.pad("map.wav"));
  for (std::string const naam : {"nergens", "leeg", "tekst", "map", "100%s%n"}) {
    for (bool const metHeader : {true, false}) {
      VerwachteTekst const gegevens{0, metHeader, "", naam, naam + ".wav", 0, 0, {}};
      EXPECT_TRUE(zelfdeTekst(this->tekst(this->opties(0), this->map.pad(naam + ".wav"), metHeader),
                              TypeParam().tekst(gegevens, {})));
    }
  }
}

TYPED_TEST(ConverterTekst, frequentieVanaf65536VerliestHaarHogeBitsAlleenInDeArray) {
  schrijfWav(this->toon, {0, 0}, {96000});
  this->verwacht({0, 0}, 96000);
  std::string const alles = this->tekst(this->opties(0), this->toon);
  EXPECT_NE(alles.find(": 96000 Hz\t"), std::string::npos) << alles;
  EXPECT_NE(alles.find(",0x0,0x0,0x0,0x0,0x77,0x0,0x0,\n"), std::string::npos) << alles;
}

TYPED_TEST(ConverterTekst, duurHoudtZijnPuntInElkeLocale) {
  schrijfWav(this->toon, golf(12345));
  for (char const* const naam : {"de_DE.UTF-8", "fr_FR.UTF-8", "nl_NL.UTF-8"}) {
    TijdelijkeLocale const locale(LC_ALL, naam);
    ASSERT_TRUE(locale.isGelukt()) << naam;
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    this->verwacht(golf(12345));
    EXPECT_NE(this->tekst(this->opties(0), this->toon).find(" : 1.54 s\t"), std::string::npos);
  }
}

TYPED_TEST(ConverterTekst, alleenDeUitlegVanDeHeaderIsVertaald) {
  std::string const uitleg =
      "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
      "    Bytes 6..End:Data  */\n\n";
  std::string const vertaling = "\n/* Erkl\xC3\xA4rung, 100%s */\n";
  Vertalingen vertalingen{{uitleg, vertaling}};
  for (std::string const regel : {"\n/* Encoded on ",
                                  "/* Date : ",
                                  "/* WAV file : ",
                                  "/* WAV information :   \t\t*/\n",
                                  "/* Sampling frequency         : %d Hz\t\t*/\n",
                                  "/* Original size              : %d frames\t\t*/\n",
                                  "/* Original duration          : %.2lf s\t\t*/\n",
                                  "/* Original duration          : ",
                                  "/* const unsigned int ",
                                  "_adpcmNumberOfEncSamples",
                                  "_adpcmNumberOfEncSamples=%d; */\n",
                                  "_pcmNumberOfEncSamples",
                                  "_pcmNumberOfSamples",
                                  "_pcmNumberOfSamples=%d; */\n",
                                  "const unsigned char ",
                                  "unsigned char",
                                  "nan",
                                  "0.00",
                                  " s\t\t*/\n",
                                  "[] = \n{\n",
                                  "\n};\n\n",
                                  "/* end of encoded WAV file         : "}) {
    vertalingen[regel] = "VERTAALD";
  }
  schrijfWav(this->toon, {1, -1});
  CatalogusInGebruik const catalogus(vertalingen);
  ASSERT_EQ(wxGetTranslation("unsigned char"), "VERTAALD");
  for (int const taal : {0, 1}) {
    for (bool const metHeader : {true, false}) {
      VerwachteTekst const gegevens{taal, metHeader, "K", "toon", "toon.wav", 8000, 2, {}};
      std::string verwacht = TypeParam().tekst(gegevens, {1, -1});
      if (metHeader) {
        verwacht.replace(verwacht.find(uitleg), uitleg.size(), vertaling);
      }
      EXPECT_TRUE(zelfdeTekst(this->tekst(this->opties(taal), this->toon, metHeader), verwacht));
    }
  }
}

TYPED_TEST(ConverterTekst, tekstenKomenAchterElkaarEnDeStroomGaatVerder) {
  schrijfWav(this->toon, {7, -7});
  auto converter = this->nieuw(this->opties(0));
  wxMemoryOutputStream uit;
  uit.Write("kop\n", 4);
  converter.codeerBestand(bestandsnaam(this->toon), true, uit);
  converter.codeerBestand(bestandsnaam(this->toon), false, uit);
  uit.Write("voet\n", 5);
  EXPECT_TRUE(uit.IsOk());
  TypeParam soort;
  VerwachteTekst gegevens;
  gegevens.frames = 2;
  std::string verwacht = "kop\n" + soort.tekst(gegevens, {7, -7});
  gegevens.metHeader = false;
  verwacht += soort.tekst(gegevens, {7, -7}) + "voet\n";
  EXPECT_TRUE(zelfdeTekst(zonderMomenten(tekstVan(uit)), verwacht));
}

TYPED_TEST(ConverterTekst, zetOptiesVervangtTaalKlasseEnSchuif) {
  std::vector<int> const samples = golf(20);
  schrijfWav(this->toon, samples);
  auto converter = this->nieuw(this->opties(1, "Oud", 4));
  TypeParam soort;
  for (auto const& opties : {this->opties(1, "Nieuw", 6), this->opties(1, "", 0),
                             this->opties(2, "P", 4), this->opties(0, "", 0)}) {
    converter.zetOpties(opties);
    VerwachteTekst gegevens;
    gegevens.taal = static_cast<int>(opties.taal);
    gegevens.klasse = opties.klasseNaam.utf8_string();
    gegevens.frames = 20;
    EXPECT_TRUE(
        zelfdeTekst(this->tekst(converter, this->toon),
                    soort.tekst(gegevens, samples, 1 << static_cast<int>(opties.bitShift))));
  }
}

}  // namespace
