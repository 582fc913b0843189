// kestrolin-cli play as a process. What a loudspeaker would get goes into a file or a pipe, by
// SDL's driver for that.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <numeric>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/bytes.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/wavMaker.h"

namespace fs = std::filesystem;

namespace {

constexpr char const* remedie = "; have decode write WAV files, for another program to play\n";

// Samples without silence, each of them once.
std::vector<int> reeks(int eerste, int aantal) {
  std::vector<int> samples(static_cast<std::size_t>(aantal));
  std::iota(samples.begin(), samples.end(), eerste);
  return samples;
}

Bytes bytesVan(std::vector<std::vector<int>> const& geluiden) {
  Bytes bytes;
  for (std::vector<int> const& geluid : geluiden) {
    for (int const sample : geluid) {
      Bytes const twee = laagEerst(static_cast<unsigned int>(sample), 2);
      bytes.insert(bytes.end(), twee.begin(), twee.end());
    }
  }
  return bytes;
}

class Speel : public ProgrammaProef {
 protected:
  Speel() {
    omgeving["SDL_AUDIODRIVER"] = "disk";
    omgeving["SDL_DISKAUDIODELAY"] = "1";  // ms
    omgeving["SDL_DISKAUDIOFILE"] = map.pad("pijp");
    EXPECT_EQ(mkfifo(map.pad("pijp").c_str(), 0600), 0);
    pijp = open(map.pad("pijp").c_str(), O_RDONLY | O_NONBLOCK);
    constexpr int ruim = 1 << 20;
    fcntl(pijp, F_SETPIPE_SZ, ruim);
  }
  void TearDown() override { close(pijp); }

  void codeer(std::vector<std::string> const& woorden) const {
    std::vector<std::string> alle{"encode", "-o", "t"};
    alle.insert(alle.end(), woorden.begin(), woorden.end());
    ASSERT_EQ(voer(alle).status, 0);
  }

  // The samples that a device got, which are not 0: it gets silence before and behind.
  Bytes gehoord(std::vector<std::string> const& woorden) const {
    std::vector<std::string> alle{"play"};
    alle.insert(alle.end(), woorden.begin(), woorden.end());
    Afloop const afloop = voer(alle);
    EXPECT_EQ(afloop.status, 0);
    EXPECT_EQ(afloop.uit, "");
    // The driver says that it writes into a file.
    EXPECT_EQ(afloop.fouten.find("kestrolin-cli"), std::string::npos) << afloop.fouten;
    Bytes geluid;
    std::array<unsigned char, 2> sample{};
    while (read(pijp, sample.data(), sample.size()) == 2) {
      if (sample[0] != 0 || sample[1] != 0) {
        geluid.insert(geluid.end(), sample.begin(), sample.end());
      }
    }
    return geluid;
  }

  void eisFout(std::vector<std::string> const& woorden, std::string const& fouten) const {
    std::vector<std::string> alle{"play"};
    alle.insert(alle.end(), woorden.begin(), woorden.end());
    Afloop const afloop = voer(alle);
    EXPECT_EQ(afloop.status, 1);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_EQ(afloop.fouten, fouten);
  }

