// Where the ADPCM fragments of several runs in one text start from.
#include "audio/weergave/tekstGeluid.h"

#include <cmath>
#include <cstdlib>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/uitvoer/runProef.h"

namespace {

// A tone that breaks off in its swing, so that the coder ends far from silence.
std::vector<int> toon(double toonhoogte, std::size_t samples) {
  std::vector<int> waarden(samples);
  for (std::size_t i = 0; i < samples; ++i) {
    waarden[i] = static_cast<int>(100 * std::sin(toonhoogte * static_cast<double>(i)));
  }
  return waarden;
}

class AdpcmRuns : public RunProef {
 protected:
  AdpcmRuns() {
    instellingen.speexOutputLanguage = 0;
    schrijfWav(map.pad("een.wav"), een);
    schrijfWav(map.pad("twee.wav"), twee);
    schrijfWav(map.pad("drie.wav"), drie);
  }

  std::string run(ADPCMMaker& maker, std::vector<std::string> const& namen) {
    laad(namen);
    return tekstVan(maker);
  }

  // What the model makes of a recording, and where its coder and decoder stand behind it.
  struct Model {
    AdpcmStand coder;
    AdpcmStand decoder;

    Samples neem(std::vector<int> const& samples) {
      std::vector<int> const gehoord = modelSamples(decoder, modelBytes(coder, samples, 1));
      return {gehoord.begin(), gehoord.end()};
    }
  };

  static std::vector<Samples> gedecodeerd(std::string const& tekst) {
    TekstDecoder decoder(std::nullopt);
    std::vector<Samples> alle;
    for (TekstArray const& array : ontleedTekst(tekst).arrays) {
      alle.push_back(decoder.decodeer(array).samples);
    }
    return alle;
  }

  std::vector<int> const een = toon(0.11, 413);
  std::vector<int> const twee = toon(0.07, 389);
  std::vector<int> const drie = toon(0.05, 601);
};

TEST_F(AdpcmRuns, GoOnFromOneAnotherWithinARun) {
  Model model;
  Samples const eerste = model.neem(drie);
  EXPECT_NE(model.decoder.voorspelling, 0);
  std::vector<Samples> const verwacht{eerste, model.neem(een), model.neem(twee)};
  ADPCMMaker maker;
  // In the order of their names.
  EXPECT_EQ(gedecodeerd(run(maker, {"drie.wav", "een.wav", "twee.wav"})), verwacht);
}

// From silence it would be quieter.
TEST_F(AdpcmRuns, GoOnWithinARunHoweverLoudThatIs) {
  std::vector<int> const hoog(300, een.back());
  schrijfWav(map.pad("hoog.wav"), hoog);
  Model model;
  std::vector<Samples> const verwacht{model.neem(een), model.neem(hoog)};
  ASSERT_GT(std::abs(een.back()), 50);
  ADPCMMaker maker;
  EXPECT_EQ(gedecodeerd(run(maker, {"een.wav", "hoog.wav"})), verwacht);
}

TEST_F(AdpcmRuns, GoOnFromOneAnotherWhereOneWindowMadeThem) {
  Model model;
  std::vector<Samples> const verwacht{model.neem(een), model.neem(drie), model.neem(twee)};
  ADPCMMaker maker;
  std::string tekst = run(maker, {"een.wav"});
  tekst += run(maker, {"drie.wav", "twee.wav"});
  EXPECT_EQ(gedecodeerd(tekst), verwacht);
}

TEST_F(AdpcmRuns, StartAfreshWhereEachWasMadeByItself) {
  Model vroeg;
  Model laat;
  std::vector<Samples> const verwacht{vroeg.neem(een), laat.neem(drie), laat.neem(twee)};
  ADPCMMaker maker;
  ADPCMMaker later;
  std::string const tekst = run(maker, {"een.wav"}) + run(later, {"drie.wav", "twee.wav"});
  EXPECT_EQ(gedecodeerd(tekst), verwacht);
}

TEST_F(AdpcmRuns, AreNotDisturbedByOtherEncoders) {
  Model model;
  Samples const eerste = model.neem(een);
  Samples const tweede = model.neem(drie);
  ADPCMMaker maker;
  std::string tekst = run(maker, {"een.wav"});
  laad({"twee.wav"});
  tekst += pcm();
  tekst += run(maker, {"drie.wav"});
  EXPECT_EQ(gedecodeerd(tekst), (std::vector<Samples>{eerste, {twee.begin(), twee.end()}, tweede}));
}

}  // namespace
