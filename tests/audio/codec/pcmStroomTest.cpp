// Where the PCM converter puts its text, and what it makes of files that are not there.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "audio/codec/pcmDesktopConverter.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wxMain.h"

namespace {

PCMEncoderOpties const metC(PCMTaalC, 0);

std::string stroomTekst(std::string const& pad, bool metHeader, PCMEncoderOpties const& opties) {
  PCMDesktopConverter converter(opties);
  wxMemoryOutputStream uit;
  converter.codeerBestand(bestandsnaam(pad), metHeader, uit);
  return zonderMoment(tekstVan(uit));
}

// The text of a file that counts as one of 0 samples at 0 Hz, in C with header.
std::string leegC(std::string const& bestand, std::string const& naam) {
  return "\n/* Encoded on Linux (64 bit)\t\t*/\n"
         "/* Date : MOMENT\t\t*/\n"
         "/* WAV file : " +
         bestand +
         "\t\t*/\n"
         "/* WAV information :   \t\t*/\n"
         "/* Sampling frequency         : 0 Hz\t\t*/\n"
         "/* Original size              : 0 frames\t\t*/\n"
         "/* Original duration          : nan s\t\t*/\n"
         "/* const unsigned int " +
         naam +
         "_pcmNumberOfEncSamples=0; */\n"
         "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
         "    Bytes 4..5: Sampling frequency\n"
         "    Bytes 6..End:Data  */\n\n"
         "const unsigned char " +
         naam +
         "[] = \n{\n"
         "\t0x0,0x0,0x0,0x0,0x0,0x0,\n"
         "\n};\n\n"
         "/* end of encoded WAV file         : " +
         bestand + "         */\n";
}

TEST(PcmStroom, tekstenKomenAchterElkaarEnDeStroomGaatVerder) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("een.wav"), {1});
  schrijfWav(map.pad("twee.wav"), {2, 3});
  PCMDesktopConverter converter(metC);
  wxMemoryOutputStream een;
  converter.codeerBestand(bestandsnaam(map.pad("een.wav")), true, een);
  std::size_t const lengteEen = tekstVan(een).size();

  wxMemoryOutputStream uit;
  uit.Write("kop\n", 4);
  converter.codeerBestand(bestandsnaam(map.pad("een.wav")), true, uit);
  converter.codeerBestand(bestandsnaam(map.pad("twee.wav")), false, uit);
  uit.Write("voet\n", 5);
  std::string const alles = tekstVan(uit);
  EXPECT_TRUE(uit.IsOk());
  EXPECT_TRUE(zelfdeTekst(zonderMoment(alles.substr(0, 4 + lengteEen)),
                          "kop\n" + stroomTekst(map.pad("een.wav"), true, metC)));
  EXPECT_TRUE(zelfdeTekst(zonderMoment(alles.substr(4 + lengteEen)),
                          stroomTekst(map.pad("twee.wav"), false, metC) + "voet\n"));
}

TEST(PcmStroom, zetOptiesVervangtTaalKlasseEnSchuif) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {-512, 512});
  PCMDesktopConverter converter(PCMEncoderOpties(PCMTaalCPP, "Oud", 4));
  for (PCMEncoderOpties const& opties :
       {PCMEncoderOpties(PCMTaalCPP, "Nieuw", 8), PCMEncoderOpties(PCMTaalCPP, 0),
        PCMEncoderOpties(PCMTaalPython, "P", 6), PCMEncoderOpties(PCMTaalC, "", 0)}) {
    converter.zetOpties(opties);
    wxMemoryOutputStream uit;
    converter.codeerBestand(bestandsnaam(map.pad("toon.wav")), true, uit);
    VerwachteTekst verwacht;
    verwacht.taal = static_cast<int>(opties.taal);
    verwacht.klasse = opties.klasseNaam.utf8_string();
    verwacht.frames = 2;
    verwacht.samples = gedeeld({-512, 512}, 1 << static_cast<int>(opties.bitShift));
    EXPECT_TRUE(zelfdeTekst(zonderMoment(tekstVan(uit)), maakVerwachteTekst(verwacht)));
  }
}

