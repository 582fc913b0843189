// The decoder's files and its log: what it reads, what it writes, and texts that are cut or are no
// text at all.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "tests/externals/software/extern/speex/decoderHulp.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

class SpeexDecodeerBestand : public testing::Test {
 protected:
  Gedecodeerd decodeerNaar(std::string const& doel) const {
    maakBestand(bron, tekst);
    return decodeerBestand(bron, doel);
  }

  void verwachtLegeWav(Gedecodeerd const& gevonden) const {
    EXPECT_EQ(gevonden.uitslag, 0);
    EXPECT_EQ(gevonden.fragmenten, 0U);
    EXPECT_EQ(wavInfo(uit).samplerate, 8000);
    EXPECT_EQ(wavInfo(uit).frames, 0);
  }

  TijdelijkeMap map;
  std::string bron = map.pad("tekst.c");
  std::string uit = map.pad("uit.wav");
  Frames frames = maakFrames(SpeexNarrowband, 5);
  std::string tekst = arrayTekst(8000, 5, frames);
};

TEST_F(SpeexDecodeerBestand, EachFragmentIsLoggedAsAMessage) {
  Gedecodeerd const een = decodeer("{0x40,0x1f,0xa0,0x0,\n" + frameRegels(frames) + "};\n");
  ASSERT_EQ(een.log.size(), 1U);
  EXPECT_EQ(een.log[0].tekst, "Fragment 1: sampling frequency 8000 Hz, number of frames 160");
  EXPECT_EQ(een.log[0].niveau, static_cast<unsigned long>(wxLOG_Message));

  Frames const breed = maakFrames(SpeexWideband, 2);
  Gedecodeerd const twee =
      decodeer(arrayTekst(16000, 2, breed) + arrayTekst(16000, 0, breed), SpeexWideband);
  ASSERT_EQ(twee.log.size(), 2U);
  EXPECT_EQ(twee.log[0].tekst, "Fragment 1: sampling frequency 16000 Hz, number of frames 2");
  EXPECT_EQ(twee.log[1].tekst, "Fragment 2: sampling frequency 16000 Hz, number of frames 0");
  EXPECT_EQ(twee.log[1].niveau, static_cast<unsigned long>(wxLOG_Message));
}

TEST_F(SpeexDecodeerBestand, NothingIsLoggedWhereMessagesAreOff) {
  wxLogLevel const vorig = wxLog::GetLogLevel();
  wxLog::SetLogLevel(wxLOG_Warning);
  Gedecodeerd const gevonden = decodeer(tekst);
  wxLog::SetLogLevel(vorig);
  EXPECT_TRUE(nietsGelogd(gevonden.log));
  verwachtGeluid(gevonden, 1, gehoord(frames));
}

TEST_F(SpeexDecodeerBestand, TheFormatWordIsHonoured) {
  maakBestand(bron, tekst);
  EXPECT_EQ(decodeerBestand(bron, uit, 0x10002).uitslag, 0);
  SF_INFO const pcm = wavInfo(uit);
  EXPECT_EQ(pcm.format, 0x10002);
  EXPECT_EQ(pcm.frames, 800);
  EXPECT_EQ(leesBytes(uit).at(20), 1) << "the code of PCM in the file";

  EXPECT_EQ(decodeerBestand(bron, uit, 0x10012).uitslag, 0);
  SF_INFO const ima = wavInfo(uit);
  EXPECT_EQ(ima.format, 0x10012);
  EXPECT_EQ(ima.channels, 1);
  EXPECT_EQ(ima.samplerate, 8000);
  EXPECT_GE(ima.frames, 800) << "whole blocks";
  EXPECT_EQ(leesBytes(uit).at(20), 17) << "the code of IMA ADPCM in the file";
  EXPECT_EQ(voerUit("sox '" + uit + "' -t raw '" + map.pad("ruw") + "'"), 0);
}

TEST_F(SpeexDecodeerBestand, TheOldContentOfTheWavIsGone) {
  maakBestand(uit, std::string(100000, 'z'));
  EXPECT_EQ(decodeerNaar(uit).fragmenten, 1U);
  EXPECT_EQ(wavInfo(uit).frames, 800);
  EXPECT_EQ(std::filesystem::file_size(uit), 44U + 1600U);
}

TEST_F(SpeexDecodeerBestand, MissingInputIsReportedByTheToolkitAndGivesAnEmptyWav) {
  Gedecodeerd const gevonden = decodeerBestand(map.pad("nergens.c"), uit);
  verwachtLegeWav(gevonden);
  ASSERT_EQ(gevonden.log.size(), 1U);
  EXPECT_EQ(gevonden.log[0].niveau, static_cast<unsigned long>(wxLOG_Error));
  EXPECT_TRUE(gevonden.log[0].tekst.Contains("nergens.c")) << gevonden.log[0].tekst.utf8_str();
}

