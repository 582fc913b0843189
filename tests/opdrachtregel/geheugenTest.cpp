// The memory that kestrolin-cli takes at most does not depend on the number of files.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/programma.h"
#include "tests/steun/wavMaker.h"

namespace {

// Opened at both ends, and closed.
class Pijp {
 public:
  Pijp() { EXPECT_EQ(pipe2(einden.data(), O_CLOEXEC), 0); }
  ~Pijp() {
    close(einden[0]);
    sluitSchrijver();
  }
  Pijp(Pijp const&) = delete;
  Pijp& operator=(Pijp const&) = delete;
  Pijp(Pijp&&) = delete;
  Pijp& operator=(Pijp&&) = delete;

  int lezer() const { return einden[0]; }
  int schrijver() const { return einden[1]; }
  void sluitSchrijver() {
    if (einden[1] >= 0) {
      close(einden[1]);
      einden[1] = -1;
    }
  }

 private:
  std::array<int, 2> einden{-1, -1};
};

// The most memory that a process has had in use, in bytes.
std::size_t piek(pid_t pid) {
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  std::string woord;
  std::size_t kilobytes = 0;
  while (status >> woord) {
    if (woord == "VmHWM:" && status >> kilobytes) {
      return kilobytes * 1024;
    }
  }
  return 0;
}

struct Gebruik {
  std::size_t piek;
  std::size_t tekst;  // the bytes of the text
};

class Geheugen : public ProgrammaProef {
 protected:
  // A process that ends takes its measure along. This one waits at its end: the text is complete by
  // the time that its first byte goes out, and no pipe takes all of it.
  Gebruik meet(std::string const& encoder, int aantal) {
    ProgrammaVraag vraag{{KESTROLIN_CLI, "encode", "--encoder", encoder, "-o", "-"}, map.pad(), {}};
    for (int i = 0; i < aantal; ++i) {
      vraag.woorden.push_back("w" + std::to_string(i) + ".wav");
      std::error_code alEr;
      std::filesystem::copy_file(map.pad("w.wav"), map.pad(vraag.woorden.back()), alEr);
    }
    Pijp pijp;
    vraag.uitvoer = pijp.schrijver();
    Programma programma(vraag);
    pijp.sluitSchrijver();
    std::array<char, 65536> blok{};
    ssize_t gelezen = read(pijp.lezer(), blok.data(), 1);
    Gebruik gebruik{piek(programma.geefPid()), 0};
    while (gelezen > 0) {
      gebruik.tekst += static_cast<std::size_t>(gelezen);
      gelezen = read(pijp.lezer(), blok.data(), blok.size());
    }
    EXPECT_EQ(programma.wacht().status, 0);
    return gebruik;
  }
};

TEST_F(Geheugen, DoesNotGrowWithTheNumberOfFiles) {
  constexpr int weinig = 8;
  constexpr int veel = 108;
  maakWav(map.pad("w.wav"), proefSamples(24000));
  std::size_t const perOpname = std::filesystem::file_size(map.pad("w.wav"));
  for (std::string const encoder : {"pcm", "adpcm", "speex", "wav"}) {
    Gebruik const eerst = meet(encoder, weinig);
    Gebruik const dan = meet(encoder, veel);
    EXPECT_GT(eerst.tekst, 65536U) << "a pipe takes the text whole";
    EXPECT_GT(eerst.piek, 0U);
    // Each file has a name and a header. A hundred of them take less than ten recordings would.
    EXPECT_LT(dan.piek, eerst.piek + 10 * perOpname) << encoder;
  }
}

}  // namespace
