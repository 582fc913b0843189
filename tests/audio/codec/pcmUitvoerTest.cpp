// The files that the PCM converter writes its text to.
#include <gtest/gtest.h>

#include <filesystem>

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
  VerwachteTekst const gegevens{0, true, "", "nergens", "nergens.wav", 0, 0, {}};
  EXPECT_TRUE(zelfdeTekst(zonderMoment(leesTekst(map.pad("uit.c"))), maakVerwachteTekst(gegevens)));
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
