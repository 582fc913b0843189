// What is read back of texts that the tool's own makers wrote.
#include "audio/weergave/tekstLezer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/audio/weergave/vertaaldeArrays.h"

namespace {

using Geval = std::tuple<Kind, UitvoerTaal>;

class LezerVanMakers : public testing::TestWithParam<Geval> {
 protected:
  // By Kind.
  static constexpr std::array soorten{ArraySoort::pcm, ArraySoort::adpcm, ArraySoort::speex,
                                      ArraySoort::wav};

  Kind kind() const { return std::get<0>(GetParam()); }
  UitvoerTaal taal() const { return std::get<1>(GetParam()); }

  // Of the samples of each channel.
  std::uint32_t samplesVan(Program const& program, TextFragment const& fragment) const {
    if (kind() == Kind::Wav) {
      // Of all channels together as many as the source has frames.
      SF_INFO const info = leesSnd(wavPath(map.pad(), fragment.name)).info;
      return static_cast<std::uint32_t>(info.frames / info.channels);
    }
    return sampleCount(program, fragment);
  }

  TijdelijkeMap map;
};

TEST_P(LezerVanMakers, FindsEveryArrayAsACompilerDoesWithWhatItsCommentsTell) {
  Program const program = makeProgram(kind(), taal(), map.pad());
  std::vector<Bytes> const bytes = vertaaldeArrays(program, map.pad());
  GelezenTekst const gelezen = ontleedTekst(program.text);
  EXPECT_TRUE(gelezen.klachten.empty()) << gelezen.klachten.front().reden;
  ASSERT_EQ(gelezen.arrays.size(), program.fragments.size());
  ASSERT_EQ(bytes.size(), program.fragments.size());
  bool const teltBreedte = kind() == Kind::Speex || kind() == Kind::Wav;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    TekstArray const& array = gelezen.arrays[i];
    TextFragment const& fragment = program.fragments[i];
    SCOPED_TRACE(fragment.name);
    EXPECT_EQ(array.naam, fragment.name);
    EXPECT_EQ(array.klasse, taal() == UitvoerTaalCPP ? className : "");
    EXPECT_EQ(array.wavBestand, fragment.name + ".wav");
    EXPECT_EQ(array.soort, soorten.at(static_cast<std::size_t>(kind())));
    EXPECT_EQ(array.frequentie, fragment.expected.rate);
    EXPECT_EQ(array.aantalSamples, samplesVan(program, fragment));
    EXPECT_EQ(array.dacBits, teltBreedte ? fragment.setting.width : 0);
    EXPECT_EQ(array.metHeader, fragment.setting.header);
    EXPECT_TRUE(array.bytes == bytes[i]) << array.bytes.size() << " and " << bytes[i].size();
  }
}

std::string naamVanGeval(testing::TestParamInfo<Geval> const& geval) {
  constexpr std::array namen{"Pcm", "Adpcm", "Speex", "Wav"};
  auto const [kind, taal] = geval.param;
  return namen.at(static_cast<std::size_t>(kind)) + std::string(taal == UitvoerTaalC ? "C" : "Cpp");
}

INSTANTIATE_TEST_SUITE_P(, LezerVanMakers,
                         testing::Combine(testing::Values(Kind::Pcm, Kind::Adpcm, Kind::Speex,
                                                          Kind::Wav),
                                          testing::Values(UitvoerTaalC, UitvoerTaalCPP)),
                         naamVanGeval);

}  // namespace