TEST_F(SpeexDecodeerBestand, AFolderAsInputGivesAnEmptyWav) {
  verwachtLegeWav(decodeerBestand(map.pad(), uit));
}

TEST_F(SpeexDecodeerBestand, OutputThatCannotBeWrittenEndsNormally) {
  for (std::string const& doel : {map.pad("nergens/uit.wav"), map.pad()}) {
    Gedecodeerd const gevonden = decodeerNaar(doel);
    EXPECT_EQ(gevonden.uitslag, 0) << doel;
    EXPECT_EQ(gevonden.fragmenten, 1U) << doel;
  }
  EXPECT_FALSE(std::filesystem::exists(map.pad("nergens")));
}

TEST_F(SpeexDecodeerBestand, AFullDiskEndsNormally) {
  Gedecodeerd const gevonden = decodeerNaar("/dev/full");
  EXPECT_EQ(gevonden.uitslag, 0);
  EXPECT_EQ(gevonden.fragmenten, 1U);
}

TEST_F(SpeexDecodeerBestand, NamesWithAccentsAndPerCentSignsAreReadAndWritten) {
  std::string const van = map.pad("h\xC3\xA9 100%s%n.c");
  std::string const naar = map.pad("\xE2\x82\xAC 100%s%n.wav");
  maakBestand(van, tekst);
  EXPECT_EQ(decodeerBestand(van, naar).fragmenten, 1U);
  EXPECT_EQ(wavInfo(naar).frames, 800);
}

// Decodes what may be anything: it ends, with a WAV file that opens.
void verwachtEenWav(std::string const& tekst, TijdelijkeMap const& map,
                    SpeexBandFormaat band = SpeexNarrowband) {
  maakBestand(map.pad("tekst.c"), tekst);
  int const uitslag = decodeerBestand(map.pad("tekst.c"), map.pad("uit.wav"),
                                      SF_FORMAT_WAV | SF_FORMAT_PCM_16, band)
                          .uitslag;
  EXPECT_TRUE(uitslag == 0 || uitslag == 2) << uitslag;
  SF_INFO const info = wavInfo(map.pad("uit.wav"));
  EXPECT_EQ(info.samplerate, rateVan(band));
  EXPECT_EQ(info.channels, 1);
  EXPECT_EQ(static_cast<std::size_t>(info.frames) % blokVan(band), 0U);
}

TEST_F(SpeexDecodeerBestand, TextCutAtEveryByteEndsWithAWavOfWholeBlocks) {
  std::string const heel = runVan({ruis(320)});
  for (std::size_t lengte = 0; lengte <= heel.size(); ++lengte) {
    SCOPED_TRACE(lengte);
    verwachtEenWav(heel.substr(0, lengte), map);
  }
  // Of the whole of it each count was played.
  EXPECT_EQ(wavInfo(uit).frames, 320 * 160);
}

TEST_F(SpeexDecodeerBestand, BinaryNoiseEndsWithAWavOfWholeBlocks) {
  std::vector<std::int16_t> const bron16 = proefSamples(4000);
  for (std::size_t begin = 0; begin < bron16.size(); begin += 250) {
    std::string lawaai;
    for (std::size_t i = begin; i < begin + 250; ++i) {
      // A NUL outside a fragment would end it.
      lawaai += static_cast<char>(static_cast<std::uint16_t>(bron16[i]) % 255 + 1);
    }
    SCOPED_TRACE(begin);
    verwachtEenWav(lawaai, map);
    verwachtEenWav("{0x40,0x1f,0x10,0x2,\n" + lawaai, map);
    verwachtEenWav("{0x80,0x3e,0x10,0x2,\n0xff,\n" + lawaai, map, SpeexWideband);
  }
}

TEST_F(SpeexDecodeerBestand, TenMegabytesWithoutACommaEnd) {
  std::string woord;
  woord.resize(10'000'000, 'a');
  verwachtEenWav(woord, map);
  verwachtEenWav("/" + woord, map);
  verwachtEenWav("{0x" + woord, map);
  verwachtEenWav("{0x40,0x1f,0x5,0x0,\n0x" + woord, map);
  EXPECT_EQ(wavInfo(uit).frames, 5 * 160);
  verwachtEenWav("{0x40,0x1f,0x5,0x0,\n0xff,\n" + woord, map);
  EXPECT_EQ(wavInfo(uit).frames, 5 * 160);
}

}  // namespace
