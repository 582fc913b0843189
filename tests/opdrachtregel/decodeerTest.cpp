// The WAV files that kestrolin-cli decode makes, against what the makers of the texts and models of
// the codecs say that a target plays.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <tuple>

#include "tests/firmware/texts/program.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/wavLezer.h"

namespace {

// The fragments of one setting, with their text as a run.
struct Deel {
  Setting setting;
  std::string tekst;
  std::vector<TextFragment> fragmenten;
};

std::vector<Deel> delenVan(Program const& program) {
  std::string const wit = program.kind == Kind::Wav ? "\n/* Embedded on" : "\n/* Encoded on";
  std::vector<Deel> delen;
  std::size_t begin = 0;
  for (TextFragment const& fragment : program.fragments) {
    Setting const& nu = fragment.setting;
    if (delen.empty() || delen.back().setting.width != nu.width ||
        delen.back().setting.header != nu.header) {
      delen.push_back({nu, "/* Speex encoding output of 5 audio files */\n", {}});
    }
    std::size_t const einde = program.text.find(wit, begin + 1);
    delen.back().tekst += program.text.substr(begin, einde - begin);
    delen.back().fragmenten.push_back(fragment);
    begin = einde;
  }
  EXPECT_EQ(begin, std::string::npos);
  return delen;
}

// From so many bits to 16, and no further than these reach.
std::vector<int> opgehoogd(std::vector<int> samples, unsigned bits) {
  for (int& sample : samples) {
    double const hoog = std::ldexp(sample, 16 - static_cast<int>(bits));
    sample = static_cast<int>(std::clamp(hoog, -32768.0, 32767.0));
  }
  return samples;
}

using Geval = std::tuple<Kind, UitvoerTaal>;

class DecodeerProef : public ProgrammaProef, public testing::WithParamInterface<Geval> {
 protected:
  Kind kind() const { return std::get<0>(GetParam()); }

  // The samples in 16 bits, as a target plays them: for Speex without those that come late, and as
  // many as there are in the fragment.
  std::vector<int> verwacht(Program const& program, TextFragment const& fragment,
                            unsigned dacBits) const {
    Record const& record = fragment.expected;
    if (kind() == Kind::Adpcm) {
      return opgehoogd(record.samples, std::max(dacBits, 9U) - 8);
    }
    std::vector<int> samples = record.samples;
    if (kind() == Kind::Speex) {
      samples.erase(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(record.delay));
      samples.resize(std::min<std::size_t>(samples.size(), sampleCount(program, fragment)));
    }
    return opgehoogd(samples, dacBits);
  }

  void verwachtWav(TextFragment const& fragment, std::vector<int> const& samples) const {
    SCOPED_TRACE(fragment.name);
    Bytes const bytes = leesBytes(map.pad("uit/" + fragment.name + ".wav"));
    std::optional<GelezenWav> const wav = ontleedWav(bytes);
    ASSERT_TRUE(wav);
    EXPECT_EQ(wav->soort.formaatCode, 1);
    EXPECT_EQ(wav->soort.rate, static_cast<int>(fragment.expected.rate));
    EXPECT_EQ(wav->soort.kanalen, static_cast<int>(fragment.expected.channels));
    EXPECT_EQ(wav->soort.bits, 16);
    EXPECT_TRUE(wav->waarden == samples)
        << wav->waarden.size() << " samples, and not " << samples.size();
    // Whole frames of the size that the header tells.
    EXPECT_EQ(bytes.size(), 44 + 2 * samples.size());
    EXPECT_EQ(bytes.at(32), 2 * fragment.expected.channels);
  }

  TijdelijkeMap opnamen;
};

TEST_P(DecodeerProef, GivesWhatATargetPlays) {
  Program const program = makeProgram(kind(), std::get<1>(GetParam()), opnamen.pad());
  bool const teltBreedte = kind() == Kind::Speex || kind() == Kind::Wav;
  for (Deel const& deel : delenVan(program)) {
    SCOPED_TRACE(deel.fragmenten.front().name);
    maakBestand(map.pad("tekst"), deel.tekst);
    std::vector<std::string> woorden{"decode", "tekst", "--to", "uit"};
    if (!teltBreedte) {
      woorden.insert(woorden.end(), {"--dac", std::to_string(deel.setting.width)});
    }
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 0);
    EXPECT_EQ(afloop.uit + afloop.fouten, "");
    for (TextFragment const& fragment : deel.fragmenten) {
      verwachtWav(fragment, verwacht(program, fragment, deel.setting.width));
    }
  }
  // And nothing else.
  EXPECT_EQ(inhoud().size(), program.fragments.size() + 2);
}

TEST_P(DecodeerProef, LeavesSamplesAsTheyAreForADacOf16Bits) {
  Program const program = makeProgram(kind(), std::get<1>(GetParam()), opnamen.pad());
  bool const teltBreedte = kind() == Kind::Speex || kind() == Kind::Wav;
  Deel const deel = delenVan(program).front();
  ASSERT_EQ(deel.setting.width, 8U);
  maakBestand(map.pad("tekst"), deel.tekst);
  std::vector<std::string> woorden{"decode", "tekst", "--to", "uit"};
  if (teltBreedte) {
    // What the text tells does not count then.
    woorden.insert(woorden.end(), {"--dac", "16"});
  }
  EXPECT_EQ(voer(woorden).status, 0);
  for (TextFragment const& fragment : deel.fragmenten) {
    verwachtWav(fragment, verwacht(program, fragment, kind() == Kind::Adpcm ? 16 + 8 : 16));
  }
}

std::string naamVanGeval(testing::TestParamInfo<Geval> const& geval) {
  constexpr std::array namen{"Pcm", "Adpcm", "Speex", "Wav"};
  auto const [kind, taal] = geval.param;
  return namen.at(static_cast<std::size_t>(kind)) + std::string(taal == UitvoerTaalC ? "C" : "Cpp");
}

INSTANTIATE_TEST_SUITE_P(, DecodeerProef,
                         testing::Combine(testing::Values(Kind::Pcm, Kind::Adpcm, Kind::Speex,
                                                          Kind::Wav),
                                          testing::Values(UitvoerTaalC, UitvoerTaalCPP)),
                         naamVanGeval);

class DecodeerHeenEnWeer : public ProgrammaProef {};

TEST_F(DecodeerHeenEnWeer, GivesRecordingsBackToTheByte) {
  std::string const bron = KESTROLIN_FRAGMENTEN;
  for (std::string const encoder : {"pcm", "wav"}) {
    for (std::string const header : {"--header", "--no-header"}) {
      SCOPED_TRACE(encoder + header);
      ASSERT_EQ(voer({"encode", bron + "/ready.wav", bron + "/warning.wav", "--encoder", encoder,
                      header, "-o", "t"})
                    .status,
                0);
      ASSERT_EQ(
          voer({"encode", bron + "/chime.wav", "--encoder", encoder, header, "--append", "-o", "t"})
              .status,
          0);
      std::string const folder = encoder + header;
      ASSERT_EQ(voer({"decode", "t", "--to", folder}).status, 0);
      for (std::string const naam : {"/ready.wav", "/warning.wav", "/chime.wav"}) {
        EXPECT_TRUE(tekst(folder + naam) == leesTekst(bron + naam)) << naam;
      }
    }
  }
}

}  // namespace
