// The reader that the README gives to firmware authors, compiled as it stands there against the
// text of a run over two files: it hears what the model decodes.
#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

// The block of C in the README with this in it; the test fails where there is none.
std::string uitReadme(std::string const& kenmerk) {
  std::string const tekst = leesTekst(KESTROLIN_README);
  std::string const hek = "\n```";
  std::size_t const plaats = tekst.find(kenmerk);
  std::size_t const begin = tekst.rfind(hek + "c\n", plaats);
  if (plaats == std::string::npos || begin == std::string::npos) {
    ADD_FAILURE() << "no " << kenmerk << " in the README";
    return "";
  }
  std::size_t const van = begin + hek.size() + 2;
  return tekst.substr(van, tekst.find(hek, van) + 1 - van);
}

class AdpcmFirmware : public testing::Test {
 protected:
  // Encodes "eerste" and "tweede" in one run, and has the reader play both. With `opnieuw` it
  // starts the second one from the state that its header declares.
  std::vector<int> gehoord(std::vector<int> const& eerste, std::vector<int> const& tweede,
                           bool opnieuw) {
    schrijfWav(map.pad("eerste.wav"), eerste);
    schrijfWav(map.pad("tweede.wav"), tweede);
    ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
    std::string bron = uitReadme("adpcm_play(") + "#include <stdio.h>\n";
    bron += adpcmTekst(converter, map.pad("eerste.wav"), true);
    bron += adpcmTekst(converter, map.pad("tweede.wav"), true);
    bron +=
        "static void put(int16_t sample) { printf(\"%d \", sample); }\n"
        "int main(void) {\n"
        "  adpcm_state s = {0, 0};\n"
        "  adpcm_play(eerste, &s, put);\n";
    bron += opnieuw ? "  s.sample = (int16_t)(tweede[6] | tweede[7] << 8);\n"
                      "  s.index = tweede[8];\n"
                    : "";
    bron += "  adpcm_play(tweede, &s, put);\n  return 0;\n}\n";
    maakBestand(map.pad("speler.c"), bron);
    EXPECT_TRUE(luktIn(map.pad(),
                       "gcc -std=c99 -Wall -Wextra -Wpedantic -Werror speler.c -o speler && "
                       "./speler > gehoord.txt"));
    std::istringstream stroom(leesTekst(map.pad("gehoord.txt")));
    return {std::istream_iterator<int>(stroom), {}};
  }

  // What one decoder hears that runs on as the encoder did.
  static std::vector<int> verwacht(std::vector<int> eerste, std::vector<int> const& tweede) {
    eerste.insert(eerste.end(), tweede.begin(), tweede.end());
    AdpcmStand coder;
    AdpcmStand decoder;
    return modelSamples(decoder, modelBytes(coder, eerste, 1));
  }

 private:
  TijdelijkeMap map;
};

TEST_F(AdpcmFirmware, lezerUitDeReadmeHoortEenRunInDeVolgordeVanZijnTekst) {
  EXPECT_EQ(gehoord(golf(2000), golf(500), false), verwacht(golf(2000), golf(500)));
}

TEST_F(AdpcmFirmware, lezerDieDeTweedeHeaderGelooftHoortIetsAnders) {
  EXPECT_NE(gehoord(golf(2000), golf(500), true), verwacht(golf(2000), golf(500)));
}

TEST_F(AdpcmFirmware, stilteAanHetEindMaaktDeTweedeHeaderWaar) {
  std::vector<int> eerste = golf(2000);
  eerste.insert(eerste.end(), 96, 0);
  EXPECT_EQ(gehoord(eerste, golf(500), true), verwacht(eerste, golf(500)));
}

}  // namespace
