// Files among the loaded ones that are not heard, or not on every toolkit.
#include <sys/stat.h>
#include <wx/button.h>
#include <wx/utils.h>

#include <filesystem>
#include <tuple>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelBronProef.h"
#include "tests/steun/geluidPaden.h"

namespace {

// A WAV file with a LIST chunk of this content before its samples.
std::string metLijst(std::string const& inhoud, std::string const& data) {
  // "RIFF", 4 bytes of size, "WAVE", and a format chunk of 24 bytes come first.
  std::string bytes = wavBytes({}, data);
  bytes.insert(36, std::string("LIST") + static_cast<char>(inhoud.size()) +
                       std::string("\0\0\0", 3) + inhoud);
  bytes[4] = static_cast<char>(bytes.size() - 8);
  return bytes;
}

TEST_F(SpeelBronProef, AFileWithAListBeforeItsSamplesIsHeardAsFarAsTheToolkitReadsIt) {
  wxVersionInfo const toolkit = wxGetLibraryVersionInfo();
  bool const leestLijst = std::make_tuple(toolkit.GetMajor(), toolkit.GetMinor(),
                                          toolkit.GetMicro()) >= std::make_tuple(3, 2, 3);
  Paden const paden{bestand("a.wav", metLijst("INFO", "abcd")), klank("b.wav", 7)};
  speel(paden);
  EXPECT_EQ(boomRegels().at(1), " frames     : 2");
  EXPECT_EQ(neemGeluidPaden(), paden);
  if (leestLijst) {
    EXPECT_EQ(lengten(), (Lengten{2, 7}));
    EXPECT_EQ(vet(), (Vet{{0}, {1}}));
    ASSERT_EQ(gehoord.size(), 2U);
    EXPECT_EQ(gehoord[0].bytes, (GeluidBytes{'a', 'b', 'c', 'd'}));
  } else {
    // Passed over without a word.
    EXPECT_EQ(lengten(), Lengten{7});
    EXPECT_EQ(vet(), Vet{{1}});
  }
}

TEST_F(SpeelBronProef, AFileWithAListThatPromisesMoreSamplesThanItHasIsPassedOverWithoutAWord) {
  // One byte beyond the file, and as many as the LIST takes.
  std::string const geheel = metLijst("INFO", "abcd");
  std::vector<wxString> paden;
  for (char const beloofd : {'\x05', '\x10'}) {
    std::string bytes = geheel;
    bytes[36 + 12 + 4] = beloofd;
    paden.push_back(bestand("a" + std::to_string(beloofd) + ".wav", bytes));
  }
  paden.push_back(klank("b.wav", 7));
  speel(paden);
  EXPECT_EQ(lengten(), Lengten{7});
  EXPECT_EQ(vet(), Vet{{2}});
}

// The toolkit would ask for as much memory as a directory tells it has, and wait for a pipe.
TEST_F(SpeelBronProef, AFileThatIsGoneSinceTheLoadAndWhatTookItsPlaceIsPassedOverWithoutAWord) {
  Paden const paden{klank("a.wav", 5), klank("b.wav", 6), klank("c.wav", 7)};
  laad(paden);
  std::filesystem::remove(map.pad("b.wav"));
  klik(ID_SPEEL_BRON);
  EXPECT_EQ(neemGeluidPaden(), paden);
  EXPECT_EQ(lengten(), (Lengten{5, 7}));
  EXPECT_EQ(vet(), (Vet{{0}, {2}}));

  gehoord.clear();
  std::filesystem::remove(map.pad("a.wav"));
  std::filesystem::create_directory(map.pad("a.wav"));
  ASSERT_EQ(mkfifo(map.pad("b.wav").c_str(), 0600), 0);
  klik(ID_SPEEL_BRON);
  EXPECT_EQ(neemGeluidPaden(), Paden{pad("c.wav")});
  EXPECT_EQ(lengten(), Lengten{7});
  EXPECT_EQ(vet(), Vet{{2}});

  // With all of them gone nothing is heard.
  gehoord.clear();
  for (char const* naam : {"a.wav", "b.wav", "c.wav"}) {
    std::filesystem::remove(map.pad(naam));
  }
  klik(ID_SPEEL_BRON);
  EXPECT_TRUE(gehoord.empty());
  EXPECT_EQ(vetteRijen(), Rijen{});
  EXPECT_TRUE(nietsGelogd(log()));
}

}  // namespace
