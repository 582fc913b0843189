// The reader for firmware, compiled with the text of a run over two files: it hears what the model
// decodes.
#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

class AdpcmFirmware : public testing::Test {
 protected:
  // Encodes "eerste" and "tweede" in one run, and has the reader play both. With `opnieuw` it
  // starts the second one from the state that its header declares.
  std::vector<int> gehoord(std::vector<int> const& eerste, std::vector<int> const& tweede,
                           bool opnieuw) {
    schrijfWav(map.pad("eerste.wav"), eerste);
    schrijfWav(map.pad("tweede.wav"), tweede);
    ADPCMDesktopConverter converter(ADPCMEncoderOpties(ADPCMTaalC, 0));
    std::string bron = "#include <stdio.h>\n#include \"kestrolin_adpcm.h\"\n";
    bron += adpcmTekst(converter, map.pad("eerste.wav"), true);
    bron += adpcmTekst(converter, map.pad("tweede.wav"), true);
    bron +=
        "static void play(kestrolin_adpcm* reader) {\n"
        "  for (int16_t sample; kestrolin_adpcm_read(reader, &sample, 1) == 1;) {\n"
        "    printf(\"%d \", sample);\n"
        "  }\n"
        "}\n"
        "int main(void) {\n"
        "  kestrolin_adpcm een, twee;\n"
        "  kestrolin_adpcm_open(&een, eerste, sizeof eerste);\n"
        "  kestrolin_adpcm_open(&twee, tweede, sizeof tweede);\n"
        "  play(&een);\n";
    bron += opnieuw ? "" : "  kestrolin_adpcm_resume(&twee, &een);\n";
    bron += "  play(&twee);\n  return 0;\n}\n";
    maakBestand(map.pad("speler.c"), bron);
    EXPECT_TRUE(luktIn(map.pad(),
                       "f='" KESTROLIN_FIRMWARE
                       "' && gcc -std=c99 -Wall -Wextra -Wpedantic -Werror \"-I$f\" speler.c "
                       "\"$f/kestrolin_adpcm.c\" \"$f/kestrolin_ima.c\" -o speler && "
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

TEST_F(AdpcmFirmware, lezerHoortEenRunInDeVolgordeVanZijnTekst) {
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