 private:
  int pijp = -1;
};

TEST_F(Speel, AllArraysSoundInTheOrderOfTheText) {
  schrijfWav(map.pad("b.wav"), reeks(1, 300));
  schrijfWav(map.pad("a.wav"), reeks(-500, 400));
  schrijfWav(map.pad("c.wav"), {});
  codeer({"b.wav", "c.wav", "a.wav"});
  EXPECT_EQ(gehoord({"t"}), bytesVan({reeks(-500, 400), reeks(1, 300)}));
}

TEST_F(Speel, NamedArraysSoundInTheOrderOfTheNames) {
  schrijfWav(map.pad("a.wav"), reeks(1, 100));
  schrijfWav(map.pad("b.wav"), reeks(1001, 100));
  schrijfWav(map.pad("c.wav"), reeks(2001, 100));
  codeer({"a.wav", "b.wav", "c.wav", "--language", "c++", "--class", "K"});
  EXPECT_EQ(gehoord({"t", "c", "K::a"}), bytesVan({reeks(2001, 100), reeks(1, 100)}));
}

TEST_F(Speel, SoundIsThatOfDecode) {
  schrijfWav(map.pad("a.wav"), reeks(-60, 120));
  schrijfWav(map.pad("b.wav"), reeks(-50, 110));
  codeer({"a.wav", "b.wav", "--encoder", "adpcm"});
  ASSERT_EQ(voer({"decode", "t", "--to", "uit", "--dac", "16"}).status, 0);
  // The second one goes on from the first one, also where it is alone.
  constexpr std::size_t kop = 44;
  Bytes verwacht = leesBytes(map.pad("uit/b.wav"));
  ASSERT_EQ(verwacht.size(), kop + 220);
  verwacht.erase(verwacht.begin(), verwacht.begin() + kop);
  Bytes zonderNul;
  for (std::size_t i = 0; i < verwacht.size(); i += 2) {
    if (verwacht[i] != 0 || verwacht[i + 1] != 0) {
      zonderNul.insert(zonderNul.end(), {verwacht[i], verwacht[i + 1]});
    }
  }
  EXPECT_EQ(gehoord({"t", "b", "--dac", "16"}), zonderNul);
}

TEST_F(Speel, SamplesOfANarrowDacAreRaised) {
  schrijfWav(map.pad("a.wav"), {256, 512, -768});
  codeer({"a.wav", "--dac", "8"});
  EXPECT_EQ(gehoord({"t", "--dac", "8"}), bytesVan({{256, 512, -768}}));
}

TEST_F(Speel, FilesThatAreNoTextsAreToldAsByDecode) {
  schrijfWav(map.pad("a.wav"), {1});
  eisFout({"weg.c"}, voer({"decode", "weg.c", "--to", "."}).fouten);
  eisFout({"a.wav"}, voer({"decode", "a.wav", "--to", "."}).fouten);
}

TEST_F(Speel, NamesThatTheTextDoesNotHaveAreToldEach) {
  schrijfWav(map.pad("a.wav"), {1});
  schrijfWav(map.pad("b.wav"), {1});
  codeer({"a.wav", "b.wav", "--language", "c++", "--class", "K"});
  eisFout({"t", "c", "a", "L::b"},
          "kestrolin-cli: t has no array c; it has K::a, K::b\n"
          "kestrolin-cli: t has no array L::b; it has K::a, K::b\n");
  EXPECT_EQ(voer({"play"}).status, 2);
}

TEST_F(Speel, MachineWithoutADeviceIsTold) {
  schrijfWav(map.pad("a.wav"), {1});
  schrijfWav(map.pad("b.wav"), {1});
  codeer({"a.wav", "b.wav"});
  omgeving["SDL_AUDIODRIVER"] = "geenToestel";
  eisFout({"t"},
          "kestrolin-cli: nothing can be heard: no sound device was found (Audio target "
          "'geenToestel' not available)" +
              std::string(remedie));
}

// Of the program and of what lies beside it.
TEST_F(Speel, ModuleIsFoundFromTheProgramWhereverThatIs) {
  schrijfWav(map.pad("a.wav"), {1});
  codeer({"a.wav"});
  fs::create_directories(map.pad("ergens/bin"));
  fs::create_directories(map.pad("ergens/lib/kestrolin"));
  fs::copy_file(KESTROLIN_CLI, map.pad("ergens/bin/kestrolin-cli"));
  std::string const module = map.pad("ergens/lib/kestrolin/geluid.so");
  std::string const speel =
      "cd '" + map.pad() + "' && SDL_AUDIODRIVER=dummy ergens/bin/kestrolin-cli play t 2>fouten";
  EXPECT_NE(voerUit(speel), 0);
  EXPECT_EQ(tekst("fouten"),
            "kestrolin-cli: this kestrolin-cli was built without sound: there is "
            "no " +
                module + remedie);
  maakBestand(module, "no module");
  EXPECT_NE(voerUit(speel), 0);
  EXPECT_EQ(tekst("fouten"), "kestrolin-cli: Failed to load shared library '" + module +
                                 "': " + module + ": file too short\n");
  fs::remove(module);
  fs::copy_file(fs::path(KESTROLIN_CLI).parent_path() / "../lib/kestrolin/geluid.so", module);
  EXPECT_EQ(voerUit(speel), 0);
  EXPECT_EQ(tekst("fouten"), "");
}

TEST_F(Speel, InterruptEndsIt) {
  constexpr int lang = 8000 * 3600;
  schrijfWav(map.pad("a.wav"), std::vector<int>(lang / 100, 1));
  codeer({"a.wav"});
  std::string const bestand = map.pad("geluid");
  pid_t const kind = fork();
  if (kind == 0) {
    static_cast<void>(std::signal(SIGINT, SIG_DFL));
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", bestand.c_str(), 1);
    // So slow that the sound does not end while the test looks.
    setenv("SDL_DISKAUDIODELAY", "250", 1);
    execl(KESTROLIN_CLI, KESTROLIN_CLI, "play", map.pad("t").c_str(), nullptr);
    _exit(127);
  }
  std::error_code geen;
  while (!fs::exists(bestand) || fs::file_size(bestand, geen) == 0) {
    ASSERT_EQ(waitpid(kind, nullptr, WNOHANG), 0) << "the program did not play";
    usleep(1000);
  }
  kill(kind, SIGINT);
  int status = 0;
  waitpid(kind, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGINT);
  EXPECT_LT(fs::file_size(bestand), 2U * lang / 100);
}

}  // namespace
