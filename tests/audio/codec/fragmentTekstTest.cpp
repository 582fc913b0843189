// The writer of fragment text: every line of it as a whole, blank by blank and tab by tab.
#include "audio/codec/fragmentTekst.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <vector>

#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/omgeving.h"

namespace {

// What `schrijver` writes to a stream of its own.
template <typename Schrijver>
std::string geschreven(Schrijver schrijver) {
  wxMemoryOutputStream uit;
  FragmentTekst tekst(uit);
  schrijver(tekst);
  return tekstVan(uit);
}

SF_INFO gegevens(sf_count_t frames, int samplerate) {
  SF_INFO info{};
  info.frames = frames;
  info.samplerate = samplerate;
  return info;
}

std::string kop(std::string const& pad, SF_INFO const& info) {
  return zonderMoment(
      geschreven([&](FragmentTekst& tekst) { tekst.schrijfKop(bestandsnaam(pad), info); }));
}

std::string telling(int taal, std::string const& klasse, std::string const& naam,
                    unsigned long long aantal) {
  return geschreven([&](FragmentTekst& tekst) {
    tekst.schrijfTelling({taal, wxTekst(klasse), wxTekst(naam)}, {"_teller", aantal});
  });
}

std::string uitleg(int taal) {
  return geschreven([&](FragmentTekst& tekst) { tekst.schrijfHeaderUitleg({taal, "K", "n"}); });
}

std::string arrayKop(int taal, std::string const& klasse, std::string const& naam) {
  return geschreven([&](FragmentTekst& tekst) {
    tekst.schrijfArrayKop({taal, wxTekst(klasse), wxTekst(naam)}, "unsigned char");
  });
}

std::string rijen(Bytes const& bytes) {
  return geschreven([&](FragmentTekst& tekst) {
    VelmoraArray<unsigned char> array(bytes.size());
    std::copy(bytes.begin(), bytes.end(), array.geefElementen());
    tekst.schrijfRijen(array);
  });
}

std::string einde(std::string const& pad) {
  return geschreven([&](FragmentTekst& tekst) { tekst.schrijfEinde(bestandsnaam(pad)); });
}

std::string slot(std::string const& pad) {
  return geschreven([&](FragmentTekst& tekst) { tekst.sluitArray(bestandsnaam(pad)); });
}

// "2024-01-31 : 09:05:00" of the local time.
std::string moment() {
  std::time_t const nu = std::time(nullptr);
  // NOLINTNEXTLINE(concurrency-mt-unsafe): this test has one thread.
  std::tm const delen = *std::localtime(&nu);
  std::array<char, 40> tekst{};
  EXPECT_NE(std::strftime(tekst.data(), tekst.size(), "%Y-%m-%d : %H:%M:%S", &delen), 0U);
  return tekst.data();
}

TEST(FragmentTekst, schrijftTekstZoalsZeIs) {
  EXPECT_EQ(geschreven([](FragmentTekst& tekst) {
              tekst.schrijf("a\tb\n");
              tekst.schrijf(wxTekst("h\xC3\xA9 \xE2\x82\xAC\r\n"));
              tekst.schrijf("100%s%n%");
              tekst.schrijf("");
            }),
            "a\tb\nh\xC3\xA9 \xE2\x82\xAC\r\n100%s%n%");
}

TEST(FragmentTekst, schrijftOokInDeKaleLocaleUtf8) {
  TijdelijkeLocale const kaal(LC_ALL, "C");
  ASSERT_TRUE(kaal.isGelukt());
  EXPECT_EQ(geschreven([](FragmentTekst& tekst) { tekst.schrijf(wxTekst("h\xC3\xA9\n")); }),
            "h\xC3\xA9\n");
}

TEST(FragmentTekst, schrijftAchterWatErAlStaat) {
  wxMemoryOutputStream uit;
  uit.Write("eerst\n", 6);
  FragmentTekst(uit).schrijf("dan\n");
  uit.Write("laatst\n", 7);
  EXPECT_EQ(tekstVan(uit), "eerst\ndan\nlaatst\n");
}

TEST(FragmentTekstKop, alleRegels) {
  EXPECT_EQ(kop("/een/pad/toon.wav", gegevens(12345, 8000)),
            "\n/* Encoded on " KESTROLIN_SYSTEEM
            "\t\t*/\n"
            "/* Date : MOMENT\t\t*/\n"
            "/* WAV file : toon.wav\t\t*/\n"
            "/* WAV information :   \t\t*/\n"
            "/* Sampling frequency         : 8000 Hz\t\t*/\n"
            "/* Original size              : 12345 frames\t\t*/\n"
            "/* Original duration          : 1.54 s\t\t*/\n");
}

TEST(FragmentTekstKop, onbekendBestandHeeftNullenEnNan) {
  EXPECT_EQ(kop("a.b %d%s%n 100%.WAV", SF_INFO{}),
            "\n/* Encoded on " KESTROLIN_SYSTEEM
            "\t\t*/\n"
            "/* Date : MOMENT\t\t*/\n"
            "/* WAV file : a.b %d%s%n 100%.WAV\t\t*/\n"
            "/* WAV information :   \t\t*/\n"
            "/* Sampling frequency         : 0 Hz\t\t*/\n"
            "/* Original size              : 0 frames\t\t*/\n"
            "/* Original duration          : nan s\t\t*/\n");
}

TEST(FragmentTekstKop, tellingVanFramesToontHaarLaagste32Bits) {
  EXPECT_NE(kop("a", gegevens(4294967296LL + 5, 8000)).find(" : 5 frames\t"), std::string::npos);
}

TEST(FragmentTekstKop, datumEnTijdZijnDieVanNu) {
  // A zone far from every usual one, so that the time of another zone cannot pass for it.
  TijdelijkeTijdzone const zone("TEST-13:30");
  std::string const voor = moment();
  std::string const tekst = geschreven(
      [](FragmentTekst& schrijver) { schrijver.schrijfKop(wxFileName("a"), SF_INFO{}); });
  std::string const na = moment();
  std::string const begin = "/* Date : ";
  std::size_t const plaats = tekst.find(begin);
  ASSERT_NE(plaats, std::string::npos);
  std::string const gevonden = tekst.substr(plaats + begin.size(), voor.size());
  EXPECT_LE(voor, gevonden);
  EXPECT_LE(gevonden, na);
}

TEST(FragmentDuur, tweeDecimalenAfgerond) {
  EXPECT_EQ(fragmentDuur(0, 8000), "0.00");
  EXPECT_EQ(fragmentDuur(3, 8000), "0.00");
  EXPECT_EQ(fragmentDuur(41, 8000), "0.01");
  EXPECT_EQ(fragmentDuur(8000, 8000), "1.00");
  EXPECT_EQ(fragmentDuur(44100LL * 3600 + 33075, 44100), "3600.75");
  EXPECT_EQ(fragmentDuur(1, 3), "0.33");
  EXPECT_EQ(fragmentDuur(2, 3), "0.67");
}

TEST(FragmentDuur, nulDoorNulIsNan) {
  EXPECT_EQ(fragmentDuur(0, 0), "nan");
}

TEST(FragmentDuur, framesDoorNulIsInf) {
  EXPECT_EQ(fragmentDuur(5, 0), "inf");
}

TEST(FragmentDuur, puntBlijftPuntInElkeLocale) {
  TijdelijkeLocale const duits(LC_NUMERIC, "de_DE.UTF-8");
  ASSERT_TRUE(duits.isGelukt());
  std::array<char, 8> komma{};
  ASSERT_EQ(std::snprintf(komma.data(), komma.size(), "%.2f", 1.5), 4);
  ASSERT_STREQ(komma.data(), "1,50");
  EXPECT_EQ(fragmentDuur(12345, 8000), "1.54");
  EXPECT_EQ(fragmentDuur(80000000, 8000), "10000.00");
}

TEST(FragmentTekstTelling, perTaal) {
  EXPECT_EQ(telling(0, "Klank", "toon", 3), "/* const unsigned int toon_teller=3; */\n");
  EXPECT_EQ(telling(1, "Klank", "toon", 3), "//const unsigned int Klank::toon_teller=3;\n");
  EXPECT_EQ(telling(2, "Klank", "toon", 3), "");
  EXPECT_EQ(telling(7, "Klank", "toon", 3), "");
  EXPECT_EQ(telling(-1, "Klank", "toon", 3), "");
}

TEST(FragmentTekstTelling, namenStaanErZoalsZeZijn) {
  EXPECT_EQ(telling(0, "", "a b.c 100%d\xC3\xA9", 0),
            "/* const unsigned int a b.c 100%d\xC3\xA9_teller=0; */\n");
  EXPECT_EQ(telling(1, "", "%s%n", 0), "//const unsigned int ::%s%n_teller=0;\n");
  EXPECT_EQ(telling(1, "%s%n", "x", 0), "//const unsigned int %s%n::x_teller=0;\n");
}

TEST(FragmentTekstTelling, toontDeLaagste32Bits) {
  EXPECT_EQ(telling(0, "", "x", 2147483647), "/* const unsigned int x_teller=2147483647; */\n");
  EXPECT_EQ(telling(0, "", "x", 4294967296ULL + 9), "/* const unsigned int x_teller=9; */\n");
}

TEST(FragmentTekstUitleg, perTaal) {
  std::string const tekst =
      "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
      "    Bytes 6..End:Data  */\n\n";
  EXPECT_EQ(uitleg(0), tekst);
  EXPECT_EQ(uitleg(1), tekst);
  EXPECT_EQ(uitleg(2), "");
  EXPECT_EQ(uitleg(7), "");
}

TEST(FragmentTekstArrayKop, perTaal) {
  EXPECT_EQ(arrayKop(0, "Klank", "toon"), "const unsigned char toon[] = \n{\n");
  EXPECT_EQ(arrayKop(1, "Klank", "toon"), "const unsigned char Klank::toon[] = \n{\n");
  EXPECT_EQ(arrayKop(1, "", "toon"), "const unsigned char ::toon[] = \n{\n");
  EXPECT_EQ(arrayKop(2, "Klank", "toon"), "");
  EXPECT_EQ(arrayKop(7, "Klank", "toon"), "");
  EXPECT_EQ(arrayKop(0, "", "a b.c 100%s%n"), "const unsigned char a b.c 100%s%n[] = \n{\n");
}

TEST(FragmentTekstArrayKop, neemtHetTypeVanDeElementen) {
  EXPECT_EQ(geschreven([](FragmentTekst& tekst) {
              tekst.schrijfArrayKop({0, "", "x"}, "short");
            }),
            "const short x[] = \n{\n");
}

TEST(FragmentTekstRijen, legeArrayGeeftGeenRij) {
  EXPECT_EQ(rijen({}), "");
}

TEST(FragmentTekstRijen, achtWaardenOpDeRijEnDeLaatsteKorter) {
  EXPECT_EQ(rijen({0}), "\t0x0,\n");
  EXPECT_EQ(rijen({1, 2, 3, 4, 5, 6, 7}), "\t0x1,0x2,0x3,0x4,0x5,0x6,0x7,\n");
  EXPECT_EQ(rijen({1, 2, 3, 4, 5, 6, 7, 8}), "\t0x1,0x2,0x3,0x4,0x5,0x6,0x7,0x8,\n");
  EXPECT_EQ(rijen({1, 2, 3, 4, 5, 6, 7, 8, 9}), "\t0x1,0x2,0x3,0x4,0x5,0x6,0x7,0x8,\n\t0x9,\n");
  EXPECT_EQ(rijen({0xF, 0x10, 0x7F, 0x80, 0xA0, 0xFF}), "\t0xf,0x10,0x7f,0x80,0xa0,0xff,\n");
}

TEST(FragmentTekstRijen, alleBytesInElkeLengteRondHeleBlokken) {
  for (std::size_t const lengte :
       std::vector<std::size_t>{256, 4095, 4096, 4097, 4104, 8192, 8193}) {
    Bytes bytes;
    for (std::size_t i = 0; i < lengte; ++i) {
      bytes.push_back(static_cast<unsigned char>(i * 37 + i / 256));
    }
    EXPECT_TRUE(zelfdeTekst(rijen(bytes), verwachteRijen(bytes))) << lengte;
  }
}

TEST(FragmentTekstEinde, sluitDeArrayEnNoemtHetBestand) {
  EXPECT_EQ(einde("/een/pad/toon.wav"),
            "\n};\n\n/* end of encoded WAV file         : toon.wav         */\n");
  EXPECT_EQ(einde("100%s%n.wav"),
            "\n};\n\n/* end of encoded WAV file         : 100%s%n.wav         */\n");
}

// For an array whose data end their own last line: no empty line stands before the brace.
TEST(FragmentTekstSlot, sluitDeArrayZonderLegeRegelEnNoemtHetBestand) {
  EXPECT_EQ(slot("/een/pad/toon.wav"),
            "};\n\n/* end of encoded WAV file         : toon.wav         */\n");
  EXPECT_EQ(slot("100%s%n.h\xC3\xA9"),
            "};\n\n/* end of encoded WAV file         : 100%s%n.h\xC3\xA9         */\n");
}

}  // namespace
