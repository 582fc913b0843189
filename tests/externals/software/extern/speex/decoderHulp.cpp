#include "tests/externals/software/extern/speex/decoderHulp.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "audio/codec/sndBestand.h"
#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavLezer.h"
#include "tests/steun/wavMaker.h"
#include "tests/steun/wxMain.h"

namespace {

constexpr int complexiteit = 2;

}  // namespace

int rateVan(SpeexBandFormaat band) {
  return bandRates.at(static_cast<std::size_t>(band));
}

std::size_t blokVan(SpeexBandFormaat band) {
  return bandFrames.at(static_cast<std::size_t>(band));
}

Samples ruis(std::size_t aantal) {
  std::vector<std::int16_t> const bron = proefSamples(aantal);
  Samples samples(aantal);
  constexpr std::size_t golf = 700;
  for (std::size_t i = 0; i < aantal; ++i) {
    samples[i] = static_cast<short>(bron[i] / static_cast<int>(2 + i / golf % 9));
  }
  return samples;
}

Frames codeer(SpeexBandFormaat band, Samples const& samples, int kwaliteit) {
  DirecteEncoder encoder(band);
  encoder.regel(SPEEX_SET_QUALITY, spx_int32_t{kwaliteit});
  encoder.regel(SPEEX_SET_COMPLEXITY, spx_int32_t{complexiteit});
  return encoder.codeer(samples);
}

Frames maakFrames(SpeexBandFormaat band, std::size_t aantal, int kwaliteit) {
  return codeer(band, ruis(aantal * blokVan(band)), kwaliteit);
}

Luisteraar::Luisteraar(SpeexBandFormaat band) : decoder(band), blok(blokVan(band)) {}

void Luisteraar::hoor(Bytes const& frame) {
  decoder.decodeer(frame, blok);
  herhaal(1);
}

void Luisteraar::hoorAlle(Frames const& frames) {
  std::for_each(frames.begin(), frames.end(), [this](Bytes const& frame) { hoor(frame); });
}

void Luisteraar::herhaal(std::size_t keer) {
  for (std::size_t i = 0; i < keer; ++i) {
    samples.insert(samples.end(), blok.begin(), blok.end());
  }
}

Samples gehoord(Frames const& frames, std::size_t keer, SpeexBandFormaat band) {
  Luisteraar luisteraar(band);
  luisteraar.hoorAlle(frames);
  luisteraar.herhaal(keer);
  return luisteraar.samples;
}

std::string arrayMet(std::string const& inhoud) {
  return "const signed char toon[] = \n{\n" + inhoud + slotRegels("toon.wav");
}

std::string arrayTekst(int rate, unsigned int telling, Frames const& frames) {
  return arrayMet(uitlegRegel + headerRegel(rate, telling) + frameRegels(frames));
}

SpeexDoel runDoel(SpeexBandFormaat band) {
  SpeexDoel doel;
  doel.instelling.band = band;
  doel.instelling.kwaliteit = 4;
  doel.instelling.complexiteit = complexiteit;
  return doel;
}

std::string runVan(std::vector<Samples> const& fragmenten, SpeexDoel const& doel) {
  SpeexFragmenten bestanden;
  for (Samples const& een : fragmenten) {
    bestanden.push_back({"toon" + std::to_string(bestanden.size() + 1), {een.begin(), een.end()}});
  }
  return runTekst(bestanden, doel);
}

void verwachtGeluid(Gedecodeerd const& gevonden, unsigned long long fragmenten,
                    Samples const& verwacht) {
  EXPECT_EQ(gevonden.uitslag, 0);
  EXPECT_EQ(gevonden.fragmenten, fragmenten);
  EXPECT_TRUE(zelfdeSamples(gevonden.samples, verwacht));
}

Gedecodeerd decodeerBestand(std::string const& van, std::string const& naar, unsigned int sfFormaat,
                            SpeexBandFormaat band) {
  Gedecodeerd gevonden;
  gevonden.fragmenten = 99;
  neemLog();
  SpeexDesktopDecoder decoder(band, nullptr);
  gevonden.uitslag =
      decoder.decode(bestandsnaam(van), bestandsnaam(naar), gevonden.fragmenten, sfFormaat);
  gevonden.log = neemLog();
  return gevonden;
}

Gedecodeerd decodeer(std::string const& tekst, SpeexBandFormaat band) {
  TijdelijkeMap const map;
  maakBestand(map.pad("tekst.c"), tekst);
  Gedecodeerd gevonden = decodeerBestand(map.pad("tekst.c"), map.pad("uit.wav"),
                                         SF_FORMAT_WAV | SF_FORMAT_PCM_16, band);
  std::optional<GelezenWav> const wav = ontleedWav(leesBytes(map.pad("uit.wav")));
  if (!wav) {
    ADD_FAILURE() << "no whole WAV file came out";
    return gevonden;
  }
  EXPECT_EQ(wav->soort.formaatCode, 1);
  EXPECT_EQ(wav->soort.kanalen, 1);
  EXPECT_EQ(wav->soort.rate, rateVan(band));
  gevonden.samples.assign(wav->waarden.begin(), wav->waarden.end());
  return gevonden;
}

SF_INFO wavInfo(std::string const& pad) {
  return SndBestand::lees(wxFileName(wxString::FromUTF8(pad))).info();
}

testing::AssertionResult zelfdeSamples(Samples const& gevonden, Samples const& verwacht) {
  if (gevonden == verwacht) {
    return testing::AssertionSuccess();
  }
  auto const [hier, daar] =
      std::mismatch(gevonden.begin(), gevonden.end(), verwacht.begin(), verwacht.end());
  testing::AssertionResult uitslag = testing::AssertionFailure();
  uitslag << gevonden.size() << " samples, " << verwacht.size() << " expected; differs at sample "
          << hier - gevonden.begin();
  if (hier != gevonden.end() && daar != verwacht.end()) {
    uitslag << ": " << *hier << ", expected " << *daar;
  }
  return uitslag;
}