TEST(PcmStroom, onbruikbareBestandenTellenAlsNulSamplesBijNulHertz) {
  TijdelijkeMap const map;
  maakBestand(map.pad("leeg.wav"), "");
  maakBestand(map.pad("tekst.wav"), "no sound at all\n");
  std::filesystem::create_directory(map.pad("map.wav"));
  schrijfWav(map.pad("weg.wav"), {1, 2, 3});
  EXPECT_EQ(stroomTekst(map.pad("weg.wav"), true, metC).find("nan"), std::string::npos);
  std::filesystem::remove(map.pad("weg.wav"));
  for (std::string const naam : {"nergens", "leeg", "tekst", "map", "weg", "100%s%n"}) {
    EXPECT_TRUE(
        zelfdeTekst(stroomTekst(map.pad(naam + ".wav"), true, metC), leegC(naam + ".wav", naam)));
  }
}

TEST(PcmStroom, nulFramesHoudtZijnFrequentieEnDuurtNul) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {});
  std::string const alles = stroomTekst(map.pad("toon.wav"), true, {PCMTaalC, 8});
  EXPECT_NE(alles.find(": 8000 Hz\t\t*/\n/* Original size              : 0 frames\t\t*/\n"
                       "/* Original duration          : 0.00 s\t\t*/\n"),
            std::string::npos)
      << alles;
  EXPECT_NE(alles.find("{\n\t0x0,0x0,0x0,0x0,0x40,0x1f,\n\n};\n"), std::string::npos) << alles;
}

TEST(PcmUitvoerbestand, geeftDezelfdeTekstAlsDeStroom) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("h\xC3\xA9 100%.wav"), golf(4001));
  for (bool const metHeader : {true, false}) {
    PCMEncoderOpties const opties(PCMTaalCPP, wxTekst("Kl\xC3\xA9"), 4);
    PCMDesktopConverter(opties).codeerBestand(bestandsnaam(map.pad("h\xC3\xA9 100%.wav")),
                                              metHeader,
                                              bestandsnaam(map.pad("uit h\xC3\xA9.cpp")));
    EXPECT_TRUE(zelfdeTekst(zonderMoment(leesTekst(map.pad("uit h\xC3\xA9.cpp"))),
                            stroomTekst(map.pad("h\xC3\xA9 100%.wav"), metHeader, opties)));
  }
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST(PcmUitvoerbestand, vervangtWatErStond) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {1});
  maakBestand(map.pad("uit.c"), std::string(100000, 'x'));
  PCMDesktopConverter(metC).codeerBestand(bestandsnaam(map.pad("toon.wav")), true,
                                          bestandsnaam(map.pad("uit.c")));
  EXPECT_TRUE(zelfdeTekst(zonderMoment(leesTekst(map.pad("uit.c"))),
                          stroomTekst(map.pad("toon.wav"), true, metC)));
}

TEST(PcmUitvoerbestand, ontbrekendeWavGeeftDeTekstVanNulSamples) {
  TijdelijkeMap const map;
  PCMDesktopConverter(metC).codeerBestand(bestandsnaam(map.pad("nergens.wav")), true,
                                          bestandsnaam(map.pad("uit.c")));
  EXPECT_TRUE(
      zelfdeTekst(zonderMoment(leesTekst(map.pad("uit.c"))), leegC("nergens.wav", "nergens")));
}

TEST(PcmUitvoerbestand, onschrijfbaarDoelDoetVerderNiets) {
  // The net of every test here fails it on an assertion of the toolkit.
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {1});
  PCMDesktopConverter converter(metC);
  converter.codeerBestand(bestandsnaam(map.pad("toon.wav")), true,
                          bestandsnaam(map.pad("nergens/uit.c")));
  EXPECT_FALSE(std::filesystem::exists(map.pad("nergens")));
  EXPECT_EQ(neemLog().size(), 1U);
  converter.codeerBestand(bestandsnaam(map.pad("toon.wav")), true, wxFileName(wxTekst(map.pad())));
  EXPECT_EQ(neemLog().size(), 1U);
}

TEST(PcmUitvoerbestand, volSchijfGeeftGeenAssertie) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), golf(4001));
  PCMDesktopConverter(metC).codeerBestand(bestandsnaam(map.pad("toon.wav")), true,
                                          wxFileName("/dev/full"));
  EXPECT_FALSE(neemLog().empty());
}

}  // namespace
