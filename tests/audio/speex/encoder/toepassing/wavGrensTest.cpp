// Whether the samples of a WAV file end within it.
#include "audio/speex/encoder/toepassing/wavGrens.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/steun/bytes.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

class WavGrens : public testing::Test {
 protected:
  // The samples of a file with these chunks behind its format.
  bool eindigt(std::string const& brokken) const {
    constexpr std::size_t voorBrokken = 36;
    maakBestand(map.pad("a.wav"), wavBytes({}, "").substr(0, voorBrokken) + brokken);
    return eindigtInBestand(wxString::FromUTF8(map.pad("a.wav")));
  }

  // The head of a chunk, of which `lengte` is said.
  static std::string kop(std::string const& naam, char lengte, char hoog = '\0') {
    return naam + lengte + std::string("\0\0", 2) + hoog;
  }

  TijdelijkeMap map;
};

TEST_F(WavGrens, SamplesBehindAListEndWhereTheFileDoesOrBefore) {
  EXPECT_TRUE(eindigt(kop("LIST", 4) + "INFO" + kop("data", 4) + "abcd"));
  EXPECT_TRUE(eindigt(kop("LIST", 4) + "INFO" + kop("data", 3) + "abcd"));
  EXPECT_TRUE(eindigt(kop("LIST", 0) + kop("data", 0)));
}

TEST_F(WavGrens, SamplesBehindAListThatGoOnBeyondTheFileAreTold) {
  EXPECT_FALSE(eindigt(kop("LIST", 4) + "INFO" + kop("data", 5) + "abcd"));
  EXPECT_FALSE(eindigt(kop("LIST", 4) + "INFO" + kop("data", 4, '\xFF') + "abcd"));
}

TEST_F(WavGrens, AListWithoutAWholeHeadBehindItIsTold) {
  EXPECT_FALSE(eindigt(kop("LIST", 4) + "INFO"));
  EXPECT_FALSE(eindigt(kop("LIST", 4) + "INFO" + kop("data", 0).substr(0, 7)));
  EXPECT_FALSE(eindigt(kop("LIST", 4, '\xFF') + "INFO"));
}

TEST_F(WavGrens, WithoutAListTheToolkitSeesToItItself) {
  EXPECT_TRUE(eindigt(kop("data", 5) + "abcd"));
  EXPECT_TRUE(eindigt(kop("fact", 4) + "abcd" + kop("data", 5) + "abcd"));
  EXPECT_TRUE(eindigt("LIST"));
  EXPECT_TRUE(eindigt(""));
}

}  // namespace
